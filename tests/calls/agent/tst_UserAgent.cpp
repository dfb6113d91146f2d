// The telephone by itself, where no exchange is reached.

#include "calls/agent/UserAgent.h"
#include "calls/settings/CallsSettings.h"
#include "calls/sound/Tones.h"

#include "fakes/Patience.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class tst_UserAgent : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        std::string fault;
        QVERIFY2(m_settings.read({}, &fault), fault.c_str());
        m_access.servers = QStringList{QStringLiteral("sip:localhost:1;transport=tls")};
        m_access.domain = QStringLiteral("voice.test");
    }

    void userOfADomainThatIsNoneIsNotSignedIn_data()
    {
        QTest::addColumn<QString>("domain");
        QTest::addColumn<QString>("server");
        QTest::newRow("no domain") << QStringLiteral("two words>") << QStringLiteral("sip:localhost:1;transport=tls");
        QTest::newRow("bare IPv6") << QStringLiteral("fd00::1") << QStringLiteral("sip:localhost:1;transport=tls");
        QTest::newRow("no server") << QStringLiteral("voice.test") << QStringLiteral("no server>");
    }

    void userOfADomainThatIsNoneIsNotSignedIn()
    {
        QFETCH(QString, domain);
        QFETCH(QString, server);
        m_access.domain = domain;
        m_access.servers = QStringList{server};
        UserAgent agent(m_settings, m_access, m_folder->path());
        QSignalSpy lost(&agent, &UserAgent::registrationLost);
        QString error;
        QVERIFY2(agent.start(&error), qPrintable(error));
        agent.signIn(QStringLiteral("100"), QStringLiteral("Nick"), {QStringLiteral("100"), QStringLiteral("secret")});
        QTRY_VERIFY_WITH_TIMEOUT(!lost.isEmpty(), cPatienceMs);
        QVERIFY(!agent.isRegistered());
        agent.call(QStringLiteral("200"));
        agent.stop();
    }

    void fileThatCannotBeUsedIsNamed_data()
    {
        QTest::addColumn<bool>("played");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("told");
        QTest::newRow("none to play") << true << "%1/none.wav"
                                      << "sound/wav-in is %1/none.wav: No such file or directory";
        QTest::newRow("a folder to play") << true << "%1"
                                          << "sound/wav-in is %1: no WAV file";
        QTest::newRow("text to play") << true << "%1/text.wav"
                                      << "sound/wav-in is %1/text.wav: no WAV file";
        QTest::newRow("a pipe to play") << true << "%1/pipe"
                                        << "sound/wav-in is %1/pipe: no WAV file";
        QTest::newRow("nowhere to write") << false << "%1/none/heard.wav"
                                          << "sound/wav-out is %1/none/heard.wav: No such file or directory";
        QTest::newRow("a folder to write") << false << "%1"
                                           << "sound/wav-out is %1: Is a directory";
    }

    void fileThatCannotBeUsedIsNamed()
    {
        QFETCH(bool, played);
        QFETCH(QString, file);
        QFETCH(QString, told);
        QFile text(m_folder->filePath(QStringLiteral("text.wav")));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no sound at all") > 0);
        QCOMPARE(::mkfifo(qPrintable(m_folder->filePath(QStringLiteral("pipe"))), S_IRUSR | S_IWUSR), 0);
        (played ? m_settings.wavIn : m_settings.wavOut) = file.replace("%1", m_folder->path()).toStdString();
        UserAgent agent(m_settings, m_access, m_folder->path());
        QString error;
        QVERIFY(!agent.start(&error));
        QCOMPARE(error, told.replace("%1", m_folder->path()));
    }

    void whatHasNotStartedTakesEveryWordAndMayStartLater()
    {
        const QString voice = m_folder->filePath(QStringLiteral("voice.wav"));
        const QString heard = m_folder->filePath(QStringLiteral("heard.wav"));
        m_settings.wavIn = voice.toStdString();
        m_settings.wavOut = heard.toStdString();
        UserAgent agent(m_settings, m_access, m_folder->path());
        QSignalSpy lost(&agent, &UserAgent::registrationLost);
        QString error;
        QVERIFY(!agent.start(&error));
        agent.takeExchange();
        agent.signIn(QStringLiteral("100"), QStringLiteral("Nick"), {QStringLiteral("100"), QStringLiteral("secret")});
        QCOMPARE(lost.size(), 1);
        agent.loseExchange();
        QVERIFY(!agent.call(QStringLiteral("200")));
        agent.accept();
        agent.refuse(true);
        agent.playFailure({SipStatus::cBusy, false, QString()});
        agent.setVolume(Loudness::Side::Speaker, 5);
        agent.end();
        agent.signOut();
        QVERIFY(writeTone(voice, cRingBackTone, 1));
        QVERIFY2(agent.start(&error), qPrintable(error));
        QCOMPARE(error, QString());
        QVERIFY2(!QFile::exists(heard), "a file for sound that nobody has heard");
        agent.stop();
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    CallsSettings m_settings;
    ExchangeAccess m_access;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_UserAgent, Guiless)
#include "tst_UserAgent.moc"
