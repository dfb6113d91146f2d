// How the call window is set up for each kind of call, and what it shows while the call runs.

#include "CallWindowTest.h"

#include "fakes/Patience.h"

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

class tst_VoipWidgetCalls : public CallWindowTest
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
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        m_pWindow->setVoipCallInfo({QStringLiteral("ann"), QStringLiteral("bob")}, CVoipWidget::Voice, myCall, false);
        showWindow();

        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("语音通话"));
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音通话"));
        QCOMPARE(text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(text("lblStatus"), status);
        QCOMPARE(page("displayPane"), 0);
        QCOMPARE(page("controlPane"), 0);
        QVERIFY(part<QLabel>("lblUserName")->isVisible());
        QVERIFY(part<QWidget>("btnCancelCall")->isVisible());
        QVERIFY(!part<QWidget>("HangUp")->isVisible());
        QVERIFY(part<QWidget>("btnMuteAll")->isHidden());
        QVERIFY(part<QLabel>("currentPlayTimeLabel")->isHidden());
    }

    void videoCallShowsNameAndUidInTheTip()
    {
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);

        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("视频通话"));
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("与Ann(Annie)(ann)通话中"));
        QCOMPARE(page("displayPane"), 1);
        QVERIFY(part<QWidget>("btnMuteAll")->isHidden());
    }

    void conferenceLeavesThePartsOfASingleCall()
    {
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        const qint64 iHead = part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey();

        m_pWindow->setVoipCallInfo({QStringLiteral("bob")}, CVoipWidget::Conference, false, false);

        QCOMPARE(text("lblStatus"), QStringLiteral("正在呼叫..."));
        QCOMPARE(text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey(), iHead);
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

        m_pWindow->setVoipCallInfo({QStringLiteral("ann"), QStringLiteral("bob")}, CVoipWidget::Conference, myCall,
                                   false);

        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音会议通话中"));
        QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(2)"));
        QCOMPARE(page("displayPane"), 2);
        QCOMPARE(part<QWidget>("btnMuteAll")->isHidden(), !myCall);
        QCOMPARE(part<QWidget>("btnAddMember")->isHidden(), !myCall);
        QCOMPARE(rows()->rowCount(), 2);
        QCOMPARE(rows()->index(1, 0).data(ROLE_USER_ID).toString(), QStringLiteral("bob"));
        QCOMPARE(rows()->index(0, 0).data(ROLE_CALL_BY_ME).toBool(), myCall);
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
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Conference, true, true);

        m_pWindow->setVoipCallInfo({}, CVoipWidget::VoipType(type), false, false);

        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音会议通话中"));
        QCOMPARE(page("displayPane"), 2);
        QCOMPARE(page("controlPane"), 1);
        QVERIFY(!part<QWidget>("btnMuteAll")->isHidden());
        // The type is still that of a conference: a card goes to the list.
        m_pWindow->updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                                  ContactFixture::card(QStringLiteral("A"), {}));
        QCOMPARE(rows()->index(0, 0).data(ROLE_DISPLAY_NAME).toString(), QStringLiteral("A"));
    }

    void emptyConferenceShowsCountZero()
    {
        m_pWindow->setVoipCallInfo({}, CVoipWidget::Conference, false, false);

        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(0)"));
        QCOMPARE(rows()->rowCount(), 0);
    }

    void otherTypeChangesNeitherPageNorTitle()
    {
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        m_pWindow->setVoipCallInfo({QStringLiteral("bob")}, CVoipWidget::VoipType(7), false, true);

        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("语音通话"));
        QCOMPARE(page("displayPane"), 0);
        QCOMPARE(page("controlPane"), 1);
        QCOMPARE(text("lblStatus"), QStringLiteral("正在连接..."));
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("与Ann(Annie)(ann)通话中"));
    }

    void connectedAtOnceShowsTheCallingControls()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, true);
        QCOMPARE(page("controlPane"), 1);
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        QCOMPARE(page("controlPane"), 0);
    }

    void connectingStartsTheClock()
    {
        const auto *clock = m_pWindow->findChild<QTimer *>(QStringLiteral("m_callTimeTimer"));
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        QVERIFY(!clock->isActive());

        m_pWindow->setVoipCallStatus(true);

        QVERIFY(clock->isActive());
        QVERIFY(!clock->isSingleShot());
        QCOMPARE(clock->interval(), 1000);
        QCOMPARE(page("controlPane"), 1);
        QCOMPARE(text("lblStatus"), QStringLiteral("已接通"));
        QVERIFY(!part<QLabel>("currentPlayTimeLabel")->isHidden());
    }

    void droppedStatusGoesBackToRequestControlsAndTheClockRunsOn()
    {
        const auto *clock = m_pWindow->findChild<QTimer *>(QStringLiteral("m_callTimeTimer"));
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, false, false);
        m_pWindow->setVoipCallStatus(true);

        m_pWindow->setVoipCallStatus(false);

        QCOMPARE(page("controlPane"), 0);
        QCOMPARE(text("lblStatus"), QStringLiteral("正在呼叫..."));
        QVERIFY(clock->isActive());
        QVERIFY(!part<QLabel>("currentPlayTimeLabel")->isHidden());
        showWindow();
        QVERIFY(!part<QLabel>("currentPlayTimeLabel")->isVisible());
        m_pWindow->close();
        QVERIFY(clock->isActive());
    }

    void clockShowsTheSecondsSinceConnecting()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        m_pWindow->setVoipCallStatus(true);
        QCOMPARE(text("currentPlayTimeLabel"), QString());

        auto *clock = m_pWindow->findChild<QTimer *>(QStringLiteral("m_callTimeTimer"));
        clock->setInterval(0);

        QTRY_VERIFY_WITH_TIMEOUT(text("currentPlayTimeLabel").startsWith(QStringLiteral("00:00:")), cPatienceMs);
    }

    void clockWritesAgainAfterTheCallWasCleared()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        m_pWindow->setVoipCallStatus(true);
        m_pWindow->close();
        QCOMPARE(text("currentPlayTimeLabel"), QString());
        QVERIFY(!part<QLabel>("currentPlayTimeLabel")->isHidden());

        m_pWindow->findChild<QTimer *>(QStringLiteral("m_callTimeTimer"))->setInterval(0);

        QTRY_VERIFY_WITH_TIMEOUT(text("currentPlayTimeLabel").startsWith(QStringLiteral("00:00:")), cPatienceMs);
    }

    void clockRunsNegativeAcrossMidnight()
    {
        DayTime time;
        time.makeIt(14);
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        m_pWindow->setVoipCallStatus(true);

        time.makeIt(12);
        QVERIFY(QMetaObject::invokeMethod(m_pWindow.get(), "slot_RefreshTime"));

        const QString strClock = text("currentPlayTimeLabel");
        // A second may have begun since the call connected.
        QVERIFY2(strClock == QLatin1String("0-2:00:00") || strClock.startsWith(QLatin1String("0-1:0-59:0-")),
                 qPrintable(strClock));
    }

    void clockStartsAnewAtEachConnecting()
    {
        DayTime time;
        time.makeIt(12);
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        m_pWindow->setVoipCallStatus(true);
        time.makeIt(14);
        m_pWindow->setVoipCallStatus(true);

        QVERIFY(QMetaObject::invokeMethod(m_pWindow.get(), "slot_RefreshTime"));

        const QString strClock = text("currentPlayTimeLabel");
        QVERIFY2(strClock.startsWith(QLatin1String("00:00:")), qPrintable(strClock));
    }

    void newCallAfterACloseStartsWithAnEmptyList()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann"), QStringLiteral("bob")}, CVoipWidget::Conference, true,
                                   false);
        m_pWindow->close();
        QCOMPARE(rows()->rowCount(), 0);

        m_pWindow->setVoipCallInfo({QStringLiteral("cat")}, CVoipWidget::Conference, false, false);

        QCOMPARE(rows()->rowCount(), 1);
        QCOMPARE(text("lblListCount"), QStringLiteral("参与人员(1)"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetCalls, Widgets)

#include "tst_VoipWidgetCalls.moc"
