// The telephone by itself, where no exchange is reached.

#include "calls/agent/UserAgent.h"
#include "calls/settings/CallsSettings.h"

#include "fakes/Patience.h"

#include <QTemporaryDir>
#include <QtTest>

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

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    CallsSettings m_settings;
    ExchangeAccess m_access;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_UserAgent, Guiless)
#include "tst_UserAgent.moc"
