#pragma once

// The world of a test class whose every function wants the client's window: made anew for each function. Its session
// has no plug-in loaded, what comes from that is delivered by hand. Derive the test class from ClientTest; a slot
// init() of its own calls this one first. GUI thread.

#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "session/HostSession.h"

#include "common/CLogManger.h"
#include "fakes/Patience.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QCoreApplication>
#include <QObject>
#include <QTest>

#include <memory>

class ClientTest : public QObject
{
    Q_OBJECT

protected slots:
    void initTestCase()
    {
        // The log keeps for good the writer that it first finds, and each session brings its own.
        CLogManger::instance();
    }
    void init()
    {
        m_pSession = std::make_unique<HostSession>(m_book);
        m_pSession->setOnline(true);
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, m_book);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
    }
    void cleanup()
    {
        m_pWindow.reset();
        m_pSession.reset();
    }

protected:
    /// Gives the payload as the client leaves it.
    QByteArray deliver(EMsgId msgId, const QString &receiver, const QByteArray &payload)
    {
        BaseEvent event(msgId, voipPluginId(), receiver, false, payload);
        QCoreApplication::sendEvent(&m_pSession->mailbox(), &event);
        return event.data;
    }

    /// A call of that user comes in.
    void ring(const QString &strUid)
    {
        deliver(MSG_RECEVIE_VOIP_CALL, sessionPluginId(), packPayload(strUid, false, false));
    }

    /// The call that ring() has begun with Anna Novak ends.
    void missCall()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010006"), qint32(21), false, false, qint64(0)));
    }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<MainWindow> m_pWindow;
};
