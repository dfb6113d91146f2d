// The ways in which the call window closes, in every state of a call, and what the next call finds.

#include "CallWindowTest.h"

#include <QApplication>
#include <QSignalSpy>
#include <QStackedWidget>

namespace {

enum State
{
    NoCall,
    VoiceOutgoing,
    VoiceIncoming,
    VoiceConnected,
    VoiceDropped,
    Video,
    VideoConnected,
    ConferenceMine,
    ConferenceJoined,
    ConferenceTalking,
    cStates
};

const char *const cStateNames[cStates] = {
    "no call", "voice outgoing",  "voice incoming",  "voice connected",   "voice dropped",
    "video",   "video connected", "conference mine", "conference joined", "conference connected"};

enum Way
{
    CloseCall,
    Offline,
    CloseButton,
    CancelButton,
    cWays
};

const char *const cWayNames[cWays] = {"close", "user offline", "close button", "cancel button"};

} // namespace

class tst_VoipWidgetClose : public CallWindowTest
{
    Q_OBJECT

private:
    /// Sets up and shows a call with that peer, or a conference of the peer and bob.

    void enter(State state, const QString &strPeer = QStringLiteral("ann"))
    {
        const QList<QString> users{strPeer, uid("bob")};
        switch (state) {
        case VoiceOutgoing:
        case VoiceConnected:
        case VoiceDropped:
            m_pWindow->setVoipCallInfo(users, CVoipWidget::Voice, true, false);
            break;
        case VoiceIncoming:
            m_pWindow->setVoipCallInfo(users, CVoipWidget::Voice, false, false);
            break;
        case Video:
        case VideoConnected:
            m_pWindow->setVoipCallInfo(users, CVoipWidget::Video, true, false);
            break;
        case ConferenceMine:
        case ConferenceTalking:
            m_pWindow->setVoipCallInfo(users, CVoipWidget::Conference, true, false);
            break;
        case ConferenceJoined:
            m_pWindow->setVoipCallInfo(users, CVoipWidget::Conference, false, false);
            break;
        default:
            break;
        }
        showWindow();
        if (state == VoiceConnected || state == VoiceDropped || state == VideoConnected || state == ConferenceTalking) {
            m_pWindow->setVoipCallStatus(true);
        }
        if (state == VoiceDropped) {
            m_pWindow->setVoipCallStatus(false);
        }
    }

    /// What the window shows, part by part, but for the clock's label.

