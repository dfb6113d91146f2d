// The call window's form, its operations, and the order of its signals and slots.

#include "CallWindowTest.h"
#include "fakes/QtMessages.h"
#include "ui/CallWindowStyle.h"
#include "widgets/SymbolButton.h"

#include <QMetaMethod>
#include <QStackedWidget>

class tst_VoipWidget : public CallWindowTest
{
    Q_OBJECT

private slots:
    void signalsStandInTheirOrder();
    void privateSlotsStandInTheirOrder();
    void windowIsFramelessAndOfFixedSize();
    void windowStartsHiddenWithStartValues();
    void everyStyleSheetIsSetOnItsPart();
    void statusLabelKeepsThePlainLook();
    void labelsNeverRunRichText();
    void longNamesStayInsideTheWindow();
    void showBringsBackAMinimisedWindow();

    void cameraButtonStaysHidden_data();
    void cameraButtonStaysHidden();

    void hangUpMessageClearsDataOnly();
    void clearingPutsTheTogglesBack();
    void clearUiEmptiesWhatIsShown();

    void volumeGoesOutUnchanged_data();
    void volumeGoesOutUnchanged();
    void callStatusIsAlwaysZero();
    void thereIsNoWebView();
    void videoWidgetGoesToTheVideoPage();
    void nullVideoWidgetIsIgnored();

    void memberIsAddedOnce();
    void memberIsRemovedAndTheCountRefreshed();
    void removingAnUnknownMemberRefreshesTheCount();
    void statusOperationsReachTheRows();
    void creatorIsMarkedInTheList();
    void callTimeText_data();
    void callTimeText();

    void operationsAreLogged();
    void enablesAndVolumesGoToTheDebugChannel();
};

void tst_VoipWidget::signalsStandInTheirOrder()
{
    QStringList signatures;
    const QMetaObject &meta = CVoipWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    const QStringList expected{
        "signal_SetMicEnable(bool)",
        "signal_SetSpeakerEnable(bool)",
        "signal_SetCameraEnable(bool)",
        "signal_SetMicVolume(qlonglong)",
        "signal_SetSpeakerVolume(qlonglong)",
        "signal_HangupCurrentCall()",
        "signal_AddConferenceMember()",
        "signal_RemoveUser(QString)",
        "signal_MuteUser(QString,bool)",
        "signal_MuteAll(bool)",
        "signal_ClearCallData()",
        "signal_ReInviteConfUser(QString)",
    };
    QCOMPARE(signatures, expected);
}

void tst_VoipWidget::privateSlotsStandInTheirOrder()
{
    QStringList signatures;
    const QMetaObject &meta = CVoipWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        if (meta.method(i).methodType() == QMetaMethod::Slot && meta.method(i).access() == QMetaMethod::Private)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    const QStringList expected{
        "slot_HangUpCall()",
        "slot_close()",
        "slot_RefreshTime()",
        "slot_MicButtonClicked()",
        "slot_SpeakerButtonClicked()",
        "slot_CameraButtonClicked()",
        "slot_CancelVoipCall()",
        "slot_AddConferenceMember()",
        "slot_RemoveConferenceMember(QString)",
        "slot_MuteConferenceMember(QString,bool)",
        "slot_MuteAll()",
        "slot_ReInviteConfUser(QString)",
    };
    QCOMPARE(signatures, expected);
}

