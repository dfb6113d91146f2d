#include "common/CSettingsManager.h"
#include "common/system/LocalAddress.h"
#include "common/system/SystemOpen.h"
#include "fakes/FileBytes.h"
#include "fakes/Patience.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QSettings>
#include <QTest>
#include <QUrl>

namespace {

// Takes the addresses of one scheme in the system's place.
class Addresses : public QObject
{
    Q_OBJECT

public:
    explicit Addresses(const QString &scheme) : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~Addresses() override { QDesktopServices::unsetUrlHandler(m_scheme); }
    Addresses(const Addresses &) = delete;
    Addresses &operator=(const Addresses &) = delete;

    QStringList m_taken;

public slots:
    void take(const QUrl &url) { m_taken.append(url.toString()); }

private:
    QString m_scheme;
};

void setOfficeAddress(const QString &address)
{
    QSettings *settings = CSettingsManager::instance()->getUrlSettings();
    settings->setValue("oaurl/theurl", address);
    settings->setValue("oaurl/tarurl", "");
}

} // namespace

class tst_SystemOpen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // A command "open" that writes its words down, and nothing else that could open anything.
        QVERIFY(writeFile("bin/open", "#!/bin/sh\n{ for word in \"$@\"; do echo \"$word\"; done; echo end; } > " +
                                          QFile::encodeName(QDir::current().absoluteFilePath("opened")) + "\n"));
        QVERIFY(QFile::setPermissions("bin/open", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        qputenv("PATH", QFile::encodeName(QDir::current().absoluteFilePath("bin")));
    }

    void init() { QFile::remove("opened"); }

    void aFileIsOpenedUnderItsQuotedPath()
    {
        QVERIFY(writeFile("my folder/a file.txt", "x"));
        QVERIFY(SystemOpen::openLocalFile("my folder/a file.txt"));
        const QByteArray wanted =
            QFile::encodeName(QDir::current().absoluteFilePath("my folder/a file.txt")) + "\nend\n";
        QTRY_COMPARE_WITH_TIMEOUT(readBytes("opened"), wanted, cPatienceMs);
    }

    void aFileThatCannotBeReadIsNotOpened()
    {
        QVERIFY(!SystemOpen::openLocalFile("missing.txt"));
        QVERIFY(!SystemOpen::openLocalFile("."));
        QVERIFY(!SystemOpen::openLocalFile(QString()));
    }

    void theFolderOfAPathIsOpenedUnquoted_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("plain") << "plain/" << QByteArray("plain/\nend\n");
        QTest::newRow("with a blank") << "my folder/" << QByteArray("my\nfolder/\nend\n");
    }

    void theFolderOfAPathIsOpenedUnquoted()
    {
        QFETCH(QString, folder);
        QFETCH(QByteArray, words);
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(SystemOpen::openLocalDir(folder + "missing file.txt"));
        QTRY_COMPARE_WITH_TIMEOUT(readBytes("opened"), words, cPatienceMs);
    }

    void theFolderEndsAtTheFirstPlaceOfTheFileName()
    {
        QVERIFY(QDir().mkpath("data/data"));
        QVERIFY(!SystemOpen::openLocalDir("data/data"));
        QVERIFY(SystemOpen::openLocalDir("./data/data"));
        QTRY_COMPARE_WITH_TIMEOUT(readBytes("opened"), QByteArray("./\nend\n"), cPatienceMs);
    }

    void aMissingFolderIsNotOpened()
    {
        QVERIFY(!SystemOpen::openLocalDir("missing/file.txt"));
        QVERIFY(!SystemOpen::openLocalDir("file.txt"));
        QVERIFY(!SystemOpen::openLocalDir(QString()));
    }

    void theDesktopOpensAFile()
    {
        QVERIFY(writeFile("desk.txt", "x"));
        const QString path = QDir::current().absoluteFilePath("desk.txt");
        QCOMPARE(SystemOpen::openMacLocalFile("missing.txt"), 0);
        QCOMPARE(SystemOpen::openMacLocalFile(path), 1);
        Addresses files("file");
        QCOMPARE(SystemOpen::openMacLocalFile(path), 2);
        QCOMPARE(files.m_taken, QStringList("file://" + path));
    }

    void aMailGoesToAllRecipients()
    {
        Addresses mail("mailto");
        SystemOpen::sendMail({"a@kelvar.example", "b@kelvar.example"});
        QCOMPARE(mail.m_taken, QStringList("mailto:a@kelvar.example;b@kelvar.example"));
    }

    void aMailThatGoesOffOpensNothingElse()
    {
        setOfficeAddress("http://office.example/?user=%1");
        Addresses mail("mailto");
        Addresses office("http");
        SystemOpen::sendMail({"a@kelvar.example"});
        QCOMPARE(mail.m_taken.size(), 1);
        QCOMPARE(office.m_taken, QStringList());
    }

    void withoutAMailProgramTheOfficeSystemOpens()
    {
        SystemOpen::setSOALoginInfo("me");
        QCOMPARE(SystemOpen::getSOALoginInfo(), QString("me"));
        setOfficeAddress("http://office.example/?user=%1");
        Addresses office("http");
        SystemOpen::sendMail({"a@kelvar.example"});
        QCOMPARE(office.m_taken, QStringList("http://office.example/?user=me"));
    }

    void withoutAnAddressNothingOpens()
    {
        setOfficeAddress(QString());
        Addresses office("http");
        Addresses none("");
        SystemOpen::sendMail({"a@kelvar.example"});
        QVERIFY(office.m_taken.isEmpty() && none.m_taken.isEmpty());
    }

    void theLocalAddressIsThatOfTheMachinesInterfaces()
    {
        const QString address = SystemOpen::getLocalIPAddress();
        QCOMPARE(address, LocalAddress::firstFit(QNetworkInterface::allInterfaces()));
        QVERIFY(!QHostAddress(address).isLoopback());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SystemOpen, Widgets)
#include "tst_SystemOpen.moc"
