#include "common/CSettingsManager.h"
#include "common/system/ClientFolder.h"

#include <QPointer>

namespace {

class ManagerProbe : public CSettingsManager
{
public:
    ManagerProbe() = default;
    ~ManagerProbe() = default;
};

} // namespace

class tst_CSettingsManager : public QObject
{
    Q_OBJECT

private slots:
    void oneObjectServesTheProcess()
    {
        CSettingsManager *manager = CSettingsManager::instance();
        QVERIFY(manager);
        QCOMPARE(CSettingsManager::instance(), manager);
        QCOMPARE(manager->getUrlSettings(), CSettingsManager::instance()->getUrlSettings());
    }

    void theFileLiesBesideTheExecutable()
    {
        const QSettings *settings = CSettingsManager::instance()->getUrlSettings();
        QCOMPARE(settings->fileName(), addressFile());
        QCOMPARE(settings->format(), QSettings::IniFormat);
        QVERIFY(!settings->parent());
    }

    void readingMakesNoFile()
    {
        IN_A_CLIENT_WITH(QByteArray())
        QVERIFY(!CSettingsManager::instance()->getUrlSettings()->contains("vcard/loadurl"));
        QCOMPARE(QDir(QCoreApplication::applicationDirPath()).entryList(QDir::Files), QStringList("program"));
    }

    void theFileIsReadAsUtf8()
    {
        IN_A_CLIENT_WITH("[vcard]\nloadurl=http://名片.example/\n")
        QCOMPARE(CSettingsManager::instance()->getUrlSettings()->value("vcard/loadurl").toString(),
                 QString::fromUtf8("http://名片.example/"));
    }

    void anEditIsSeenAfterSyncOnly()
    {
        IN_A_CLIENT_WITH("[vcard]\nloadurl=old\n")
        QSettings *settings = CSettingsManager::instance()->getUrlSettings();
        QCOMPARE(settings->value("vcard/loadurl").toString(), QString("old"));
        QVERIFY(writeFile(addressFile(), "[vcard]\nloadurl=the new one\n"));
        QCOMPARE(CSettingsManager::instance()->getUrlSettings()->value("vcard/loadurl").toString(), QString("old"));
        settings->sync();
        QCOMPARE(settings->value("vcard/loadurl").toString(), QString("the new one"));
    }

    void theSettingsObjectEndsWithItsManager()
    {
        QPointer<QSettings> settings;
        {
            const ManagerProbe probe;
            settings = probe.getUrlSettings();
            QVERIFY(settings);
        }
        QVERIFY(!settings);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CSettingsManager, Guiless)
#include "tst_CSettingsManager.moc"
