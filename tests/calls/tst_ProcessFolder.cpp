#include "calls/ProcessFolder.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

class tst_ProcessFolder : public QObject
{
    Q_OBJECT

private slots:
    void isThereForItsOwnerAloneUntilItsEnd()
    {
        QString path;
        {
            const ProcessFolder folder;
            QVERIFY(folder.isValid());
            path = folder.path();
            QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                                 QFile::ReadOther | QFile::WriteOther | QFile::ExeOther),
                     QFile::Permissions());
        }
        QVERIFY(!QFile::exists(path));
    }

    void isNowhereWithoutATemporaryFolder()
    {
        const QByteArray before = qgetenv("TMPDIR");
        const QString none = QDir::tempPath() + QStringLiteral("/none");
        qputenv("TMPDIR", QFile::encodeName(none));
        const ProcessFolder folder;
        qputenv("TMPDIR", before);
        QVERIFY(!folder.isValid());
        QVERIFY(QDir::current().entryList({QStringLiteral("kelvarim-calls-*")}, QDir::Dirs).isEmpty());
    }

    void whatAKilledOneHasLeftGoes()
    {
        QProcess dead;
        dead.start(QStringLiteral("sleep"), {QStringLiteral("1000")});
        QVERIFY(dead.waitForStarted(cPatienceMs));
        const auto make = [](const QString &owner) {
            const QString left = QDir(QDir::tempPath()).filePath(QStringLiteral("kelvarim-calls-%1-abcdef").arg(owner));
            QFile file(left + QStringLiteral("/zrtp.db"));
            return QDir().mkpath(left) && file.open(QIODevice::WriteOnly) ? left : QString();
        };
        const QString left = make(QString::number(dead.processId()));
        const QString own = make(QString::number(QCoreApplication::applicationPid()));
        const QString other = make(QStringLiteral("other"));
        QVERIFY(!left.isEmpty() && !own.isEmpty() && !other.isEmpty());
        {
            const ProcessFolder folder;
        }
        QVERIFY2(QFile::exists(left), "its process still lives");
        dead.kill();
        QVERIFY(dead.waitForFinished(cPatienceMs));
        {
            const ProcessFolder folder;
        }
        QVERIFY(!QFile::exists(left));
        QVERIFY(QFile::exists(own) && QFile::exists(other));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ProcessFolder, Guiless)
#include "tst_ProcessFolder.moc"
