// The call window as it is built: its parts, their places and sizes, texts, faces and style sheets.

#include "CallWindowTest.h"

#include "ui/CallWindowStyle.h"
#include "widgets/IconButtonEx.h"

#include <QLayout>
#include <QMetaMethod>
#include <QSlider>
#include <QStackedWidget>

Q_DECLARE_METATYPE(QMargins)

class tst_VoipWidgetForm : public CallWindowTest
{
    Q_OBJECT

private slots:
    void signalsStandInTheirOrder()
    {
        QStringList signatures;
        const QMetaObject &meta = CVoipWidget::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal) {
                signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
            }
        }
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

    void privateSlotsStandInTheirOrder()
    {
        QStringList signatures;
        const QMetaObject &meta = CVoipWidget::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Slot && meta.method(i).access() == QMetaMethod::Private) {
                signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
            }
        }
        const QStringList expected{
            "slot_HangUpCall()",
            "slot_close()",
            "slot_MicVolumChanged(int)",
            "slot_SpeakerVolumChanged(int)",
            "slot_MicSilderHide()",
            "slot_SpeakerSilderHide()",
            "slot_RefreshTime()",
            "slot_MicButtonClicked()",
            "slot_SpeakerButtonClicked()",
            "slot_CameraButtonClicked()",
            "slot_CaptureButtonClicked()",
            "slot_WindowChangeButtonClicked()",
            "slot_CancelVoipCall()",
            "slot_AddConferenceMember()",
            "slot_RemoveConferenceMember(QString)",
            "slot_MuteConferenceMember(QString,bool)",
            "slot_MuteAll()",
            "slot_ReInviteConfUser(QString)",
        };
        QCOMPARE(signatures, expected);
    }

    void windowIsFramelessAndOfFixedSize()
    {
        showWindow();
        QCOMPARE(m_pWindow->windowFlags(), Qt::Window | Qt::FramelessWindowHint);
        QVERIFY(m_pWindow->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(m_pWindow->hasMouseTracking());
        // The form's 405 does not count.
        QCOMPARE(m_pWindow->size(), QSize(523, 403));
        QCOMPARE(m_pWindow->minimumSize(), QSize(523, 403));
        QCOMPARE(m_pWindow->maximumSize(), QSize(523, 403));
    }

    void windowStartsHiddenWithStartValues()
    {
        QVERIFY(!m_pWindow->isVisible());
        QVERIFY(part<QLabel>("currentPlayTimeLabel")->isHidden());
        QCOMPARE(text("currentPlayTimeLabel"), QString());
        QCOMPARE(part<QStackedWidget>("displayPane")->currentIndex(), 2);
        QCOMPARE(part<QStackedWidget>("controlPane")->currentIndex(), 1);
        QCOMPARE(button("btnAddMember")->text(), QStringLiteral("邀请成员"));
        QCOMPARE(button("btnCancelCall")->text(), QStringLiteral("取消"));
        QCOMPARE(button("HangUp")->text(), QStringLiteral("挂断"));
        for (const char *name : {"lblVoipTipMsg", "lblUserName", "lblStatus", "lblListCount", "lblLine"}) {
            QVERIFY2(text(name).isEmpty(), name);
        }
    }

    void everyStyleSheetIsSetOnItsPart_data()
    {
        QTest::addColumn<QString>("styleSheet");
        QTest::newRow("lblUserName") << QStringLiteral("QLabel#lblUserName{ color: #313131; font:20px 微软雅黑; }");
        QTest::newRow("lblStatus") << QStringLiteral("QLabel#lblUserName{ color: #a5a5a5; font:14px 微软雅黑; }");
        QTest::newRow("titleWidget") << QStringLiteral("QWidget#titleWidget{ background-color: #f4f4f4;}");
        QTest::newRow("lblVoipTipMsg") << QStringLiteral("QLabel#lblVoipTipMsg{ color: #313131; font:14px 微软雅黑; }");
        QTest::newRow("controlPaneWidget") << QStringLiteral("QWidget#controlPaneWidget{ background-color: #4c4c4c;}");
        QTest::newRow("btnAddMember") << QStringLiteral(
            "QPushButton#btnAddMember {text-align: center; font: 12px \"微软雅黑\"; color: #005cff; "
            "background:transparent; }");
        QTest::newRow("lblLine") << QStringLiteral("QLabel#lblLine{background-color: #dbdddd;}");
        QTest::newRow("currentPlayTimeLabel")
            << QStringLiteral("QLabel#currentPlayTimeLabel{color: #f3f3f3; font:14px 微软雅黑;}");
        // These two come with the form.
        QTest::newRow("btnCancelCall") << QStringLiteral("background-color: rgb(255, 97, 88);");
        QTest::newRow("HangUp") << QStringLiteral("background-color: rgb(244, 52, 47);");
    }

    void everyStyleSheetIsSetOnItsPart() { QTEST(part<QWidget>(QTest::currentDataTag())->styleSheet(), "styleSheet"); }

    void everyStyledPartIsTested() { QCOMPARE(cCallWindowStyles.size(), std::size_t(8)); }

    void statusLabelKeepsThePlainLook()
    {
        showWindow();
        QCOMPARE(part<QLabel>("lblUserName")->palette().color(QPalette::WindowText), QColor(0x31, 0x31, 0x31));
        QCOMPARE(part<QLabel>("lblUserName")->font().pixelSize(), 20);
        // The sheet of the state's label names another one, so it has neither its colour nor its size.
        QVERIFY(part<QLabel>("lblStatus")->palette().color(QPalette::WindowText) != QColor(0xa5, 0xa5, 0xa5));
        QVERIFY(part<QLabel>("lblStatus")->font().pixelSize() != 14);
    }

    void cameraAndFullScreenButtonsStayHidden_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("voice") << int(CVoipWidget::Voice);
        QTest::newRow("video") << int(CVoipWidget::Video);
        QTest::newRow("conference") << int(CVoipWidget::Conference);
    }

    void cameraAndFullScreenButtonsStayHidden()
    {
        QFETCH(int, type);
        startCall(CVoipWidget::VoipType(type));
        m_pWindow->setVoipCallStatus(true);
        showWindow();
        QVERIFY(part<QWidget>("btnMic")->isVisible());
        QVERIFY(!part<QWidget>("btnCamera")->isVisible());
        QVERIFY(!part<QWidget>("btnChangeWindow")->isVisible());
    }

    void everyPartHangsInItsPlace_data()
    {
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QString>("type");
        const struct
        {
            const char *name;
            const char *parent;
            const char *type;
        } parts[] = {
            {"widget4", "CVoipWidget", "CBaseFormEx"},
            {"titleWidget", "widget4", "QWidget"},
            {"lblVoipTipMsg", "titleWidget", "QLabel"},
            {"btnClose", "titleWidget", "CIconButtonEx"},
            {"displayPaneWidget", "widget4", "QWidget"},
            {"displayPane", "displayPaneWidget", "QStackedWidget"},
            {"voiceDisplayPage", "displayPane", "QWidget"},
            {"widget_3", "voiceDisplayPage", "QWidget"},
            {"lblPhotoIcon", "widget_3", "VcardHeadLabel"},
            {"widget_4", "voiceDisplayPage", "QWidget"},
            {"lblUserName", "widget_4", "QLabel"},
            {"widget_5", "voiceDisplayPage", "QWidget"},
            {"lblStatus", "widget_5", "QLabel"},
            {"videoDisplayPage", "displayPane", "QWidget"},
            {"playFramWidget", "videoDisplayPage", "QWidget"},
            {"conferenceDisplayPage", "displayPane", "QWidget"},
            {"widget_6", "conferenceDisplayPage", "QWidget"},
            {"conferenceTitle", "widget_6", "QWidget"},
            {"lblListCount", "conferenceTitle", "QLabel"},
            {"btnAddMember", "conferenceTitle", "QPushButton"},
            {"widget_8", "widget_6", "QWidget"},
            {"lblLine", "widget_8", "QLabel"},
            {"widget_7", "conferenceDisplayPage", "QWidget"},
            {"listView", "widget_7", "CConferenceListView"},
            {"controlPaneWidget", "widget4", "QWidget"},
            {"controlPane", "controlPaneWidget", "QStackedWidget"},
            {"requestControlPage", "controlPane", "QWidget"},
            {"btnCancelCall", "requestControlPage", "PushButtonEx"},
            {"callingControlPage", "controlPane", "QWidget"},
            {"controlWidget", "callingControlPage", "QWidget"},
            {"widget_2", "controlWidget", "QWidget"},
            {"currentPlayTimeLabel", "widget_2", "QLabel"},
            {"widget", "widget_2", "QWidget"},
            {"btnMic", "widget", "CIconButtonEx"},
            {"btnSpeaker", "widget", "CIconButtonEx"},
            {"btnCamera", "widget", "CIconButtonEx"},
            {"btnChangeWindow", "widget", "CIconButtonEx"},
            {"btnMuteAll", "widget", "CIconButtonEx"},
            {"HangUp", "widget", "PushButtonEx"},
        };
        for (const auto &part : parts) {
            QTest::newRow(part.name) << QString(part.parent) << QString(part.type);
        }
    }

    void everyPartHangsInItsPlace()
    {
        QFETCH(QString, parent);
        QFETCH(QString, type);
        const auto *pPart = part<QWidget>(QTest::currentDataTag());
        QVERIFY(pPart != nullptr);
        QVERIFY(pPart->inherits(qPrintable(type)));
        QCOMPARE(pPart->parentWidget()->objectName(), parent);
    }

    void everyLayoutHasItsMarginsAndSpacing_data()
    {
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<int>("spacing");
        const QMargins none;
        for (const char *name : {"verticalLayout", "horizontalLayout_12", "verticalLayout_9", "horizontalLayout_5",
                                 "horizontalLayout_6", "horizontalLayout_7", "verticalLayout_5", "verticalLayout_2",
                                 "WebViewLayout", "verticalLayout_7", "verticalLayout_11", "verticalLayout_8",
                                 "verticalLayout_10", "horizontalLayout_4", "horizontalLayout_3"}) {
            QTest::newRow(name) << none << 0;
        }
        QTest::newRow("callingControlPage") << none << 0;
        QTest::newRow("verticalLayout_3") << QMargins(3, 3, 3, 3) << 0;
        QTest::newRow("horizontalLayout_13") << QMargins(20, 0, 10, 0) << 0;
        QTest::newRow("verticalLayout_6") << QMargins(0, 64, 0, 20) << 20;
        QTest::newRow("horizontalLayout_8") << QMargins(20, 0, 0, 0) << 0;
        QTest::newRow("horizontalLayout_9") << QMargins(20, 0, 20, 0) << 0;
        QTest::newRow("verticalLayout_4") << QMargins(10, 0, 0, 0) << 0;
        QTest::newRow("horizontalLayout_2") << QMargins(10, 0, 0, 0) << 10;
    }

    void everyLayoutHasItsMarginsAndSpacing()
    {
        const char *name = QTest::currentDataTag();
        // The kit's buttons have a "horizontalLayout" of their own: that one is found by its widget.
        const auto *pLayout = part<QLayout>(name) != nullptr ? part<QLayout>(name) : part<QWidget>(name)->layout();
        QVERIFY(pLayout != nullptr);
        QTEST(pLayout->contentsMargins(), "margins");
        QTEST(pLayout->spacing(), "spacing");
    }

    void everyFixedSizeHolds_data()
    {
        QTest::addColumn<QSize>("size");
        // -1: not fixed in that direction.
        QTest::newRow("titleWidget") << QSize(-1, 36);
        QTest::newRow("btnClose") << QSize(24, 24);
        QTest::newRow("widget_3") << QSize(-1, 100);
        QTest::newRow("lblPhotoIcon") << QSize(100, 100);
        QTest::newRow("widget_4") << QSize(-1, 40);
        QTest::newRow("widget_5") << QSize(-1, 30);
        QTest::newRow("conferenceTitle") << QSize(-1, 38);
        QTest::newRow("btnAddMember") << QSize(75, -1);
        QTest::newRow("lblLine") << QSize(-1, 1);
        // 45 stands in 40: deliberate.
        QTest::newRow("controlPaneWidget") << QSize(-1, 40);
        QTest::newRow("controlPane") << QSize(-1, 45);
        QTest::newRow("btnCancelCall") << QSize(72, 32);
        for (const char *name : {"btnMic", "btnSpeaker", "btnCamera", "btnChangeWindow", "btnMuteAll"}) {
            QTest::newRow(name) << QSize(26, 26);
        }
        QTest::newRow("HangUp") << QSize(75, 30);
    }

    void everyFixedSizeHolds()
    {
        QFETCH(QSize, size);
        const auto *pPart = part<QWidget>(QTest::currentDataTag());
        QCOMPARE(pPart->minimumWidth(), qMax(0, size.width()));
        QCOMPARE(pPart->maximumWidth(), size.width() < 0 ? QWIDGETSIZE_MAX : size.width());
        QCOMPARE(pPart->minimumHeight(), qMax(0, size.height()));
        QCOMPARE(pPart->maximumHeight(), size.height() < 0 ? QWIDGETSIZE_MAX : size.height());
    }

    void everyFaceIsSet_data()
    {
        QTest::addColumn<ushort>("glyph");
        QTest::addColumn<int>("pixelSize");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("btnClose") << ushort(0xE62C) << 8 << "close";
        QTest::newRow("btnMic") << ushort(0xE64D) << 16 << "closemic";
        QTest::newRow("btnSpeaker") << ushort(0xE669) << 16 << "silence";
        QTest::newRow("btnCamera") << ushort(0xE667) << 16 << QString();
        QTest::newRow("btnMuteAll") << ushort(0xE66A) << 16 << QStringLiteral("全体静音");
    }

    void everyFaceIsSet()
    {
        const char *name = QTest::currentDataTag();
        QTEST(glyph(name), "glyph");
        QTEST(button(name)->font().pixelSize(), "pixelSize");
        QTEST(part<QWidget>(name)->toolTip(), "toolTip");
        if (qstrcmp(name, "btnClose") != 0) {
            QCOMPARE(glyphColor(name), QColor(184, 184, 184));
        }
    }

    void closeButtonLooksLikeThoseOfTheOtherWindows()
    {
        CIconButtonEx red;
        red.setIconFont(IconGlyph::text(IconGlyph::Close), 8, 3);
        QCOMPARE(button("btnClose")->styleSheet(), red.findChild<QAbstractButton *>()->styleSheet());
        QCOMPARE(button("btnClose")->parentWidget()->styleSheet(),
                 red.findChild<QAbstractButton *>()->parentWidget()->styleSheet());
    }

    void controlsBehaveAsTheFormSaysIt()
    {
        for (const char *name : {"btnClose", "btnMuteAll", "btnCancelCall"}) {
            QCOMPARE(part<QWidget>(name)->focusPolicy(), Qt::NoFocus);
        }
        const auto inner = [this](const char *name) { return qobject_cast<QPushButton *>(button(name)); };
        QVERIFY(inner("btnClose")->autoDefault());
        QVERIFY(inner("btnClose")->isFlat());
        QVERIFY(!inner("btnMuteAll")->isFlat());
        QVERIFY(!inner("HangUp")->autoDefault());
        QVERIFY(inner("HangUp")->isFlat());
        QVERIFY(inner("btnAddMember")->autoDefault());
        QVERIFY(inner("btnAddMember")->isFlat());
        QCOMPARE(part<QWidget>("btnAddMember")->cursor().shape(), Qt::PointingHandCursor);
        QVERIFY(part<QWidget>("titleWidget")->testAttribute(Qt::WA_SetCursor));
        QCOMPARE(part<QWidget>("titleWidget")->cursor().shape(), Qt::ArrowCursor);
        QVERIFY(part<QWidget>("titleWidget")->hasMouseTracking());
        QVERIFY(part<QWidget>("widget4")->hasMouseTracking());
        for (const char *name : {"currentPlayTimeLabel", "HangUp"}) {
            QCOMPARE(part<QWidget>(name)->font().family(), QStringLiteral("微软雅黑"));
        }
    }

    void stretchedLayoutsConstrainNothing()
    {
        for (const char *name : {"horizontalLayout_13", "WebViewLayout"}) {
            QCOMPARE(part<QLayout>(name)->sizeConstraint(), QLayout::SetNoConstraint);
        }
    }

    void slidersWaitHiddenWithTheirValues()
    {
        for (const char *name : {"m_pMicSlider", "m_pSpeakerSlider"}) {
            const auto *pSlider = part<QSlider>(name);
            QCOMPARE(pSlider->parentWidget(), m_pWindow.get());
            QCOMPARE(pSlider->orientation(), Qt::Vertical);
            QCOMPARE(pSlider->size(), QSize(50, 152));
            QCOMPARE(pSlider->minimum(), 0);
            QCOMPARE(pSlider->maximum(), 10);
            QCOMPARE(pSlider->value(), 5);
            QVERIFY(!pSlider->hasMouseTracking());
            QVERIFY(pSlider->isHidden());
        }
        const QString strGroove = QStringLiteral(
            "QSlider::groove:vertical{border-image: url(./Resources/images/skins/bg_slider_vertical.png);}");
        const QString strHandle =
            QStringLiteral("QSlider::handle:vertical{width:25px;height: 12px;background: #80c84c;margin: 20px 13px;}");
        QCOMPARE(m_pWindow->styleSheet(), strGroove + QString(23, QLatin1Char(' ')) + strHandle);
    }

    void memberListStandsAsTheFormSaysIt()
    {
        const auto *pList = part<CConferenceListView>("listView");
        QCOMPARE(pList->frameShape(), QFrame::NoFrame);
        QCOMPARE(pList->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
        QCOMPARE(pList->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(pList->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(pList->textElideMode(), Qt::ElideNone);
        QCOMPARE(pList->batchSize(), 50);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetForm, Widgets)

#include "tst_VoipWidgetForm.moc"