void tst_VoipWidget::windowIsFramelessAndOfFixedSize()
{
    showWindow();
    QVERIFY(m_pWindow->windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(m_pWindow->size(), QSize(523, 403));
    QCOMPARE(m_pWindow->minimumSize(), QSize(523, 403));
    QCOMPARE(m_pWindow->maximumSize(), QSize(523, 403));
}

void tst_VoipWidget::windowStartsHiddenWithStartValues()
{
    QVERIFY(!m_pWindow->isVisible());
    QVERIFY(part<QLabel>("currentPlayTimeLabel")->isHidden());
    QCOMPARE(text("currentPlayTimeLabel"), QString());
    QCOMPARE(part<QStackedWidget>("displayPane")->currentIndex(), 2);
    QCOMPARE(part<QStackedWidget>("controlPane")->currentIndex(), 1);
    QCOMPARE(part<QPushButton>("btnAddMember")->text(), QStringLiteral("邀请成员"));
    QCOMPARE(part<QPushButton>("btnCancelCall")->text(), QStringLiteral("取消"));
    QCOMPARE(part<QPushButton>("HangUp")->text(), QStringLiteral("挂断"));
    QCOMPARE(part<QPushButton>("btnClose")->toolTip(), QStringLiteral("close"));
    QCOMPARE(part<QPushButton>("btnMic")->toolTip(), QStringLiteral("closemic"));
    QCOMPARE(part<QPushButton>("btnSpeaker")->toolTip(), QStringLiteral("silence"));
    QCOMPARE(part<QPushButton>("btnMuteAll")->toolTip(), QStringLiteral("全体静音"));
}

void tst_VoipWidget::everyStyleSheetIsSetOnItsPart()
{
    QCOMPARE(cCallWindowStyles.size(), std::size_t(8));
    for (const CallWindowStyleRow &row : cCallWindowStyles) {
        QVERIFY2(part<QWidget>(row.pName) != nullptr, row.pName);
        QCOMPARE(part<QWidget>(row.pName)->styleSheet(), QString::fromUtf8(row.pStyleSheet));
    }
}

void tst_VoipWidget::statusLabelKeepsThePlainLook()
{
    showWindow();
    QCOMPARE(part<QLabel>("lblStatus")->palette().color(QPalette::WindowText), QColor(0x33, 0x33, 0x33));
    QCOMPARE(part<QLabel>("lblUserName")->palette().color(QPalette::WindowText), QColor(0x31, 0x31, 0x31));
    QCOMPARE(part<QLabel>("lblUserName")->font().pixelSize(), 20);
    QVERIFY(part<QLabel>("lblStatus")->font().pixelSize() != 14);
}

void tst_VoipWidget::labelsNeverRunRichText()
{
    const QList<QLabel *> labels = m_pWindow->findChildren<QLabel *>();
    QVERIFY(labels.size() >= 7);
    for (const QLabel *pLabel : labels)
        QVERIFY2(pLabel->textFormat() == Qt::PlainText, qPrintable(pLabel->objectName()));
}

void tst_VoipWidget::longNamesStayInsideTheWindow()
{
    m_pContacts->addContact(uid("ann"), ContactFixture::card(QString(3000, QLatin1Char('m')), uid("x\ny")));
    startCall(CVoipWidget::Video);
    showWindow();
    const auto *pClose = part<QPushButton>("btnClose");
    QVERIFY(m_pWindow->rect().contains(QRect(pClose->mapTo(m_pWindow.get(), QPoint()), pClose->size())));
    startCall(CVoipWidget::Voice);
    const auto *pName = part<QLabel>("lblUserName");
    QTRY_VERIFY(pName->isVisible());
    QVERIFY(m_pWindow->rect().contains(QRect(pName->mapTo(m_pWindow.get(), QPoint()), pName->size())));
}

void tst_VoipWidget::showBringsBackAMinimisedWindow()
{
    m_pWindow->setWindowState(Qt::WindowMinimized);
    m_pWindow->show();
    QVERIFY(m_pWindow->isVisible());
    QCOMPARE(m_pWindow->windowState(), Qt::WindowStates(Qt::WindowNoState));
}

void tst_VoipWidget::cameraButtonStaysHidden_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("voice") << int(CVoipWidget::Voice);
    QTest::newRow("video") << int(CVoipWidget::Video);
    QTest::newRow("conference") << int(CVoipWidget::Conference);
}

void tst_VoipWidget::cameraButtonStaysHidden()
{
    QFETCH(int, type);
    startCall(CVoipWidget::VoipType(type));
    m_pWindow->setVoipCallStatus(true);
    showWindow();
    QVERIFY(part<QWidget>("btnMic")->isVisible());
    QVERIFY(!part<QWidget>("btnCamera")->isVisible());
}

void tst_VoipWidget::hangUpMessageClearsDataOnly()
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

void tst_VoipWidget::clearingPutsTheTogglesBack()
{
    startCall(CVoipWidget::Conference, true);
    showWindow();
    for (const char *name : {"btnMic", "btnSpeaker", "btnMuteAll"})
        click(name);
    part<QPushButton>("btnCamera")->click();
    m_sent.clear();

    m_pWindow->ClearCallInfoData();

    QCOMPARE(m_sent, (QStringList{"mic+", "speaker+"}));
    QCOMPARE(part<SymbolButton>("btnMic")->symbol(), SymbolButton::Symbol::Microphone);
    QCOMPARE(part<SymbolButton>("btnSpeaker")->symbol(), SymbolButton::Symbol::Speaker);
    QCOMPARE(part<SymbolButton>("btnMuteAll")->toolTip(), QStringLiteral("全体静音"));
    // The camera's face is left as it was, only its flag is put back.
    QCOMPARE(part<SymbolButton>("btnCamera")->symbol(), SymbolButton::Symbol::CameraOff);
    m_sent.clear();
    for (const char *name : {"btnMic", "btnSpeaker", "btnMuteAll"})
        click(name);
    part<QPushButton>("btnCamera")->click();
    QCOMPARE(m_sent, (QStringList{"mic-", "speaker-", "muteall+", "camera-"}));
}

