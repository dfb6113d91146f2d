#include "client/ContactBook.h"
#include "screen/WindowProbe.h"

#include "host/panes/ClientTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

/// Somebody who is no contact calls: the row in the list of contacts has name and head from then on.
class tst_StrangerCalls : public ClientTest
{
    Q_OBJECT

public:
    // The module is not there, the list of calls is.
    tst_StrangerCalls() : ClientTest(Begin::SignedIn) {}

private slots:
    void callMakesTheStrangerKnownAtOnce()
    {
        QCOMPARE(WindowProbe::text(row(), "lblName"), cStranger);
        QCOMPARE(WindowProbe::text(row(), "lblDetail"), QStringLiteral("not a contact · Calls you back"));
        const QImage head = picture();
        QTest::keyClicks(search(), QStringLiteral("hmm"));
        QVERIFY(!row()->isVisible());
        QVERIFY(WindowProbe::isShown(m_pWindow.get(), "lblNoMatch"));
        ring(cStranger);
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
        ring(cStranger);
        end();
        start();
        QCOMPARE(WindowProbe::text(row(), "lblName"), QStringLiteral("韩梅梅"));
        // Still, she is no contact.
        QVERIFY(!m_pBook->isFriend(m_pBook->jidOf(cStranger)));
    }

    void strangerWhomTheUserCallsStaysOne()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, cStranger, qint32(26), true, false, qint64(0)));
        end();
        start();
        QCOMPARE(WindowProbe::text(row(), "lblName"), cStranger);
    }

private:
    const QString cStranger = QStringLiteral("30010007");

    QWidget *row() const { return m_pWindow->findChild<QWidget *>(cStranger); }
    QImage picture() const
    {
        return row()->findChild<QLabel *>(QStringLiteral("lblHead"))->pixmap(Qt::ReturnByValue).toImage();
    }
    QLineEdit *search() const { return m_pWindow->findChild<QLineEdit *>(QStringLiteral("editSearch")); }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StrangerCalls, Widgets)
#include "tst_StrangerCalls.moc"
