// What the user's clicks in the call window do.

#include "CallWindowTest.h"

namespace {

/// The glyph that a button still had when it was first told of a new style sheet.
class GlyphAtFirstStyle : public QObject
{
public:
    explicit GlyphAtFirstStyle(QAbstractButton *pButton) : m_pButton(pButton) { pButton->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange && m_glyph == 0) {
            m_glyph = m_pButton->text().at(0).unicode();
        }
        return false;
    }

    QAbstractButton *m_pButton;
    ushort m_glyph = 0;
};

} // namespace

class tst_VoipWidgetClicks : public CallWindowTest
{
    Q_OBJECT

private slots:
    void micClickTogglesAndSendsTheInverse()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        const auto *pMic = part<QWidget>("btnMic");
        click("btnMic");
        QCOMPARE(m_sent, QStringList{"mic-"});
        QCOMPARE(glyph("btnMic"), ushort(0xE64C));
        QCOMPARE(glyphColor("btnMic"), QColor(184, 184, 184));
        QCOMPARE(pMic->toolTip(), QStringLiteral("openmic"));
        click("btnMic");
        QCOMPARE(m_sent, (QStringList{"mic-", "mic+"}));
        QCOMPARE(glyph("btnMic"), ushort(0xE64D));
        QCOMPARE(pMic->toolTip(), QStringLiteral("closemic"));
    }

    void speakerClickTogglesAndSendsTheInverse()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        const auto *pSpeaker = part<QWidget>("btnSpeaker");
        click("btnSpeaker");
        QCOMPARE(m_sent, QStringList{"speaker-"});
        QCOMPARE(glyph("btnSpeaker"), ushort(0xE66A));
        QCOMPARE(glyphColor("btnSpeaker"), QColor(184, 184, 184));
        QCOMPARE(pSpeaker->toolTip(), QStringLiteral("openvioce"));
        click("btnSpeaker");
        QCOMPARE(m_sent, (QStringList{"speaker-", "speaker+"}));
        QCOMPARE(glyph("btnSpeaker"), ushort(0xE669));
        QCOMPARE(pSpeaker->toolTip(), QStringLiteral("silence"));
    }

    void cameraClickSendsTheFlagItself()
    {
        QCOMPARE(glyph("btnCamera"), ushort(0xE667));
        press("btnCamera");
        QCOMPARE(m_sent, QStringList{"camera-"});
        QCOMPARE(glyph("btnCamera"), ushort(0xE721));
        QCOMPARE(glyphColor("btnCamera"), QColor(184, 184, 184));
        press("btnCamera");
        QCOMPARE(m_sent, (QStringList{"camera-", "camera+"}));
        QCOMPARE(glyph("btnCamera"), ushort(0xE667));
    }

    void muteAllClickMutesEveryRowAndSendsOnce()
    {
        startCall(CVoipWidget::Conference, true);
        showWindow();
        const auto *pMuteAll = part<QWidget>("btnMuteAll");
        // The rows are muted before anybody hears of it.
        connect(m_pWindow.get(), &CVoipWidget::signal_MuteAll, this,
                [this](bool bMute) { QCOMPARE(rows()->index(0, 0).data(ROLE_MUTED).toBool(), bMute); });
        click("btnMuteAll");
        QCOMPARE(m_sent, QStringList{"muteall+"});
        QVERIFY(rows()->index(0, 0).data(ROLE_MUTED).toBool());
        QVERIFY(rows()->index(1, 0).data(ROLE_MUTED).toBool());
        QCOMPARE(glyph("btnMuteAll"), ushort(0xF66A));
        QCOMPARE(glyphColor("btnMuteAll"), QColor(255, 96, 88));
        QCOMPARE(pMuteAll->toolTip(), QStringLiteral("取消全体静音"));
        click("btnMuteAll");
        QCOMPARE(m_sent, (QStringList{"muteall+", "muteall-"}));
        QVERIFY(!rows()->index(1, 0).data(ROLE_MUTED).toBool());
        QCOMPARE(glyph("btnMuteAll"), ushort(0xE66A));
        QCOMPARE(glyphColor("btnMuteAll"), QColor(184, 184, 184));
        QCOMPARE(pMuteAll->toolTip(), QStringLiteral("全体静音"));
    }

    void muteAllSetsItsColourFirstAndTheOthersTheirGlyph()
    {
        startCall(CVoipWidget::Conference, true);
        showWindow();
        const GlyphAtFirstStyle muteAll(button("btnMuteAll"));
        const GlyphAtFirstStyle mic(button("btnMic"));
        const GlyphAtFirstStyle speaker(button("btnSpeaker"));
        for (const char *name : {"btnMuteAll", "btnMic", "btnSpeaker"}) {
            click(name);
        }
        QCOMPARE(muteAll.m_glyph, ushort(0xE66A));
        QCOMPARE(mic.m_glyph, ushort(0xE64C));
        QCOMPARE(speaker.m_glyph, ushort(0xE66A));
    }

    void toggleHasItsNewFaceBeforeItIsTold()
    {
        QList<ushort> faces;
        const auto note = [&](const char *name) { return [&faces, name, this] { faces.append(glyph(name)); }; };
        connect(m_pWindow.get(), &CVoipWidget::signal_SetMicEnable, this, note("btnMic"));
        connect(m_pWindow.get(), &CVoipWidget::signal_SetSpeakerEnable, this, note("btnSpeaker"));
        connect(m_pWindow.get(), &CVoipWidget::signal_SetCameraEnable, this, note("btnCamera"));
        for (const char *name : {"btnMic", "btnSpeaker", "btnCamera"}) {
            press(name);
        }
        QCOMPARE(faces, (QList<ushort>{0xE64C, 0xE66A, 0xE721}));
    }

    void togglesHaveAHoverColourButTheMutedConferenceHasNone()
    {
        for (const bool bOn : {true, false}) {
            for (const char *name : {"btnMic", "btnSpeaker", "btnCamera", "btnMuteAll"}) {
                press(name);
                const bool bHover = !bOn || qstrcmp(name, "btnMuteAll") != 0;
                QVERIFY2(button(name)->styleSheet().contains(QLatin1String("::hover")) == bHover, name);
            }
        }
    }

    void addMemberClickIsSent()
    {
        startCall(CVoipWidget::Conference);
        showWindow();
        click("btnAddMember");
        QCOMPARE(m_sent, QStringList{"add"});
        QCOMPARE(rows()->rowCount(), 2);
    }

    void hangUpClickIsSentAndTheWindowStays()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        click("HangUp");
        QCOMPARE(m_sent, QStringList{"hangup"});
        QVERIFY(m_pWindow->isVisible());
    }

    void cancelClickSendsHangUpTwice()
    {
        startCall(CVoipWidget::Voice);
        showWindow();
        click("btnCancelCall");
        QCOMPARE(m_sent, (QStringList{"hangup", "mic+", "speaker+", "hangup", "clear"}));
        QVERIFY(!m_pWindow->isVisible());
    }

    void listSignalsAreForwarded()
    {
        auto *pList = part<CConferenceListView>("listView");
        emit pList->signal_RemoveUser(uid("ann"));
        emit pList->signal_MuteUser(uid("bob"), true);
        emit pList->signal_MuteUser(uid("bob"), false);
        emit pList->signal_ReInviteConfUser(uid("cat"));
        QCOMPARE(m_sent, (QStringList{"remove ann", "mute bob+", "mute bob-", "reinvite cat"}));
    }

    void clicksAreLogged()
    {
        for (const char *name : {"btnMic", "btnSpeaker", "btnCamera", "HangUp"}) {
            press(name);
        }
        answerQuestion("closeBtn");
        press("btnClose");
        press("btnCancelCall");
        const QStringList expected{
            "VoipWidget.cpp: click mic button!",     "VoipWidget.cpp: setmic bMute = 1",
            "VoipWidget.cpp: click speaker button!", "VoipWidget.cpp: set speaker bMute = 1",
            "VoipWidget.cpp: click camera button!",  "VoipWidget.cpp: set camera bEnable = 0",
            "VoipWidget.cpp: click hangup button!",  "VoipWidget.cpp: click close button!",
            "VoipWidget.cpp: cancel button click!",
        };
        QCOMPARE(newRecords().mid(0, expected.size()), expected);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetClicks, Widgets)

#include "tst_VoipWidgetClicks.moc"