    QStringList shown() const
    {
        QStringList parts{m_pWindow->windowTitle()};
        for (const char *name : {"displayPane", "controlPane"}) {
            parts << QString::number(part<QStackedWidget>(name)->currentIndex());
        }
        for (const char *name : {"lblVoipTipMsg", "lblListCount", "lblUserName", "lblStatus"}) {
            parts << text(name);
        }
        for (const char *name : {"btnMic", "btnSpeaker", "btnCamera", "btnMuteAll", "btnAddMember", "btnCancelCall"}) {
            parts << QLatin1String(name) + QString::number(part<QWidget>(name)->isHidden()) + button(name)->text() +
                         part<QWidget>(name)->toolTip() + glyphColor(name).name();
        }
        for (int i = 0; i < rows()->rowCount(); ++i) {
            for (const int iRole : {ROLE_USER_ID, ROLE_DISPLAY_NAME, ROLE_CALL_STATUS, ROLE_IS_CREATOR, ROLE_MUTED}) {
                parts << rows()->index(i, 0).data(iRole).toString();
            }
        }
        return parts;
    }

private slots:
    void everyStateClosesWithTheSameSignals_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("way");
        for (int iState = 0; iState < cStates; ++iState) {
            for (int iWay = 0; iWay < cWays; ++iWay) {
                QTest::addRow("%s, %s", cStateNames[iState], cWayNames[iWay]) << iState << iWay;
            }
        }
    }

    void everyStateClosesWithTheSameSignals()
    {
        QFETCH(int, state);
        QFETCH(int, way);
        const QStringList close{"mic+", "speaker+", "hangup", "clear"};
        enter(State(state));
        m_sent.clear();
        switch (way) {
        case CloseCall:
            m_pWindow->close();
            QCOMPARE(m_sent, close);
            break;
        case Offline:
            m_pWindow->UserOffline();
            QCOMPARE(m_sent, close);
            break;
        case CloseButton:
            answerQuestion("acceptBtn");
            press("btnClose");
            QCOMPARE(m_sent, close);
            break;
        case CancelButton:
            press("btnCancelCall");
            QCOMPARE(m_sent, QStringList{"hangup"} + close);
            break;
        }
        QVERIFY(!m_pWindow->isVisible());
        for (const char *name : {"lblVoipTipMsg", "lblListCount", "currentPlayTimeLabel", "lblUserName", "lblStatus"}) {
            QVERIFY2(text(name).isEmpty(), name);
        }
        QCOMPARE(rows()->rowCount(), 0);
    }

    void windowIsEmptyWhenTheCloseIsTold()
    {
        startCall(CVoipWidget::Voice);
        startCall(CVoipWidget::Conference);
        QStringList left{QStringLiteral("nothing sent")};
        connect(m_pWindow.get(), &CVoipWidget::signal_HangupCurrentCall, this, [&] {
            left.clear();
            for (const char *name : {"lblVoipTipMsg", "lblListCount", "lblStatus"}) {
                left += text(name);
            }
            left += QString::number(rows()->rowCount());
        });
        m_pWindow->close();
        QCOMPARE(left, (QStringList{QString(), QString(), QString(), QStringLiteral("0")}));
    }

    void secondCallFindsNothingLeftOver_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        for (const State first : {VoiceConnected, VideoConnected, ConferenceMine, ConferenceTalking, VoiceDropped}) {
            for (const State second : {VoiceOutgoing, VoiceIncoming, Video, ConferenceMine, ConferenceJoined}) {
                QTest::addRow("%s, then %s", cStateNames[first], cStateNames[second]) << int(first) << int(second);
            }
        }
    }

    void secondCallFindsNothingLeftOver()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")));
        enter(State(second));
        const QStringList fresh = shown();

        startAnew();
        m_pContacts->addContact(uid("zoe"), ContactFixture::card(uid("Zoe"), uid("Zoey")));
        enter(State(first), uid("zoe"));
        for (const char *name : {"btnMic", "btnSpeaker", "btnMuteAll"}) {
            press(name);
        }
        m_pWindow->setConferenceCreator(uid("zoe"));
        m_pWindow->close();
        m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")));
        enter(State(second));
        QCOMPARE(shown(), fresh);
        // What does stay, on purpose: once a call was connected the clock's label is there for good.
        QCOMPARE(part<QWidget>("currentPlayTimeLabel")->isHidden(), first == ConferenceMine);
    }

    void closingAHiddenWindowDoesNotCountForQuit()
    {
        const QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
        m_pWindow->close();
        showWindow();
        QVERIFY(!m_pWindow->testAttribute(Qt::WA_QuitOnClose));
        m_pWindow->close();
        QCOMPARE(lastClosed.count(), 0);
    }

    void confirmedCloseButtonCloses()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        QStringList words;
        answerQuestion("acceptBtn", [&words] { words = questionWords(); });
        click("btnClose");
        QCOMPARE(words, (QStringList{"tip", "beSureToCloseCalling", "sure", "cancel"}));
        QVERIFY(!m_pWindow->isVisible());
        QCOMPARE(m_sent, (QStringList{"mic+", "speaker+", "hangup", "clear"}));
    }

    void cancelledCloseButtonLeavesTheCall()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        answerQuestion("closeBtn");
        click("btnClose");
        QVERIFY(m_pWindow->isVisible());
        QCOMPARE(m_sent, QStringList());
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音通话"));
    }

    void callThatEndsUnderTheOpenQuestionIsHarmless()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        answerQuestion("acceptBtn", [this] { m_pWindow->UserOffline(); });
        click("btnClose");
        QVERIFY(!m_pWindow->isVisible());
        QCOMPARE(m_sent.count("clear"), 2);
    }

    void userOfflineCloses()
    {
        startCall(CVoipWidget::Conference, true);
        showWindow();
        m_pWindow->UserOffline();
        QVERIFY(!m_pWindow->isVisible());
        QCOMPARE(m_sent, (QStringList{"mic+", "speaker+", "hangup", "clear"}));
        QCOMPARE(rows()->rowCount(), 0);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetClose, Widgets)

#include "tst_VoipWidgetClose.moc"
