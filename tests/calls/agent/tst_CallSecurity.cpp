// What nobody gets from a call process: a door, a secret, plain sound, or an end.

#include "calls/CallsTest.h"
#include "calls/peers/Baresip.h"
#include "calls/peers/ScriptedPeer.h"

#include <QDirIterator>

class tst_CallSecurity : public CallsTest
{
    Q_OBJECT

private slots:
    void noPortIsOpen()
    {
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.arrive());
        const QStringList own = socketsOf(person.peer().process().processId());
        QVERIFY(!own.isEmpty());
        const QStringList open = openPorts();
        // The exchange's at least.
        QVERIFY(!open.isEmpty());
        for (const QString &socket : own) {
            QVERIFY2(!open.contains(socket), qPrintable(socket));
        }
    }

    void secretStandsNowhere()
    {
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.start());
        const QByteArray secret = TestExchange::secretOf(person.id()).toUtf8();
        // Half a line, and what is no command.
        person.peer().write("{\"messagetype\":\"RegeditUser\",\"param3\":\"" + secret + "\n");
        person.signIn(QString::fromUtf8(secret));
        QCOMPARE(person.hears(), QStringLiteral("17 true"));
        QVERIFY(!person.peer().trace().filter(QStringLiteral("RegeditUser")).isEmpty());
        for (const QString &remark : person.remarks()) {
            QVERIFY(!remark.contains(QString::fromUtf8(secret)));
        }
        const QString process = QStringLiteral("/proc/%1/").arg(person.peer().process().processId());
        QVERIFY(!contentOf(process + QStringLiteral("cmdline")).isEmpty());
        QVERIFY(!contentOf(process + QStringLiteral("cmdline")).contains(secret));
        QVERIFY(!contentOf(process + QStringLiteral("environ")).contains(secret));
        for (const QString &folder : {QDir::currentPath(), QDir::tempPath(), QDir::homePath()}) {
            QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString file = files.next();
                QVERIFY2(!contentOf(file).contains(secret), qPrintable(file));
            }
        }
    }

    void plainSoundIsNotTaken()
    {
        Baresip plain(m_exchange, QStringLiteral("300"), false);
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(plain.start() && person.arrive());
        person.say("CallUser", {QStringLiteral("300"), false});
        QCOMPARE(person.hears(), QStringLiteral("24"));
        QVERIFY(plain.call(person.id()));
        QVERIFY(plain.waitSaid(QStringLiteral("488")));
        // Nothing of that call was heard of here.
        person.say("CallUser", {QStringLiteral("300"), false});
        QCOMPARE(person.hears(), QStringLiteral("24"));
        QVERIFY(!person.remarks()
                     .filter(QStringLiteral("refused a call from 300: no common encryption or codec (488)"))
                     .isEmpty());
    }

    void encryptedTelephoneOfAnotherMakeCallsAndIsCalled_data()
    {
        QTest::addColumn<bool>("called");
        QTest::newRow("called") << true;
        QTest::newRow("calls") << false;
    }

    void encryptedTelephoneOfAnotherMakeCallsAndIsCalled()
    {
        QFETCH(bool, called);
        Baresip other(m_exchange, QStringLiteral("300"), true);
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(other.start() && person.arrive());
        QVERIFY(m_sound.listen(person.id()));
        if (called) {
            person.say("CallUser", {QStringLiteral("300"), false});
        } else {
            QVERIFY(other.call(person.id()));
            QCOMPARE(person.hears(), QStringLiteral("0 300"));
            person.say("AcceptCall");
        }
        QCOMPARE(person.hears(), QStringLiteral("18"));
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(person.id(), Baresip::cSpokenHz) > 2000, cPatienceMs);
    }

    void keysThatTheEndsAgreeOnThemselvesAreASetting()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        Person other(m_exchange, QStringLiteral("300"));
        caller.set(QStringLiteral("media/encryption"), QStringLiteral("zrtp"));
        called.set(QStringLiteral("media/encryption"), QStringLiteral("zrtp"));
        QVERIFY(caller.arrive() && called.arrive() && other.arrive());
        QVERIFY(m_sound.speak(caller.id(), 440) && m_sound.listen(called.id()));
        QVERIFY(connectCall(caller, called));
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(called.id(), 440) > 2000, cPatienceMs);
        caller.say("HangUpCall");
        QCOMPARE(called.hears(), QStringLiteral("8"));
        // Nothing falls back to the keys that pass through the exchange.
        caller.call(other);
        QCOMPARE(caller.hears(), QStringLiteral("24"));
        other.call(caller);
        QCOMPARE(other.hears(), QStringLiteral("24"));
    }

    void strangersRequestsEndNothing_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("message") << QStringLiteral("MESSAGE") << QByteArray("text/plain") << QByteArray("hello");
        QTest::newRow("message of another kind")
            << QStringLiteral("MESSAGE") << QByteArray("message/cpim") << QByteArray("\xFF\xFE\n\n<");
        QTest::newRow("subscription") << QStringLiteral("SUBSCRIBE") << QByteArray("text/plain") << QByteArray();
        QTest::newRow("notice") << QStringLiteral("NOTIFY") << QByteArray("application/simple-message-summary")
                                << QByteArray("x");
        QTest::newRow("reference") << QStringLiteral("REFER") << QByteArray("text/plain") << QByteArray();
        QTest::newRow("information") << QStringLiteral("INFO") << QByteArray("application/json") << QByteArray("{");
        QTest::newRow("question") << QStringLiteral("OPTIONS") << QByteArray("text/plain") << QByteArray();
        QTest::newRow("call without an offer that can be read")
            << QStringLiteral("INVITE") << QByteArray("application/sdp") << QByteArray("v=0\r\nm=audio x\r\n");
    }

    void strangersRequestsEndNothing()
    {
        QFETCH(QString, method);
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, body);
        Person person(m_exchange, QStringLiteral("100"));
        ScriptedPeer stranger(m_exchange, QStringLiteral("300"));
        QVERIFY(person.arrive() && stranger.connect());
        QVERIFY(stranger.request(method, person.id(), type, body) >= 200);
        // It lives, and its line is free.
        person.say("AcceptCall");
        QCOMPARE(person.hears(), QStringLiteral("4"));
    }

    void userOfAnotherDomainIsNotTakenForOneOfThis()
    {
        Person person(m_exchange, QStringLiteral("100"));
        ScriptedPeer stranger(m_exchange, QStringLiteral("300"));
        stranger.setFrom(QStringLiteral("300"), QStringLiteral("elsewhere.test"));
        QVERIFY(person.arrive() && stranger.connect());
        QCOMPARE(stranger.request(QStringLiteral("INVITE"), person.id(), "application/sdp", encryptedOffer()), 403);
    }

