// How the call window is set up for each kind of call, and what it shows while the call runs.

#include "ContactFixture.h"
#include "ShownCall.h"
#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "ui/VoipWidget.h"

#include <QDateTime>
#include <QTest>
#include <QTimer>

#include <ctime>

namespace {

/// Moves the time of day by entering other time zones; the old one comes back at its end.
class DayTime
{
public:
    ~DayTime() { enterZone(m_oldZone); }
    /// From now on it is past this hour, with the minutes as they are.
    void makeIt(int iHour) const { enterZone("HERE" + QByteArray::number(m_iHour - iHour)); }

private:
    static void enterZone(const QByteArray &zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

    const int m_iHour = QDateTime::currentDateTimeUtc().time().hour();
    const QByteArray m_oldZone = qgetenv("TZ");
};

} // namespace

class tst_VoipWidgetCalls : public QObject
{
    Q_OBJECT

private slots:
    void voiceCallShowsNameStateAndRequestControls_data()
    {
        QTest::addColumn<bool>("myCall");
        QTest::addColumn<QString>("status");
        QTest::newRow("outgoing") << true << QStringLiteral("正在呼叫...");
        QTest::newRow("incoming") << false << QStringLiteral("正在连接...");
    }

    void voiceCallShowsNameStateAndRequestControls()
    {
        QFETCH(bool, myCall);
        QFETCH(QString, status);
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"),
                            ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        CVoipWidget window;
        const ShownCall shown(window);

        window.setVoipCallInfo({QStringLiteral("ann"), QStringLiteral("bob")}, CVoipWidget::Voice, myCall, false);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));

