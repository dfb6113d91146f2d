#include "calls/account/Credentials.h"

#include <QFile>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

class tst_Credentials : public QObject
{
    Q_OBJECT

private slots:
    void passwordIsTheRegistrationValue()
    {
        QString fault;
        const Credentials credentials = passwordCredentials(cUser, QStringLiteral("pass word"), &fault);
        QCOMPARE(fault, QString());
        QVERIFY(credentials == (Credentials{cUser, QStringLiteral("pass word")}));
        passwordCredentials(cUser, QString(), &fault);
        QCOMPARE(fault, QStringLiteral("no password"));
        passwordCredentials(cUser, QString(5000, QLatin1Char('x')), &fault);
        QVERIFY(fault.contains(QStringLiteral("4096")));
    }

    void tokenSaysNameAndPassword_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fault");
        const auto row = [](const char *title, const char *value, const char *name, const char *fault) {
            QTest::newRow(title) << QString::fromLatin1(value) << QString::fromLatin1(name)
                                 << QString::fromLatin1(fault);
        };
        row("with its end", R"({"username":"1700000000:100","password":"p"})", "1700000000:100", "");
        row("without an end", R"({"username":"100","password":"p"})", "100", "");
        row("somebody else's", R"({"username":"1700000000:1100","password":"p"})", "",
            "the token is made out to somebody else");
        row("no password", R"({"username":"100"})", "", "no password");
        row("no token", "secret", "", "the registration value is no token");
        row("a list", "[1]", "", "the registration value is no token");
    }

    void tokenSaysNameAndPassword()
    {
        QFETCH(QString, value);
        QFETCH(QString, name);
        QFETCH(QString, fault);
        QString found;
        QCOMPARE(tokenCredentials(cUser, value, &found).name, name);
        QCOMPARE(found, fault);
    }

    void fileHasALineForTheUser()
    {
        QFile file(QStringLiteral("secrets"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("1100:no\n100:colon:inside\n");
        file.close();
        QString fault;
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
        QCOMPARE(fileCredentials(cUser, file.fileName(), &fault).password, QStringLiteral("colon:inside"));
        QCOMPARE(fault, QString());
        fileCredentials(QStringLiteral("200"), file.fileName(), &fault);
        QVERIFY(fault.contains(QStringLiteral("no line")));
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ReadOther));
        QCOMPARE(fileCredentials(cUser, file.fileName(), &fault).password, QString());
        QVERIFY(fault.contains(QStringLiteral("open to other users")));
        fileCredentials(cUser, QStringLiteral("absent"), &fault);
        QVERIFY(fault.startsWith(QStringLiteral("cannot read")));
    }

    void whatIsNoFileOfOnesOwnIsNotRead()
    {
        QString fault;
        // Nobody ever writes into this pipe.
        QCOMPARE(::mkfifo("pipe", S_IRUSR | S_IWUSR), 0);
        QCOMPARE(fileCredentials(cUser, QStringLiteral("pipe"), &fault).password, QString());
        QCOMPARE(fault, QStringLiteral("pipe is no file"));
        QString foreign = QStringLiteral("/etc/passwd");
        if (::geteuid() == 0) {
            QFile file(QStringLiteral("foreign"));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("100:secret\n") > 0);
            QCOMPARE(::fchown(file.handle(), 65534, 65534), 0);
            QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
            foreign = file.fileName();
        }
        QCOMPARE(fileCredentials(cUser, foreign, &fault).password, QString());
        QCOMPARE(fault, foreign + QStringLiteral(" is another user's"));
    }

private:
    const QString cUser = QStringLiteral("100");
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Credentials, Appless)
#include "tst_Credentials.moc"
