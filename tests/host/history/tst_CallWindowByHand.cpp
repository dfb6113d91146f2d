#include "screen/ScreenKeys.h"
#include "screen/ScreenPointer.h"

#include "host/history/ByHandTest.h"
#include "host/panes/Deeds.h"

#include <QProcess>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolTip>

/// What stands on the screen while a person is in a call: its window, what lies over that, and what cannot be pressed.
class tst_CallWindowByHand : public ByHandTest
{
    Q_OBJECT

private slots:
    void numberThatIsDialledIsTheNameInTheCallWindow()
    {
        QString name;
        QSignalSpy ended(&m_pSession->calls(), &CallWatch::ended);
        const auto look = connect(&m_pSession->calls(), &CallWatch::began, this,
                                  [&name] { name = WindowProbe::text(WindowProbe::callWindow(), "lblUserName"); });
        m_pWindow->findChild<QWidget *>(QStringLiteral("editNumber"))->setFocus();
        ScreenKeys keys;
        QVERIFY(keys.type(QStringLiteral("4711")) && keys.enter());
        QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, cPatienceMs);
        disconnect(look);
        QCOMPARE(name, QStringLiteral("4711(not a contact)"));
    }

    void tipOfADisabledPhoneSaysWhy()
    {
        QVERIFY(pressContact("30010004"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pSession->calls().hasCall() && WindowProbe::callWindow()->isVisible(), cPatienceMs);
        auto *phone = m_pWindow->findChild<QWidget *>(QStringLiteral("30010002"))
                          ->findChild<QWidget *>(QStringLiteral("btnCall"));
        m_hand.hover([phone] { return WindowProbe::Spot{phone, phone->rect().center()}; });
        QVERIFY(QTest::qWaitFor([this] { return m_hand.isIdle(); }, cPatienceMs));
        QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QStringLiteral("You are in a call. End it first."), cPatienceMs);
        m_hand.rest();
        QVERIFY(pressInCallWindow("btnCancelCall"));
    }

    void emptyVideoCallIsExplained()
    {
        QVERIFY(press([this] {
            return WindowProbe::button(m_pWindow->findChild<QWidget *>(QStringLiteral("30010001")), "btnVideo");
        }));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->videoCard().isVisible(), cPatienceMs);
        QCOMPARE(WindowProbe::text(&m_pWindow->videoCard(), "lblName"), QStringLiteral("李雷"));
        QVERIFY(WindowProbe::callWindow()->geometry().contains(m_pWindow->videoCard().geometry()));
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::button(WindowProbe::callWindow(), "HangUp").widget != nullptr,
                                 cPatienceMs);
        QVERIFY(m_pWindow->videoCard().isVisible());
        QVERIFY(pressInCallWindow("HangUp"));
        QTRY_VERIFY_WITH_TIMEOUT(!m_pWindow->videoCard().isVisible(), cPatienceMs);
        // A voice call shows a head of its own.
        QVERIFY(pressContact("30010004"));
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::callWindow()->isVisible(), cPatienceMs);
        QVERIFY(!m_pWindow->videoCard().isVisible());
        QVERIFY(pressInCallWindow("btnCancelCall"));
    }

    void callWindowIsBroughtBack_data()
    {
        QTest::addColumn<bool>("minimised");
        QTest::addColumn<bool>("byStatusLine");
        QTest::newRow("minimised, by the row") << true << false;
        QTest::newRow("minimised, by the status line") << true << true;
        QTest::newRow("behind, by the row") << false << false;
        QTest::newRow("behind, by the status line") << false << true;
    }

    void callWindowIsBroughtBack()
    {
        QFETCH(bool, minimised);
        QFETCH(bool, byStatusLine);
        QVERIFY(pressContact("30010004"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pSession->calls().hasCall() && WindowProbe::callWindow()->isActiveWindow(),
                                 cPatienceMs);
        QWidget *call = WindowProbe::callWindow();
        if (minimised) {
            QCOMPARE(QProcess::execute(QStringLiteral("xdotool"),
                                       {QStringLiteral("windowminimize"), QString::number(call->winId())}),
                     0);
            QTRY_VERIFY_WITH_TIMEOUT(call->isMinimized(), cPatienceMs);
        }
        m_pWindow->comeToFront();
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->isActiveWindow(), cPatienceMs);
        const QWidget *bar = m_pWindow->statusBar();
        Deeds deeds({Deeds::again(
            [this, byStatusLine, bar] {
                return byStatusLine ? Deeds::clickOn(*bar, QPoint(20, bar->height() / 2))
                                    : Deeds::clickOn(*m_pTable->viewport(), middle(0).place);
            },
            [call] { return call->isActiveWindow() && !call->isMinimized(); })});
        QVERIFY(deeds.finish());
        QVERIFY(pressInCallWindow("btnCancelCall"));
    }

    void conferenceInACallIsRefusedBeforePicking()
    {
        QVERIFY(pressContact("30010004"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pSession->calls().hasCall() && WindowProbe::callWindow()->isVisible(), cPatienceMs);
        const auto *button = m_pWindow->findChild<QWidget *>(QStringLiteral("btnConference"));
        ScreenPointer pointer;
        pointer.moveTo(button->mapToGlobal(button->rect().center()));
        pointer.click(Qt::LeftButton);
        QVERIFY(pressInCallWindow("btnCancelCall"));
        QVERIFY(WindowProbe::memberPicker() == nullptr);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallWindowByHand, Widgets)
#include "tst_CallWindowByHand.moc"