private:
    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The numbers of a process's sockets.
    static QStringList socketsOf(qint64 process)
    {
        QStringList numbers;
        const QDir folder(QStringLiteral("/proc/%1/fd").arg(process));
        for (const QString &name : folder.entryList(QDir::Files | QDir::System)) {
            const QString target = QFile::symLinkTarget(folder.filePath(name));
            const QRegularExpressionMatch match =
                QRegularExpression(QStringLiteral("socket:\\[(\\d+)\\]")).match(target);
            if (match.hasMatch()) {
                numbers << match.captured(1);
            }
        }
        return numbers;
    }

    /// The numbers of all sockets of the machine that listen, or take datagrams.
    static QStringList openPorts()
    {
        QStringList numbers;
        for (const char *table : {"tcp", "tcp6", "udp", "udp6"}) {
            const bool datagrams = table[0] == 'u';
            const QList<QByteArray> rows =
                contentOf(QStringLiteral("/proc/net/") + QLatin1String(table)).split('\n').mid(1);
            for (const QByteArray &row : rows) {
                const QList<QByteArray> fields = row.simplified().split(' ');
                if (fields.size() > 9 && (datagrams || fields.at(3) == "0A")) {
                    numbers << QString::fromUtf8(fields.at(9));
                }
            }
        }
        return numbers;
    }

    static QByteArray encryptedOffer()
    {
        return "v=0\r\no=- 1 1 IN IP4 127.0.0.1\r\ns=-\r\nc=IN IP4 127.0.0.1\r\nt=0 0\r\nm=audio 40000 RTP/SAVP 0\r\n"
               "a=crypto:1 AES_CM_128_HMAC_SHA1_80 inline:MDEyMzQ1Njc4OTAxMjM0NTY3ODkwMTIzNDU2Nzg5\r\n";
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallSecurity, Guiless)
#include "tst_CallSecurity.moc"
