// The call window's plain operations, and its full screen.

#include "CallWindowTest.h"

#include "fakes/Patience.h"
#include "ui/CallWindowStyle.h"

#include <QScreen>
#include <QVBoxLayout>

class tst_VoipWidget : public CallWindowTest
{
    Q_OBJECT

private slots:
    void showBringsBackAMinimisedWindow()
    {
        m_pWindow->setWindowState(Qt::WindowMinimized);
        m_pWindow->show();
        QVERIFY(m_pWindow->isVisible());
        QCOMPARE(m_pWindow->windowState(), Qt::WindowStates(Qt::WindowNoState));
    }

    void hangUpMessageClearsDataOnly()
    {
        startCall(CVoipWidget::Conference, true);
        showWindow();
        m_pWindow->SetVoipCallHangUpMessage();
        QCOMPARE(m_sent, (QStringList{"mic+", "speaker+"}));
        QVERIFY(m_pWindow->isVisible());
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音会议通话中"));
        QCOMPARE(rows()->rowCount(), 2);
        // The members are forgotten: one that was there counts as new.
        m_pWindow->addConferenceMember(uid("cat"));
        QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(1)"));
    }

    void clearingPutsTheTogglesBack()
    {
        startCall(CVoipWidget::Conference, true);
        showWindow();
        for (const char *name : {"btnMic", "btnSpeaker", "btnMuteAll"}) {
            click(name);
        }
        press("btnCamera");
        m_sent.clear();

        m_pWindow->ClearCallInfoData();

        QCOMPARE(m_sent, (QStringList{"mic+", "speaker+"}));
        QCOMPARE(glyph("btnMic"), IconGlyph::MicOn);
        QCOMPARE(glyph("btnSpeaker"), IconGlyph::SpeakerOn);
        QCOMPARE(part<QWidget>("btnMuteAll")->toolTip(), QStringLiteral("全体静音"));
        // The camera's face is left as it was, only its flag is put back.
        QCOMPARE(glyph("btnCamera"), IconGlyph::CameraOff);
        m_sent.clear();
        for (const char *name : {"btnMic", "btnSpeaker", "btnMuteAll"}) {
            click(name);
        }
        press("btnCamera");
        QCOMPARE(m_sent, (QStringList{"mic-", "speaker-", "muteall+", "camera-"}));
    }

    void clearingTellsTheMicBeforeItTouchesTheSpeaker()
    {
        press("btnMic");
        press("btnSpeaker");
        newRecords();
        QStringList records;
        connect(m_pWindow.get(), &CVoipWidget::signal_SetMicEnable, this, [&] {
            QCOMPARE(glyph("btnMic"), IconGlyph::MicOn);
            QCOMPARE(glyph("btnSpeaker"), IconGlyph::SpeakerOff);
            records = newRecords();
        });
        m_pWindow->ClearCallInfoData();
        QCOMPARE(records, (QStringList{"VoipWidget.cpp: clear call info!", "VoipWidget.cpp: setmic bMute = 0"}));
        QCOMPARE(newRecords(), QStringList{"VoipWidget.cpp: set speaker bMute = 0"});
    }

    void fullScreenAndBack()
    {
        const QPoint home(400, 300);
        const QRect workArea = QGuiApplication::primaryScreen()->availableGeometry();
        // Without a window manager's own opinion on places beyond the screen.
        m_pWindow->setWindowFlag(Qt::X11BypassWindowManagerHint);
        m_pWindow->move(home);
        startCall(CVoipWidget::Voice, true);
        showWindow();
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->pos(), home, cPatienceMs);
        call("slot_WindowChangeButtonClicked");
        // The fixed size wins; the corner overshoots the work area.
        QCOMPARE(m_pWindow->geometry(), QRect(workArea.topLeft() - QPoint(4, 4), cWindowSize));
        QVERIFY(part<QWidget>("titleWidget")->isHidden());
        QCOMPARE(glyph("btnChangeWindow"), IconGlyph::Restore);
        QCOMPARE(glyphColor("btnChangeWindow"), QColor(Qt::white));
        QCOMPARE(part<QWidget>("btnChangeWindow")->toolTip(), QStringLiteral("restore"));