void tst_VoipWidget::clearUiEmptiesWhatIsShown()
{
    m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")));
    startCall(CVoipWidget::Voice);
    startCall(CVoipWidget::Conference);
    part<QLabel>("currentPlayTimeLabel")->setText(uid("00:01"));

    m_pWindow->clearUI();

    for (const char *name : {"lblVoipTipMsg", "lblListCount", "currentPlayTimeLabel", "lblUserName", "lblStatus"})
        QVERIFY2(text(name).isEmpty(), name);
    QCOMPARE(rows()->rowCount(), 0);
    QVERIFY(part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("语音会议"));
    QCOMPARE(m_sent, QStringList());
}

void tst_VoipWidget::volumeGoesOutUnchanged_data()
{
    QTest::addColumn<qlonglong>("volume");
    QTest::newRow("none") << Q_INT64_C(0);
    QTest::newRow("full") << Q_INT64_C(10);
    QTest::newRow("negative") << Q_INT64_C(-3);
    QTest::newRow("more than 32 bits") << Q_INT64_C(5000000000);
}

void tst_VoipWidget::volumeGoesOutUnchanged()
{
    QFETCH(qlonglong, volume);
    m_pWindow->SetVoipMicVolume(volume);
    m_pWindow->SetVoipSpeakerVolume(volume);
    QCOMPARE(m_sent,
             (QStringList{QStringLiteral("micvolume=%1").arg(volume), QStringLiteral("speakervolume=%1").arg(volume)}));
}

void tst_VoipWidget::callStatusIsAlwaysZero()
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

void tst_VoipWidget::thereIsNoWebView()
{
    QVERIFY(m_pWindow->getWebEngineView() == nullptr);
}

void tst_VoipWidget::videoWidgetGoesToTheVideoPage()
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
    QTRY_VERIFY(pSurface->isVisible());
    QVERIFY(pSurface->height() > 300);
}

void tst_VoipWidget::nullVideoWidgetIsIgnored()
{
    m_pWindow->addVoipWidget(nullptr);
    QCOMPARE(m_pWindow->findChild<QVBoxLayout *>(QStringLiteral("WebViewLayout"))->count(), 0);
}

void tst_VoipWidget::memberIsAddedOnce()
{
    startCall(CVoipWidget::Conference);
    m_pWindow->addConferenceMember(uid("cat"));
    m_pWindow->addConferenceMember(uid("cat"));
    QCOMPARE(rows()->rowCount(), 3);
    QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(3)"));
}

void tst_VoipWidget::memberIsRemovedAndTheCountRefreshed()
{
    startCall(CVoipWidget::Conference);
    m_pWindow->removeConferenceMember(uid("ann"));
    QCOMPARE(rows()->rowCount(), 1);
    QCOMPARE(rows()->index(0, 0).data(ROLE_USER_ID).toString(), uid("bob"));
    QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(1)"));
}

void tst_VoipWidget::removingAnUnknownMemberRefreshesTheCount()
{
    startCall(CVoipWidget::Conference);
    part<QLabel>("lblListCount")->clear();
    m_pWindow->removeConferenceMember(uid("nobody"));
    QCOMPARE(rows()->rowCount(), 2);
    QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(2)"));
}

void tst_VoipWidget::statusOperationsReachTheRows()
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

void tst_VoipWidget::creatorIsMarkedInTheList()
{
    startCall(CVoipWidget::Conference);
    m_pWindow->setConferenceCreator(uid("bob"));
    QVERIFY(!rows()->index(0, 0).data(ROLE_IS_CREATOR).toBool());
    QVERIFY(rows()->index(1, 0).data(ROLE_IS_CREATOR).toBool());
}

void tst_VoipWidget::callTimeText_data()
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

void tst_VoipWidget::callTimeText()
{
    QFETCH(qulonglong, seconds);
    QTEST(m_pWindow->GetCallTimeString(seconds), "expected");
}

void tst_VoipWidget::operationsAreLogged()
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

void tst_VoipWidget::enablesAndVolumesGoToTheDebugChannel()
{
    const QtMessages messages;
    part<QPushButton>("btnMic")->click();
    part<QPushButton>("btnSpeaker")->click();
    part<QPushButton>("btnSpeaker")->click();
    part<QPushButton>("btnCamera")->click();
    m_pWindow->SetVoipMicVolume(7);
    m_pWindow->SetVoipSpeakerVolume(-8);
    // The speaker's line has the microphone's words.
    const QStringList expected{"SetMicEnable = false",     "SetMicEnable = false", "SetMicEnable = true",
                               "SetCamreraEnable = false", "SetMicVolume = 7",     "SetSpeakerVolume = -8"};
    QCOMPARE(messages.debugLines, expected);
}

QTEST_MAIN(tst_VoipWidget)

#include "tst_VoipWidget.moc"
