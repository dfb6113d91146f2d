// What the user's clicks in the call window do, and the ways in which it closes.

#include "CallWindowTest.h"
#include "widgets/PushButtonEx.h"
#include "widgets/SymbolButton.h"

#include <QApplication>
#include <QSignalSpy>

class tst_VoipWidgetClicks : public CallWindowTest
{
    Q_OBJECT

private slots:
    void micClickTogglesAndSendsTheInverse();
    void speakerClickTogglesAndSendsTheInverse();
    void cameraClickSendsTheFlagItself();
    void muteAllClickMutesEveryRowAndSendsOnce();
    void addMemberClickIsSent();
    void hangUpClickIsSentAndTheWindowStays();
    void cancelClickSendsHangUpTwice();
    void listSignalsAreForwarded();

    void closeSendsItsSignalsInOrder_data();
    void closeSendsItsSignalsInOrder();
    void closingAHiddenWindowDoesNotCountForQuit();
    void confirmedCloseButtonCloses();
    void cancelledCloseButtonLeavesTheCall();
    void callThatEndsUnderTheOpenQuestionIsHarmless();
    void userOfflineCloses();

    void clicksAreLogged();
};

void tst_VoipWidgetClicks::micClickTogglesAndSendsTheInverse()
{
    startCall(CVoipWidget::Voice, true);
    showWindow();
    const auto *pMic = part<SymbolButton>("btnMic");
    click("btnMic");
    QCOMPARE(m_sent, QStringList{"mic-"});
    QCOMPARE(pMic->symbol(), SymbolButton::Symbol::MicrophoneOff);
    QCOMPARE(pMic->toolTip(), QStringLiteral("openmic"));
    click("btnMic");
    QCOMPARE(m_sent, (QStringList{"mic-", "mic+"}));
    QCOMPARE(pMic->symbol(), SymbolButton::Symbol::Microphone);
    QCOMPARE(pMic->toolTip(), QStringLiteral("closemic"));
}

void tst_VoipWidgetClicks::speakerClickTogglesAndSendsTheInverse()
{
    startCall(CVoipWidget::Voice, true);
    showWindow();
    const auto *pSpeaker = part<SymbolButton>("btnSpeaker");
    click("btnSpeaker");
    QCOMPARE(m_sent, QStringList{"speaker-"});
    QCOMPARE(pSpeaker->symbol(), SymbolButton::Symbol::SpeakerOff);
    QCOMPARE(pSpeaker->toolTip(), QStringLiteral("openvioce"));
    click("btnSpeaker");
    QCOMPARE(m_sent, (QStringList{"speaker-", "speaker+"}));
    QCOMPARE(pSpeaker->symbol(), SymbolButton::Symbol::Speaker);
    QCOMPARE(pSpeaker->toolTip(), QStringLiteral("silence"));
}

void tst_VoipWidgetClicks::cameraClickSendsTheFlagItself()
{
    const auto *pCamera = part<SymbolButton>("btnCamera");
    QCOMPARE(pCamera->symbol(), SymbolButton::Symbol::Camera);
    part<QPushButton>("btnCamera")->click();
    QCOMPARE(m_sent, QStringList{"camera-"});
    QCOMPARE(pCamera->symbol(), SymbolButton::Symbol::CameraOff);
    part<QPushButton>("btnCamera")->click();
    QCOMPARE(m_sent, (QStringList{"camera-", "camera+"}));
    QCOMPARE(pCamera->symbol(), SymbolButton::Symbol::Camera);
}

void tst_VoipWidgetClicks::muteAllClickMutesEveryRowAndSendsOnce()
{
    startCall(CVoipWidget::Conference, true);
    showWindow();
    const auto *pMuteAll = part<SymbolButton>("btnMuteAll");
    click("btnMuteAll");
    QCOMPARE(m_sent, QStringList{"muteall+"});
    QVERIFY(rows()->index(0, 0).data(ROLE_MUTED).toBool());
    QVERIFY(rows()->index(1, 0).data(ROLE_MUTED).toBool());
    QCOMPARE(pMuteAll->symbolColor(), QColor(255, 96, 88));
    QCOMPARE(pMuteAll->toolTip(), QStringLiteral("取消全体静音"));
    click("btnMuteAll");
    QCOMPARE(m_sent, (QStringList{"muteall+", "muteall-"}));
    QVERIFY(!rows()->index(1, 0).data(ROLE_MUTED).toBool());
    QCOMPARE(pMuteAll->symbolColor(), QColor(184, 184, 184));
    QCOMPARE(pMuteAll->toolTip(), QStringLiteral("全体静音"));
}

void tst_VoipWidgetClicks::addMemberClickIsSent()
{
    startCall(CVoipWidget::Conference);
    showWindow();
    click("btnAddMember");
    QCOMPARE(m_sent, QStringList{"add"});
    QCOMPARE(rows()->rowCount(), 2);
}

void tst_VoipWidgetClicks::hangUpClickIsSentAndTheWindowStays()
{
    startCall(CVoipWidget::Voice, true);
    showWindow();
    click("HangUp");
    QCOMPARE(m_sent, QStringList{"hangup"});
    QVERIFY(m_pWindow->isVisible());
}