        call("slot_WindowChangeButtonClicked");
        QCOMPARE(m_pWindow->geometry(), QRect(home, cWindowSize));
        QVERIFY(!part<QWidget>("titleWidget")->isHidden());
        QCOMPARE(glyph("btnChangeWindow"), IconGlyph::FullScreen);
        QCOMPARE(glyphColor("btnChangeWindow"), QColor(Qt::white));
        QCOMPARE(part<QWidget>("btnChangeWindow")->toolTip(), QStringLiteral("fullscreen"));
        QVERIFY(part<QWidget>("btnChangeWindow")->isHidden());
    }

    void clearedCallIsNotInFullScreen()
    {
        call("slot_WindowChangeButtonClicked");
        m_pWindow->ClearCallInfoData();
        // Into full screen again, from the place where the window stands.
        call("slot_WindowChangeButtonClicked");
        QVERIFY(part<QWidget>("titleWidget")->isHidden());
        QCOMPARE(part<QWidget>("btnChangeWindow")->toolTip(), QStringLiteral("restore"));
        call("slot_WindowChangeButtonClicked");
        QVERIFY(!part<QWidget>("titleWidget")->isHidden());
    }

    void clearUiEmptiesWhatIsShown()
    {
        m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")));
        startCall(CVoipWidget::Voice);
        startCall(CVoipWidget::Conference);
        part<QLabel>("currentPlayTimeLabel")->setText(uid("00:01"));

        m_pWindow->clearUI();

        for (const char *name : {"lblVoipTipMsg", "lblListCount", "currentPlayTimeLabel", "lblUserName", "lblStatus"}) {
            QVERIFY2(text(name).isEmpty(), name);
        }
        QCOMPARE(rows()->rowCount(), 0);
        QVERIFY(part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(m_sent, QStringList());
    }

    void callStatusIsAlwaysZero()
    {
        QCOMPARE(m_pWindow->GetCurrentCallStatus(), 0);
        startCall(CVoipWidget::Voice);
        QCOMPARE(m_pWindow->GetCurrentCallStatus(), 0);
        m_pWindow->setVoipCallStatus(true);
        QCOMPARE(m_pWindow->GetCurrentCallStatus(), 0);
        m_pWindow->setVoipCallStatus(false);
        m_pWindow->close();
        QCOMPARE(m_pWindow->GetCurrentCallStatus(), 0);
    }

    void thereIsNoWebView() { QVERIFY(m_pWindow->getWebEngineView() == nullptr); }

    void videoWidgetGoesToTheVideoPage()
    {
        auto *pSurface = new QWidget;
        m_pWindow->addVoipWidget(pSurface);
        auto *pLayout = m_pWindow->findChild<QVBoxLayout *>(QStringLiteral("WebViewLayout"));
        QCOMPARE(pLayout->indexOf(pSurface), 0);
        QCOMPARE(pLayout->stretch(0), 0);
        QCOMPARE(pLayout->itemAt(0)->alignment(), Qt::Alignment());
        QCOMPARE(pSurface->parentWidget(), part<QWidget>("playFramWidget"));
        startCall(CVoipWidget::Video, true);
        showWindow();
        QTRY_VERIFY_WITH_TIMEOUT(pSurface->isVisible(), cPatienceMs);
        QVERIFY(pSurface->height() > 300);
    }

    void nullVideoWidgetIsIgnored()
    {
        m_pWindow->addVoipWidget(nullptr);
        QCOMPARE(m_pWindow->findChild<QVBoxLayout *>(QStringLiteral("WebViewLayout"))->count(), 0);
    }

    void memberIsAddedOnce()
    {
        startCall(CVoipWidget::Conference);
        m_pWindow->addConferenceMember(uid("cat"));
        m_pWindow->addConferenceMember(uid("cat"));
        QCOMPARE(rows()->rowCount(), 3);
        QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(3)"));
    }

    void memberIsRemovedAndTheCountRefreshed()
    {
        startCall(CVoipWidget::Conference);
        m_pWindow->removeConferenceMember(uid("ann"));
        QCOMPARE(rows()->rowCount(), 1);
        QCOMPARE(rows()->index(0, 0).data(ROLE_USER_ID).toString(), uid("bob"));
        QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(1)"));
    }

    void removingAnUnknownMemberRefreshesTheCount()
    {
        startCall(CVoipWidget::Conference);
        part<QLabel>("lblListCount")->clear();
        m_pWindow->removeConferenceMember(uid("nobody"));
        QCOMPARE(rows()->rowCount(), 2);
        QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(2)"));
    }

    void statusOperationsReachTheRows()
    {
        startCall(CVoipWidget::Conference);
        m_pWindow->updateConferenceListStatus({uid("bob"), uid("nobody")});
        QCOMPARE(status(0), int(ConferenceCalling));
        QCOMPARE(status(1), int(ConferenceConnected));
        m_pWindow->setaddConfFailedList({uid("ann")});
        QCOMPARE(status(0), int(ConferenceFailed));
        m_pWindow->updateConferenceUserStatus(uid("bob"), 5);
        QCOMPARE(status(1), int(ConferenceRejected));
    }

    void creatorIsMarkedInTheList()
    {
        startCall(CVoipWidget::Conference);
        m_pWindow->setConferenceCreator(uid("bob"));
        QVERIFY(!rows()->index(0, 0).data(ROLE_IS_CREATOR).toBool());
        QVERIFY(rows()->index(1, 0).data(ROLE_IS_CREATOR).toBool());
    }

    void callTimeText_data()
    {
        QTest::addColumn<qulonglong>("seconds");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << Q_UINT64_C(0) << QStringLiteral("00:00:00");
        QTest::newRow("one digit each") << Q_UINT64_C(3661) << QStringLiteral("01:01:01");
        QTest::newRow("two digits each") << Q_UINT64_C(86399) << QStringLiteral("23:59:59");
        QTest::newRow("more than a day") << Q_UINT64_C(90000) << QStringLiteral("25:00:00");
        QTest::newRow("hours of three digits") << Q_UINT64_C(360000) << QStringLiteral("100:00:00");
        QTest::newRow("greatest") << ~Q_UINT64_C(0) << QStringLiteral("5124095576030431:00:15");
    }

    void callTimeText()
    {
        QFETCH(qulonglong, seconds);
        QTEST(m_pWindow->GetCallTimeString(seconds), "expected");
    }

    void operationsAreLogged()
    {
        m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")));
        startCall(CVoipWidget::Voice);
        m_pWindow->setVoipCallStatus(true);
        m_pWindow->close();
        const QStringList expected{
            "VoipWidget.cpp: userlist = ann,bob, iType = 0, bMyCall = 1",
            "VoipWidget.cpp: voip userName=Ann(Annie)",
            "VoipWidget.cpp: voip photourl = Resources/images/FriendDetail/defaultHead.png",
            "VoipWidget.cpp: setVoipConnect statu = 1",
            "VoipWidget.cpp: clear call info!",
            "VoipWidget.cpp: setmic bMute = 0",
            "VoipWidget.cpp: set speaker bMute = 0",
            "VoipWidget.cpp: clear voipwidget ui!",
        };
        QCOMPARE(newRecords(), expected);
    }

    void everySetUpIsLogged()
    {
        // Also one that changes nothing.
        m_pWindow->setVoipCallInfo({}, CVoipWidget::Voice, true, false);
        m_pWindow->setVoipCallInfo({}, CVoipWidget::Video, false, true);
        m_pWindow->setVoipCallInfo({uid("ann"), uid("bob")}, CVoipWidget::Conference, false, false);
        const QStringList expected{
            "VoipWidget.cpp: userlist = , iType = 0, bMyCall = 1",
            "VoipWidget.cpp: userlist = , iType = 1, bMyCall = 0",
            "VoipWidget.cpp: userlist = ann,bob, iType = 2, bMyCall = 0",
        };
        QCOMPARE(newRecords(), expected);
    }

    void constructionIsLogged()
    {
        const CVoipWidget window;
        const QStringList expected{
            "VoipWidget.cpp: setmic bMute = 0",
            "VoipWidget.cpp: set speaker bMute = 0",
            "VoipWidget.cpp: set camera bEnable = 1",
        };
        QCOMPARE(newRecords(), expected);
    }

    void cardOfThePeerIsLogged()
    {
        startCall(CVoipWidget::Voice);
        newRecords();
        const VcardInfo card = ContactFixture::card(uid("Ann"), uid("Annie"));
        m_pWindow->updateUserInfo(ContactFixture::jid(uid("bob")), card);
        QCOMPARE(newRecords(), QStringList());
        m_pWindow->updateUserInfo(ContactFixture::jid(uid("ann")), card);
        const QStringList expected{
            "VoipWidget.cpp: voip userName=Ann(Annie)",
            "VoipWidget.cpp: voip photourl = Resources/images/FriendDetail/defaultHead.png",
        };
        QCOMPARE(newRecords(), expected);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidget, Widgets)

#include "tst_VoipWidget.moc"
