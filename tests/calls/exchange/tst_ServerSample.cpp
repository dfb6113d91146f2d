// The sample of a server's kamailio.cfg, run as it is but for the places of its files and its port: users sign in by a
// password of its table and by a token, and call each other.

#include "calls/exchange/EmbeddedExchange.h"
#include "calls/exchange/ExchangeCertificates.h"
#include "calls/exchange/SipClient.h"

#include "fakes/Patience.h"

#include <QMessageAuthenticationCode>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr const char *cDomain = "voice.example.org";
constexpr const char *cSecret = "secret-of-the-tokens";

QByteArray bytesOf(const QString &file)
{
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

} // namespace

class tst_ServerSample : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(ExchangeCertificates::make(m_folder.path(), &error), qPrintable(error));
        makeTable();
        QTcpServer free;
        QVERIFY(free.listen(QHostAddress::LocalHost, 0));
        const QByteArray port = QByteArray::number(free.serverPort());
        free.close();
        QByteArray text = bytesOf(VOIP_SERVER_SAMPLE);
        QVERIFY(!text.contains('@' + QByteArray("DOMAIN")) && text.contains("SERVER"));
        replace(&text, "0.0.0.0:5061", "127.0.0.1:" + port);
        replace(&text, "/etc/kamailio/voice.example.org.crt", m_folder.filePath("certificate.pem").toUtf8());
        replace(&text, "/etc/kamailio/voice.example.org.key", m_folder.filePath("key.pem").toUtf8());
        replace(&text, "sqlite:////var/lib/kamailio/kamailio.sqlite",
                "sqlite:///" + m_folder.filePath("users").toUtf8());
        replace(&text, "log_stderror=no", "log_stderror=yes");
        QFile configuration(m_folder.filePath("kamailio.cfg"));
        QVERIFY(configuration.open(QIODevice::WriteOnly) && configuration.write(text) == text.size());
        configuration.close();
        m_place = {"sip:localhost:" + port + ";transport=tls", m_folder.filePath("ca.pem"), cDomain, {}};
        m_server.setProcessChannelMode(QProcess::MergedChannels);
        m_server.start("/usr/sbin/kamailio", {"-f", configuration.fileName(), "-DD", "-E", "-m", "32", "-M", "8", "-Y",
                                              m_folder.path(), "-w", m_folder.path()});
        QVERIFY(m_server.waitForStarted(cPatienceMs));
        QVERIFY2(QTest::qWaitFor(
                     [&] {
                         return m_server.state() != QProcess::Running ||
                                SipClient(m_place, "x", "x").connectToExchange();
                     },
                     cPatienceMs) &&
                     m_server.state() == QProcess::Running,
                 m_server.readAll());
    }

    void cleanupTestCase()
    {
        m_server.terminate();
        QVERIFY(m_server.waitForFinished(cPatienceMs));
    }

    void signsInByThePasswordOfTheTable()
    {
        SipClient right(m_place, "anna", "annas");
        QVERIFY2(right.connectToExchange(), qPrintable(right.error()));
        QCOMPARE(right.registerUser(), 200);
        QCOMPARE(right.registerUser(60, "bert"), 403);
        SipClient wrong(m_place, "anna", "berts");
        QVERIFY(wrong.connectToExchange());
        QCOMPARE(wrong.registerUser(), 403);
        SipClient nobody(m_place, "carl", "carls");
        QVERIFY(nobody.connectToExchange());
        QVERIFY(nobody.registerUser() >= 400);
    }

    void signsInByATokenAsLongAsItHolds()
    {
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        SipClient dora(m_place, "dora", passwordOf(tokenOf("dora", now + 1000)));
        dora.signAs(tokenOf("dora", now + 1000));
        QVERIFY(dora.connectToExchange());
        QCOMPARE(dora.registerUser(), 200);
        SipClient late(m_place, "dora", passwordOf(tokenOf("dora", now - 1000)));
        late.signAs(tokenOf("dora", now - 1000));
        QVERIFY(late.connectToExchange());
        QVERIFY(late.registerUser() >= 400);
        SipClient forged(m_place, "dora", "guessed");
        forged.signAs(tokenOf("dora", now + 1000));
        QVERIFY(forged.connectToExchange());
        QVERIFY(forged.registerUser() >= 400);
        // A token is its user's alone.
        SipClient other(m_place, "anna", passwordOf(tokenOf("dora", now + 1000)));
        other.signAs(tokenOf("dora", now + 1000));
        QVERIFY(other.connectToExchange());
        QCOMPARE(other.registerUser(), 403);
        QCOMPARE(other.call("dora"), 403);
    }

    void carriesACallFromOneToTheOther()
    {
        const QByteArray token = tokenOf("emil", QDateTime::currentSecsSinceEpoch() + 1000);
        SipClient emil(m_place, "emil", passwordOf(token));
        emil.signAs(token);
        SipClient bert(m_place, "bert", "berts");
        QVERIFY(emil.connectToExchange() && bert.connectToExchange());
        QCOMPARE(emil.registerUser(), 200);
        QCOMPARE(bert.registerUser(), 200);
        emil.begin(emil.callTo("bert"));
        const SipMessage invitation = bert.next();
        QVERIFY2(invitation.firstLine.startsWith("INVITE sip:bert@"), invitation.firstLine);
        bert.answer(invitation, "486 Busy Here");
        QCOMPARE(emil.finish(), 486);
        QCOMPARE(emil.call("nobody"), 404);
    }

private:
    static void replace(QByteArray *text, const QByteArray &what, const QByteArray &with)
    {
        QVERIFY2(text->contains(what), what);
        text->replace(what, with);
    }

    static QByteArray tokenOf(const char *user, qint64 until) { return QByteArray::number(until) + ':' + user; }

    static QString passwordOf(const QByteArray &token)
    {
        return QString::fromLatin1(
            QMessageAuthenticationCode::hash(token, cSecret, QCryptographicHash::Sha1).toBase64());
    }

    /// The table as Kamailio's package makes it, with two users.
    void makeTable()
    {
        QSqlDatabase base = QSqlDatabase::addDatabase("QSQLITE");
        base.setDatabaseName(m_folder.filePath("users"));
        QVERIFY(base.open());
        QSqlQuery query(base);
        for (const char *script : {"standard", "auth_db"}) {
            const QByteArray text = bytesOf(QStringLiteral("/usr/share/kamailio/db_sqlite/%1-create.sql").arg(script));
            QVERIFY2(!text.isEmpty(), script);
            for (const QByteArray &statement : text.split(';')) {
                QVERIFY2(statement.trimmed().isEmpty() || query.exec(QString::fromUtf8(statement)),
                         qPrintable(query.lastError().text()));
            }
        }
        for (const char *user : {"anna", "bert"}) {
            const QByteArray secret = QByteArray(user) + ':' + cDomain + ':' + user + 's';
            QVERIFY(query.prepare("insert into subscriber (username, domain, ha1) values (?, ?, ?)"));
            query.addBindValue(user);
            query.addBindValue(cDomain);
            query.addBindValue(QString::fromLatin1(QCryptographicHash::hash(secret, QCryptographicHash::Md5).toHex()));
            QVERIFY2(query.exec(), qPrintable(query.lastError().text()));
        }
        base.close();
    }

    QTemporaryDir m_folder;
    QProcess m_server;
    ExchangePlace m_place;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ServerSample, Guiless)
#include "tst_ServerSample.moc"