void tst_VoipWidgetClicks::cancelClickSendsHangUpTwice()
{
    startCall(CVoipWidget::Voice);
    showWindow();
    click("btnCancelCall");
    QCOMPARE(m_sent, (QStringList{"hangup", "mic+", "speaker+", "hangup", "clear"}));
    QVERIFY(!m_pWindow->isVisible());
}

void tst_VoipWidgetClicks::listSignalsAreForwarded()
{
    auto *pList = part<CConferenceListView>("listView");
    emit pList->signal_RemoveUser(uid("ann"));
    emit pList->signal_MuteUser(uid("bob"), true);
    emit pList->signal_MuteUser(uid("bob"), false);
    emit pList->signal_ReInviteConfUser(uid("cat"));
    QCOMPARE(m_sent, (QStringList{"remove ann", "mute bob+", "mute bob-", "reinvite cat"}));
}

void tst_VoipWidgetClicks::closeSendsItsSignalsInOrder_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("shown") << true;
    QTest::newRow("never shown") << false;
}

void tst_VoipWidgetClicks::closeSendsItsSignalsInOrder()
{
    QFETCH(bool, shown);
    startCall(CVoipWidget::Voice);
    if (shown)
        showWindow();
    m_pWindow->close();
    QCOMPARE(m_sent, (QStringList{"mic+", "speaker+", "hangup", "clear"}));
    QCOMPARE(text("lblUserName"), QString());
}

void tst_VoipWidgetClicks::closingAHiddenWindowDoesNotCountForQuit()
{
    const QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
    m_pWindow->close();
    showWindow();
    QVERIFY(!m_pWindow->testAttribute(Qt::WA_QuitOnClose));
    m_pWindow->close();
    QCOMPARE(lastClosed.count(), 0);
}

void tst_VoipWidgetClicks::confirmedCloseButtonCloses()
{
    startCall(CVoipWidget::Voice, true);
    showWindow();
    QStringList words;
    answerQuestion("acceptBtn", [&words] {
        const QWidget *pQuestion = QApplication::activeModalWidget();
        for (const char *name : {"titlelabel", "msgLabel"})
            words.append(pQuestion->findChild<QLabel *>(QLatin1String(name))->text());
        for (const char *name : {"acceptBtn", "closeBtn"})
            words.append(pQuestion->findChild<PushButtonEx *>(QLatin1String(name))->text());
    });
    click("btnClose");
    QCOMPARE(words, (QStringList{"tip", "beSureToCloseCalling", "sure", "cancel"}));
    QVERIFY(!m_pWindow->isVisible());
    QCOMPARE(m_sent, (QStringList{"mic+", "speaker+", "hangup", "clear"}));
}

void tst_VoipWidgetClicks::cancelledCloseButtonLeavesTheCall()
{
    startCall(CVoipWidget::Voice, true);
    showWindow();
    answerQuestion("closeBtn");
    click("btnClose");
    QVERIFY(m_pWindow->isVisible());
    QCOMPARE(m_sent, QStringList());
    QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音通话"));
}

void tst_VoipWidgetClicks::callThatEndsUnderTheOpenQuestionIsHarmless()
{
    startCall(CVoipWidget::Voice, true);
    showWindow();
    answerQuestion("acceptBtn", [this] { m_pWindow->UserOffline(); });
    click("btnClose");
    QVERIFY(!m_pWindow->isVisible());
    QCOMPARE(m_sent.count("clear"), 2);
}

void tst_VoipWidgetClicks::userOfflineCloses()
{
    startCall(CVoipWidget::Conference, true);
    showWindow();
    m_pWindow->UserOffline();
    QVERIFY(!m_pWindow->isVisible());
    QCOMPARE(m_sent, (QStringList{"mic+", "speaker+", "hangup", "clear"}));
    QCOMPARE(rows()->rowCount(), 0);
}

void tst_VoipWidgetClicks::clicksAreLogged()
{
    for (const char *name : {"btnMic", "btnSpeaker", "btnCamera", "HangUp"})
        part<QPushButton>(name)->click();
    answerQuestion("closeBtn");
    part<QPushButton>("btnClose")->click();
    part<QPushButton>("btnCancelCall")->click();
    const QStringList expected{
        "VoipWidget.cpp: click mic button!",     "VoipWidget.cpp: setmic bMute = 1",
        "VoipWidget.cpp: click speaker button!", "VoipWidget.cpp: set speaker bMute = 1",
        "VoipWidget.cpp: click camera button!",  "VoipWidget.cpp: set camera bEnable = 0",
        "VoipWidget.cpp: click hangup button!",  "VoipWidget.cpp: click close button!",
        "VoipWidget.cpp: cancel button click!",
    };
    QCOMPARE(newRecords().mid(0, expected.size()), expected);
}

QTEST_MAIN(tst_VoipWidgetClicks)

#include "tst_VoipWidgetClicks.moc"
