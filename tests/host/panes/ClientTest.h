#pragma once

// The world of a test class whose every function wants the client's window: made anew for each function. Its session
// has no plug-in loaded, what comes from that is delivered by hand. Derive the test class from ClientTest; slots init()
// and cleanup() of its own call these. GUI thread.

#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "session/HostSession.h"

#include "common/CLogManger.h"
#include "fakes/Patience.h"
#include "model/SystemSetData.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QCoreApplication>
#include <QFile>
#include <QObject>
#include <QTest>

#include <memory>

class ClientTest : public QObject
{
    Q_OBJECT

protected:
    /// What a session begins with.
    enum class Begin
    {
        Online,  ///< connected, of a user whose settings and calls are nowhere read
        SignedIn ///< the user's settings are read, store and list of calls are open; not connected
    };

    explicit ClientTest(Begin begin = Begin::Online) : m_begin(begin) {}

protected slots:
    void initTestCase()
    {
        // The log keeps for good the writer that it first finds, and each session brings its own.
        CLogManger::instance();
    }
    void init() { start(); }
    void cleanup()
    {
        end();
        if (m_begin == Begin::SignedIn) {
            // What the user has set and who has called is of one function.
            const SystemSetData *settings = SystemSetData::instance();
            for (const QString &file : {settings->m_strUserConfigPath, settings->m_strAppInfoPath,
                                        settings->m_strUserFolder + QStringLiteral("/callHistory.db")}) {
                QFile::remove(file);
            }
        }
    }

protected:
    /// Makes contacts, session and window.
    void start()
    {
        m_pBook = std::make_unique<ContactBook>(QStringLiteral("example.org"));
        m_pSession = std::make_unique<HostSession>(*m_pBook);
        if (m_begin == Begin::SignedIn) {
            QString error;
            QVERIFY(!m_pSession->start(QStringLiteral("/no/module.so"), &error));
        } else {
            m_pSession->setOnline(true);
        }
        openWindow();
    }
    void openWindow()
    {
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, *m_pBook);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
    }

    /// Ends them. What was kept in files stays.
    void end()
    {
        m_pWindow.reset();
        m_pSession.reset();
        m_pBook.reset();
    }

    /// Gives the payload as the client leaves it.
    QByteArray deliver(EMsgId msgId, const QString &receiver, const QByteArray &payload)
    {
        BaseEvent event(msgId, voipPluginId(), receiver, false, payload);
        QCoreApplication::sendEvent(&m_pSession->mailbox(), &event);
        return event.data;
    }

    /// A call of that user comes in.
    void ring(const QString &strUid, bool bConference = false, bool bVideo = false)
    {
        deliver(MSG_RECEVIE_VOIP_CALL, sessionPluginId(), packPayload(strUid, bConference, bVideo));
    }

    /// The call that ring() has begun with Anna Novak ends.
    void missCall()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010006"), qint32(21), false, false, qint64(0)));
    }

    std::unique_ptr<ContactBook> m_pBook;
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<MainWindow> m_pWindow;

private:
    const Begin m_begin;
};
