#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"

#include "fakes/Patience.h"
#include "model/SystemSetData.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

/// Somebody who is no contact calls: the row in the list of contacts has name and head from then on.
class tst_StrangerCalls : public QObject
{
    Q_OBJECT

private slots:
    void init() { start(); }
    void cleanup()
    {
        end();
        // Who has called is remembered by the list of calls.
        QVERIFY(QFile::remove(SystemSetData::instance()->m_strUserFolder + QStringLiteral("/callHistory.db")));
    }

    void callMakesTheStrangerKnownAtOnce()
    {
        QCOMPARE(WindowProbe::text(row(), "lblName"), cStranger);
        QCOMPARE(WindowProbe::text(row(), "lblDetail"), QStringLiteral("not a contact · Calls you back"));
        const QImage head = picture();
        QTest::keyClicks(search(), QStringLiteral("hmm"));
        QVERIFY(!row()->isVisible());
        QVERIFY(WindowProbe::isShown(m_pWindow.get(), "lblNoMatch"));
        ring();
        QVERIFY(m_pWindow->prompt().isVisible());
        // The search finds her by the name that she has now.
        QVERIFY(row()->isVisible());
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "lblNoMatch"));
        QCOMPARE(WindowProbe::text(row(), "lblName"), QStringLiteral("韩梅梅"));
        QCOMPARE(WindowProbe::text(row(), "lblDetail"), QStringLiteral("30010007 · Calls you back"));
        QCOMPARE(row()->accessibleName(), QStringLiteral("韩梅梅, online"));
        QVERIFY(picture() != head);
        QTest::keyClick(search(), Qt::Key_Down);
        QCOMPARE(m_pWindow->focusWidget(), row());
    }

    void whoHasCalledIsKnownAfterARestart()
    {
        ring();
        end();
        start();
        QCOMPARE(WindowProbe::text(row(), "lblName"), QStringLiteral("韩梅梅"));
        // Still, she is no contact.
        QVERIFY(!m_pBook->isFriend(m_pBook->jidOf(cStranger)));
    }

    void strangerWhomTheUserCallsStaysOne()
    {
        BaseEvent event(MSG_CALL_FINISHED, voipPluginId(), sessionPluginId(), false,
                        packPayload(false, cStranger, qint32(26), true, false, qint64(0)));
        QCoreApplication::sendEvent(&m_pSession->mailbox(), &event);
        end();
        start();
        QCOMPARE(WindowProbe::text(row(), "lblName"), cStranger);
    }

private:
    const QString cStranger = QStringLiteral("30010007");

    void start()
    {
        m_pBook = std::make_unique<ContactBook>(HostSession::loginDomain());
        m_pSession = std::make_unique<HostSession>(*m_pBook);
        QString error;
        // The module is not there, the list of calls is.
        QVERIFY(!m_pSession->start(QStringLiteral("/no/module.so"), &error));
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, *m_pBook);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
    }
    void end()
    {
        m_pWindow.reset();
        m_pSession.reset();
        m_pBook.reset();
    }
    void ring()
    {
        BaseEvent event(MSG_RECEVIE_VOIP_CALL, voipPluginId(), sessionPluginId(), false,
                        packPayload(cStranger, false, false));
        QCoreApplication::sendEvent(&m_pSession->mailbox(), &event);
    }
    QWidget *row() const { return m_pWindow->findChild<QWidget *>(cStranger); }
    QImage picture() const
    {
        return row()->findChild<QLabel *>(QStringLiteral("lblHead"))->pixmap(Qt::ReturnByValue).toImage();
    }
    QLineEdit *search() const { return m_pWindow->findChild<QLineEdit *>(QStringLiteral("editSearch")); }

    std::unique_ptr<ContactBook> m_pBook;
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<MainWindow> m_pWindow;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StrangerCalls, Widgets)
#include "tst_StrangerCalls.moc"