        QCOMPARE(window.windowTitle(), QStringLiteral("语音通话"));
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("语音通话"));
        QCOMPARE(shown.text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(shown.text("lblStatus"), status);
        QCOMPARE(shown.page("displayPane"), 0);
        QCOMPARE(shown.page("controlPane"), 0);
        QVERIFY(shown.label("lblUserName")->isVisible());
        QVERIFY(shown.part("btnCancelCall")->isVisible());
        QVERIFY(!shown.part("HangUp")->isVisible());
        QVERIFY(shown.part("btnMuteAll")->isHidden());
        QVERIFY(shown.label("currentPlayTimeLabel")->isHidden());
    }

    void videoCallShowsNameAndUidInTheTip()
    {
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"),
                            ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        CVoipWidget window;
        const ShownCall shown(window);

        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);

        QCOMPARE(window.windowTitle(), QStringLiteral("视频通话"));
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("与Ann(Annie)(ann)通话中"));
        QCOMPARE(shown.page("displayPane"), 1);
        QVERIFY(shown.part("btnMuteAll")->isHidden());
    }

    void conferenceLeavesThePartsOfASingleCall()
    {
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"),
                            ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        const qint64 iHead = shown.label("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey();

        window.setVoipCallInfo({QStringLiteral("bob")}, CVoipWidget::Conference, false, false);

        QCOMPARE(shown.text("lblStatus"), QStringLiteral("正在呼叫..."));
        QCOMPARE(shown.text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(shown.label("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey(), iHead);
    }

    void conferenceShowsMembersAndCount_data()
    {
        QTest::addColumn<bool>("myCall");
        QTest::newRow("mine: mute-all and invite are shown") << true;
        QTest::newRow("joined: mute-all and invite are hidden") << false;
    }

    void conferenceShowsMembersAndCount()
    {
        QFETCH(bool, myCall);
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);

        window.setVoipCallInfo({QStringLiteral("ann"), QStringLiteral("bob")}, CVoipWidget::Conference, myCall, false);

        QCOMPARE(window.windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("语音会议通话中"));
        QCOMPARE(shown.text("lblListCount"), QStringLiteral("参与人员(2)"));
        QCOMPARE(shown.page("displayPane"), 2);
        QCOMPARE(shown.part("btnMuteAll")->isHidden(), !myCall);
        QCOMPARE(shown.part("btnAddMember")->isHidden(), !myCall);
        QCOMPARE(shown.rows()->rowCount(), 2);
        QCOMPARE(shown.rows()->index(1, 0).data(ROLE_USER_ID).toString(), QStringLiteral("bob"));
        QCOMPARE(shown.rows()->index(0, 0).data(ROLE_CALL_BY_ME).toBool(), myCall);
    }

    void emptyListChangesNothingForSingleCalls_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("voice") << int(CVoipWidget::Voice);
        QTest::newRow("video") << int(CVoipWidget::Video);
    }

    void emptyListChangesNothingForSingleCalls()
    {
        QFETCH(int, type);
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Conference, true, true);

        window.setVoipCallInfo({}, CVoipWidget::VoipType(type), false, false);

        QCOMPARE(window.windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("语音会议通话中"));
        QCOMPARE(shown.page("displayPane"), 2);
        QCOMPARE(shown.page("controlPane"), 1);
        QVERIFY(!shown.part("btnMuteAll")->isHidden());
        // The type is still that of a conference: a card goes to the list.
        window.updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                              ContactFixture::card(QStringLiteral("A"), {}));
        QCOMPARE(shown.rows()->index(0, 0).data(ROLE_DISPLAY_NAME).toString(), QStringLiteral("A"));
    }

    void emptyConferenceShowsCountZero()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);

        window.setVoipCallInfo({}, CVoipWidget::Conference, false, false);

        QCOMPARE(window.windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(shown.text("lblListCount"), QStringLiteral("参与人员(0)"));
        QCOMPARE(shown.rows()->rowCount(), 0);
    }

    void otherTypeChangesNeitherPageNorTitle()
    {
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"),
                            ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        window.setVoipCallInfo({QStringLiteral("bob")}, CVoipWidget::VoipType(7), false, true);

        QCOMPARE(window.windowTitle(), QStringLiteral("语音通话"));
        QCOMPARE(shown.page("displayPane"), 0);
        QCOMPARE(shown.page("controlPane"), 1);
        QCOMPARE(shown.text("lblStatus"), QStringLiteral("正在连接..."));
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("与Ann(Annie)(ann)通话中"));
    }

    void connectedAtOnceShowsTheCallingControls()
    {
        ContactFixture contacts;
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, true);
        QCOMPARE(ShownCall(window).page("controlPane"), 1);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        QCOMPARE(ShownCall(window).page("controlPane"), 0);
    }

    void connectingStartsTheClock()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        const auto *clock = window.findChild<QTimer *>(QStringLiteral("m_callTimeTimer"));
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        QVERIFY(!clock->isActive());

        window.setVoipCallStatus(true);

        QVERIFY(clock->isActive());
        QVERIFY(!clock->isSingleShot());
        QCOMPARE(clock->interval(), 1000);
        QCOMPARE(shown.page("controlPane"), 1);
        QCOMPARE(shown.text("lblStatus"), QStringLiteral("已接通"));
        QVERIFY(!shown.label("currentPlayTimeLabel")->isHidden());
    }

    void droppedStatusGoesBackToRequestControlsAndTheClockRunsOn()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        const auto *clock = window.findChild<QTimer *>(QStringLiteral("m_callTimeTimer"));
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, false, false);
        window.setVoipCallStatus(true);

        window.setVoipCallStatus(false);

        QCOMPARE(shown.page("controlPane"), 0);
        QCOMPARE(shown.text("lblStatus"), QStringLiteral("正在呼叫..."));
        QVERIFY(clock->isActive());
        QVERIFY(!shown.label("currentPlayTimeLabel")->isHidden());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        QVERIFY(!shown.label("currentPlayTimeLabel")->isVisible());
        window.close();
        QVERIFY(clock->isActive());
    }

    void clockShowsTheSecondsSinceConnecting()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        window.setVoipCallStatus(true);
        QCOMPARE(shown.text("currentPlayTimeLabel"), QString());

        auto *clock = window.findChild<QTimer *>(QStringLiteral("m_callTimeTimer"));
        clock->setInterval(0);

        QTRY_VERIFY_WITH_TIMEOUT(shown.text("currentPlayTimeLabel").startsWith(QStringLiteral("00:00:")), cPatienceMs);
    }

    void clockWritesAgainAfterTheCallWasCleared()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        window.setVoipCallStatus(true);
        window.close();
        QCOMPARE(shown.text("currentPlayTimeLabel"), QString());
        QVERIFY(!shown.label("currentPlayTimeLabel")->isHidden());

        window.findChild<QTimer *>(QStringLiteral("m_callTimeTimer"))->setInterval(0);

        QTRY_VERIFY_WITH_TIMEOUT(shown.text("currentPlayTimeLabel").startsWith(QStringLiteral("00:00:")), cPatienceMs);
    }

    void clockRunsNegativeAcrossMidnight()
    {
        DayTime time;
        time.makeIt(14);
        ContactFixture contacts;
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        window.setVoipCallStatus(true);

        time.makeIt(12);
        QVERIFY(QMetaObject::invokeMethod(&window, "slot_RefreshTime"));

        const QString strClock = ShownCall(window).text("currentPlayTimeLabel");
        // A second may have begun since the call connected.
        QVERIFY2(strClock == QLatin1String("0-2:00:00") || strClock.startsWith(QLatin1String("0-1:0-59:0-")),
                 qPrintable(strClock));
    }

    void clockStartsAnewAtEachConnecting()
    {
        DayTime time;
        time.makeIt(12);
        ContactFixture contacts;
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        window.setVoipCallStatus(true);
        time.makeIt(14);
        window.setVoipCallStatus(true);

        QVERIFY(QMetaObject::invokeMethod(&window, "slot_RefreshTime"));

        const QString strClock = ShownCall(window).text("currentPlayTimeLabel");
        QVERIFY2(strClock.startsWith(QLatin1String("00:00:")), qPrintable(strClock));
    }

    void newCallAfterACloseStartsWithAnEmptyList()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann"), QStringLiteral("bob")}, CVoipWidget::Conference, true, false);
        window.close();
        QCOMPARE(shown.rows()->rowCount(), 0);

        window.setVoipCallInfo({QStringLiteral("cat")}, CVoipWidget::Conference, false, false);

        QCOMPARE(shown.rows()->rowCount(), 1);
        QCOMPARE(shown.text("lblListCount"), QStringLiteral("参与人员(1)"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetCalls, Widgets)

#include "tst_VoipWidgetCalls.moc"
