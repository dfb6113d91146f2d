// The conference centre: its look, its pages, what it tells the host and the call manager, and how it is moved.

#include "ContactFixture.h"
#include "RealCursor.h"
#include "ShippedFiles.h"
#include "fakes/FakeHost.h"
#include "plugin/EMsgId.h"
#include "plugin/VoipManageMessageProcess.h"
#include "store/DB.h"
#include "ui/ConferenceDetaileWidget.h"
#include "ui/ConferenceInfoListView.h"
#include "ui/MemberRoles.h"
#include "ui/VoiceConferenceWidget.h"
#include "widgets/BaseFormEx.h"
#include "widgets/IconButtonEx.h"
#include "widgets/MenuEx.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(QMargins)

class tst_VoiceConferenceWidget : public QObject
{
    Q_OBJECT

private:
    template <typename Widget>
    Widget *part(const char *name) const
    {
        return m_pWindow->findChild<Widget *>(QLatin1String(name));
    }
    CConferenceInfoListView *list() const { return part<CConferenceInfoListView>("listView"); }
    QStringList ids() const
    {
        QStringList ids;
        for (int i = 0; i < list()->model()->rowCount(); ++i)
            ids.append(list()->model()->index(i, 0).data(ROLE_CONF_ID).toString());
        return ids;
    }
    int page() const { return part<QStackedWidget>("contentStackedWidget")->currentIndex(); }
    void expectPage(int iPage) const
    {
        QCOMPARE(page(), iPage);
        QCOMPARE(part<QPushButton>("backBtn")->isHidden(), iPage == 0);
        QCOMPARE(part<QPushButton>("creatConferenceBtn")->isHidden(), iPage == 1);
    }
    void call(const char *pSlot, const QString &strConfID)
    {
        QVERIFY(QMetaObject::invokeMethod(m_pWindow.get(), pSlot, Q_ARG(QString, strConfID)));
    }
    static ConfInfoData record(const QString &strConfID, const QStringList &members = {"ann", "me"})
    {
        ConfInfoData info;
        info.m_strConfID = strConfID;
        info.m_strCreatUserID = QStringLiteral("ann");
        info.m_strCreatTime = QStringLiteral("2024-03-05 09:08:07");
        info.m_strCallTime = QStringLiteral("75");
        info.m_listMember = members;
        info.m_bIsConnect = true;
        return info;
    }
    /// A window over a store with these records.
    void open(const QStringList &confIds)
    {
        for (const QString &strConfID : confIds)
            QVERIFY(DBConfInfo::saveConfInfo(record(strConfID)));
        m_pWindow = std::make_unique<CVoiceConferenceWidget>();
    }
    void showAt(const QPoint &corner)
    {
        m_pWindow->move(corner);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get()));
        QTRY_COMPARE(m_pWindow->frameGeometry().topLeft(), corner);
    }
    /// A mouse event on the window's empty strip beside its buttons, where the cursor is at `global`.
    void mouse(QEvent::Type type, const QPoint &global, Qt::MouseButton button = Qt::LeftButton)
    {
        QWidget *pStrip = part<QWidget>("buttonWidget");
        QMouseEvent event(type, pStrip->mapFromGlobal(global), global,
                          type == QEvent::MouseMove ? Qt::NoButton : button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QApplication::sendEvent(pStrip, &event);
    }
    /// The lists that the host was given to create conferences from, each joined by blanks.
    QStringList wishes() const
    {
        QStringList wishes;
        for (const ReceivedEvent &event : m_pHost->received(MSG_CREATE_VOICE_CONFERENCE)) {
            PayloadReader reader = event.reader();
            wishes.append(reader.takeTexts().join(QLatin1Char(' ')));
        }
        return wishes;
    }

    std::unique_ptr<QTemporaryDir> m_pFolder;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<FakeHost> m_pHost;
    std::unique_ptr<CVoiceConferenceWidget> m_pWindow;

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void windowIsFramelessAndFixed();
    void partsHaveTheirNamesAndSizes_data();
    void partsHaveTheirNamesAndSizes();
    void layoutsHaveTheirMargins_data();
    void layoutsHaveTheirMargins();
    void buttonsTakeNoFocus();
    void textsAndStyles();
    void signalsAndSlotsInOrder();

    void recordsComeInTheStoresOrder();
    void emptyStoreShowsNoRow();
    void withoutAStoreThereAreNoRecords();
    void newRecordComesOnTop();
    void knownOrEmptyIdChangesNothing();

    void detailButtonShowsTheDetailPage();
    void unknownIdShowsNoDetail();
    void backButtonGoesToTheListAndClearsTheDetail();
    void createButtonTellsTheHostWithAnEmptyList();
    void redialTellsTheHostTheMembersTheOwnIdKept();
    void redialWithoutMembersTellsAnEmptyList();
    void redialOfAnUnknownRecordTellsNothing();
    void hostMayCloseTheWindowWhileItTakesTheRedial();
    void deletedRecordLeavesTheWindowAndIsTold();
    void deletingAnUnknownRecordTellsNothing();
    void deletedIdCanComeAgain();

    void closeButtonClosesAndTells();
    void closeOfAnyKindTells();
    void closeIsNoEndOfTheHost();

    void dragMovesTheWindow();
    void dragFromTheCornerPixelDoesNotMove();
    void dragToTheScreensCornerStopsShort();
    void dragDownStopsAboveTheScreensEnd();
    void moveWithoutAPressDoesNotMove();
    void otherButtonsDoNotDrag();
    void dragGoesOnUntilTheLeftButtonIsReleased();
    void titleDragsTheWindow();

    void pictures();
};

void tst_VoiceConferenceWidget::initTestCase()
{
    QVERIFY(placeShippedFiles());
    QVERIFY(QDir().mkpath(QStringLiteral("Resources/images/CommonCtrls")));
    for (const char *pState : {"normal", "press"}) {
        const QString strFile = QStringLiteral("images/CommonCtrls/kvim_common_back_%1.png").arg(QLatin1String(pState));
        QVERIFY(QFile::copy(QStringLiteral(VOIP_RESOURCES "/") + strFile, QStringLiteral("Resources/") + strFile));
    }
}

void tst_VoiceConferenceWidget::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    m_pContacts = std::make_unique<ContactFixture>();
    m_pContacts->addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("Ann"), {}));
    m_pHost = std::make_unique<FakeHost>();
    VoipManageMessageProcess::instance()->setSendEvent(m_pHost.get());
    QVERIFY(DB::initByUserName(QStringLiteral("me"), m_pFolder->path(), true));
}

void tst_VoiceConferenceWidget::cleanup()
{
    m_pWindow.reset();
    DB::closeDB();
    VoipManageMessageProcess::instance()->setSendEvent(nullptr);
    m_pHost.reset();
    m_pContacts.reset();
    m_pFolder.reset();
}

void tst_VoiceConferenceWidget::windowIsFramelessAndFixed()
{
    open({});
    QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("会议详情"));
    QVERIFY(m_pWindow->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(m_pWindow->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(m_pWindow->hasMouseTracking());
    QCOMPARE(m_pWindow->minimumSize(), QSize(523, 403));
    QCOMPARE(m_pWindow->maximumSize(), QSize(523, 403));
    QCOMPARE(m_pWindow->objectName(), QStringLiteral("CVoiceConferenceWidget"));
    expectPage(0);
}

void tst_VoiceConferenceWidget::partsHaveTheirNamesAndSizes_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QSize>("size");
    const QSize any(-1, -1);
    QTest::newRow("widget") << "CVoiceConferenceWidget" << any;
    QTest::newRow("titleWidget") << "widget" << QSize(-1, 36);
    QTest::newRow("lblVoipTipMsg") << "titleWidget" << any;
    QTest::newRow("btnClose") << "titleWidget" << QSize(24, 24);
    QTest::newRow("buttonWidget") << "widget" << QSize(-1, 42);
    QTest::newRow("backBtn") << "buttonWidget" << QSize(44, 20);
    QTest::newRow("creatConferenceBtn") << "buttonWidget" << QSize(124, 30);
    QTest::newRow("contentStackedWidget") << "widget" << any;
    QTest::newRow("conferenceListWidget") << "contentStackedWidget" << any;
    QTest::newRow("listTitleWidget") << "conferenceListWidget" << QSize(-1, 36);
    QTest::newRow("label") << "listTitleWidget" << any;
    QTest::newRow("voiceConferenceListWidget") << "conferenceListWidget" << any;
    QTest::newRow("listView") << "voiceConferenceListWidget" << any;
    QTest::newRow("conferenceDetaileWidget") << "contentStackedWidget" << any;
}

void tst_VoiceConferenceWidget::partsHaveTheirNamesAndSizes()
{
    QFETCH(QString, parent);
    QFETCH(QSize, size);
    open({});
    auto *const pParent = parent == m_pWindow->objectName() ? m_pWindow.get() : m_pWindow->findChild<QWidget *>(parent);
    QVERIFY(pParent);
    const auto *pPart =
        pParent->findChild<QWidget *>(QLatin1String(QTest::currentDataTag()), Qt::FindDirectChildrenOnly);
    QVERIFY(pPart);
    if (size.height() >= 0) {
        QCOMPARE(pPart->minimumHeight(), size.height());
        QCOMPARE(pPart->maximumHeight(), size.height());
    }
    if (size.width() >= 0) {
        QCOMPARE(pPart->minimumWidth(), size.width());
        QCOMPARE(pPart->maximumWidth(), size.width());
    }
}

void tst_VoiceConferenceWidget::layoutsHaveTheirMargins_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("verticalLayout") << "CVoiceConferenceWidget" << QMargins();
    QTest::newRow("verticalLayout_2") << "widget" << QMargins(3, 3, 3, 3);
    QTest::newRow("horizontalLayout_12") << "titleWidget" << QMargins();
    QTest::newRow("horizontalLayout_13") << "titleWidget" << QMargins(20, 0, 10, 0);
    QTest::newRow("horizontalLayout_2") << "buttonWidget" << QMargins(10, 0, 10, 0);
    QTest::newRow("verticalLayout_3") << "conferenceListWidget" << QMargins(0, 0, 0, 10);
    QTest::newRow("horizontalLayout") << "listTitleWidget" << QMargins(20, 0, 0, 0);
    QTest::newRow("verticalLayout_4") << "voiceConferenceListWidget" << QMargins();
}

void tst_VoiceConferenceWidget::layoutsHaveTheirMargins()
{
    QFETCH(QString, owner);
    QFETCH(QMargins, margins);
    open({});
    auto *const pOwner = owner == m_pWindow->objectName() ? m_pWindow.get() : m_pWindow->findChild<QWidget *>(owner);
    const auto *pLayout = pOwner->findChild<QLayout *>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(pLayout);
    QCOMPARE(pLayout->parentWidget(), pOwner);
    QCOMPARE(pLayout->contentsMargins(), margins);
    QCOMPARE(pLayout->spacing(), 0);
}

void tst_VoiceConferenceWidget::buttonsTakeNoFocus()
{
    open({});
    QCOMPARE(part<QWidget>("btnClose")->focusPolicy(), Qt::NoFocus);
    for (const char *pName : {"backBtn", "creatConferenceBtn"}) {
        const auto *pButton = part<QPushButton>(pName);
        QCOMPARE(pButton->focusPolicy(), Qt::NoFocus);
        QVERIFY(!pButton->autoDefault());
        QVERIFY(!pButton->isDefault());
        QVERIFY(pButton->isFlat());
        QCOMPARE(pButton->font().family(), QStringLiteral("微软雅黑"));
        QCOMPARE(pButton->font().pixelSize(), 12);
    }
    QCOMPARE(list()->frameShape(), QFrame::NoFrame);
    QCOMPARE(list()->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(part<CBaseFormEx>("widget"));
    QVERIFY(part<CIconButtonEx>("btnClose"));
    QCOMPARE(part<QWidget>("btnClose")->toolTip(), QStringLiteral("close"));
}

void tst_VoiceConferenceWidget::textsAndStyles()
{
    open({});
    QCOMPARE(part<QPushButton>("backBtn")->text(), QStringLiteral("返回"));
    QCOMPARE(part<QPushButton>("creatConferenceBtn")->text(), QStringLiteral("发起语音会议"));
    QVERIFY(!part<QPushButton>("creatConferenceBtn")->icon().isNull());
    QCOMPARE(part<QPushButton>("creatConferenceBtn")->iconSize(), QSize(30, 30));
    QCOMPARE(part<QLabel>("label")->text(), QStringLiteral("会议记录"));
    QCOMPARE(part<QLabel>("lblVoipTipMsg")->text(), QStringLiteral("语音会议"));
    QCOMPARE(part<QLabel>("lblVoipTipMsg")->styleSheet(),
             QStringLiteral("QLabel#lblVoipTipMsg{ color: #313131; font:14px 微软雅黑; }"));
    QCOMPARE(part<QWidget>("titleWidget")->styleSheet(),
             QStringLiteral("QWidget#titleWidget{ background-color: #f1f4f4;}"));
    QCOMPARE(part<QPushButton>("backBtn")->styleSheet(),
             QStringLiteral("QPushButton#backBtn{border:none;"
                            "border-image:url(Resources/images/CommonCtrls/kvim_common_back_normal.png);}"
                            "QPushButton#backBtn:hover{border:none;"
                            "border-image:url(Resources/images/CommonCtrls/kvim_common_back_press.png);}"
                            "QPushButton#backBtn:press{border:none;"
                            "border-image:url(Resources/images/CommonCtrls/kvim_common_back_press.png);}"));
    const QString strCreate = part<QPushButton>("creatConferenceBtn")->styleSheet().remove(QLatin1Char('\n'));
    const QString strRules = QStringLiteral("{border-radius: 2px;color:#ffffff;background-color:#27c341;}");
    QString strExpected;
    for (const char *pState : {":!checked", ":checked", ":!checked:hover", ":hover:pressed"})
        strExpected += QStringLiteral("QPushButton#creatConferenceBtn") + QLatin1String(pState) + strRules;
    QCOMPARE(strCreate, strExpected);
}

void tst_VoiceConferenceWidget::signalsAndSlotsInOrder()
{
    const QMetaObject &meta = CVoiceConferenceWidget::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(methods,
             QStringList({"signal_VoiceConfWidgetClose()", "signal_DeleteConfInfoData(QString)", "slot_close()",
                          "slot_ShowConfDetail(QString)", "slot_BackToConfListPage()", "slot_CreatConferencePage()",
                          "slot_ReCallConf(QString)", "slot_DeleteConfInfo(QString)"}));
}

void tst_VoiceConferenceWidget::recordsComeInTheStoresOrder()
{
    open({"2", "10", "9"});
    QCOMPARE(ids(), QStringList({"9", "2", "10"}));
}

void tst_VoiceConferenceWidget::emptyStoreShowsNoRow()
{
    open({});
    QCOMPARE(ids(), QStringList());
}

void tst_VoiceConferenceWidget::withoutAStoreThereAreNoRecords()
{
    DB::closeDB();
    m_pWindow = std::make_unique<CVoiceConferenceWidget>();
    QCOMPARE(ids(), QStringList());
    m_pWindow->addConferenceInfo(record("a"));
    QCOMPARE(ids(), QStringList{"a"});
}

void tst_VoiceConferenceWidget::newRecordComesOnTop()
{
    open({"b", "a"});
    m_pWindow->addConferenceInfo(record("0"));
    QCOMPARE(ids(), QStringList({"0", "b", "a"}));
}

void tst_VoiceConferenceWidget::knownOrEmptyIdChangesNothing()
{
    open({"b", "a"});
    m_pWindow->addConferenceInfo(record("a", {"somebody"}));
    m_pWindow->addConferenceInfo(record(QString()));
    QCOMPARE(ids(), QStringList({"b", "a"}));
    call("slot_ReCallConf", "a");
    QCOMPARE(wishes(), QStringList{"ann@kelvar.im me@kelvar.im"});
    call("slot_ReCallConf", QString());
    QCOMPARE(wishes().size(), 1);
}

void tst_VoiceConferenceWidget::detailButtonShowsTheDetailPage()
{
    open({"b", "a"});
    showAt({100, 100});
    const QRect row = list()->visualRect(list()->model()->index(1, 0));
    QVERIFY(RealCursor::moveTo(list()->viewport(), row.center()));
    QTRY_VERIFY(!list()->model()->index(1, 0).data(ROLE_REMOVE_RECT).toRect().isNull());
    const QPoint button = list()->model()->index(1, 0).data(ROLE_REMOVE_RECT).toRect().center();
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, button);
    expectPage(1);
    QCOMPARE(part<QLabel>("lblCallTime")->text(), QStringLiteral("1分15秒"));
    QCOMPARE(part<QWidget>("conferenceDetaileWidget")->contentsMargins(), QMargins(0, 0, 0, 10));
}

void tst_VoiceConferenceWidget::unknownIdShowsNoDetail()
{
    open({"a"});
    call("slot_ShowConfDetail", "b");
    call("slot_ShowConfDetail", QString());
    expectPage(0);
}

void tst_VoiceConferenceWidget::backButtonGoesToTheListAndClearsTheDetail()
{
    open({"a"});
    showAt({100, 100});
    call("slot_ShowConfDetail", "a");
    expectPage(1);
    QVERIFY(!part<QLabel>("lblCreateTime")->text().isEmpty());
    QTest::mouseClick(part<QPushButton>("backBtn"), Qt::LeftButton);
    expectPage(0);
    QVERIFY(part<QLabel>("lblCreateTime")->text().isEmpty());
}

void tst_VoiceConferenceWidget::createButtonTellsTheHostWithAnEmptyList()
{
    open({"a"});
    showAt({100, 100});
    QTest::mouseClick(part<QPushButton>("creatConferenceBtn"), Qt::LeftButton);
    QCOMPARE(wishes(), QStringList{""});
}

void tst_VoiceConferenceWidget::redialTellsTheHostTheMembersTheOwnIdKept()
{
    open({});
    m_pWindow->addConferenceInfo(record("a", {"me", "", "bert", "ann", "bert"}));
    call("slot_ReCallConf", "a");
    QCOMPARE(wishes(), QStringList{"me@kelvar.im bert@kelvar.im ann@kelvar.im bert@kelvar.im"});
}

void tst_VoiceConferenceWidget::redialWithoutMembersTellsAnEmptyList()
{
    open({});
    m_pWindow->addConferenceInfo(record("a", {}));
    call("slot_ReCallConf", "a");
    QCOMPARE(wishes(), QStringList{""});
}

void tst_VoiceConferenceWidget::redialOfAnUnknownRecordTellsNothing()
{
    open({"a"});
    call("slot_ReCallConf", "b");
    QCOMPARE(wishes(), QStringList());
}

void tst_VoiceConferenceWidget::hostMayCloseTheWindowWhileItTakesTheRedial()
{
    open({"a"});
    showAt({100, 100});
    connect(m_pWindow.get(), &CVoiceConferenceWidget::signal_VoiceConfWidgetClose, m_pWindow.get(),
            [this] { m_pWindow.release()->deleteLater(); });
    m_pHost->whileHandled = [this](BaseEvent &event) {
        if (event.msgId != MSG_CREATE_VOICE_CONFERENCE)
            return;
        const QPointer<QWidget> window = m_pWindow.get();
        QTimer::singleShot(0, window, &QWidget::close);
        QTRY_VERIFY(!window);
    };
    const QPoint row = list()->visualRect(list()->model()->index(0, 0)).center();
    QCursor::setPos(list()->viewport()->mapToGlobal(row));
    QTest::mouseClick(list()->viewport(), Qt::RightButton, Qt::NoModifier, row);
    auto *const pMenu = list()->findChild<CMenuEx *>();
    QVERIFY(QTest::qWaitForWindowExposed(pMenu));
    const QPoint entry = pMenu->actionGeometry(pMenu->actions().first()).center();
    QVERIFY(RealCursor::moveTo(pMenu, entry));
    QTest::mouseClick(pMenu, Qt::LeftButton, Qt::NoModifier, entry);
    QCOMPARE(wishes().size(), 1);
}

void tst_VoiceConferenceWidget::deletedRecordLeavesTheWindowAndIsTold()
{
    open({"b", "a"});
    showAt({100, 100});
    QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_DeleteConfInfoData(QString)));
    QStringList idsWhenTold;
    connect(m_pWindow.get(), &CVoiceConferenceWidget::signal_DeleteConfInfoData, this, [&] { idsWhenTold = ids(); });
    call("slot_DeleteConfInfo", "b");
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("b"));
    QCOMPARE(idsWhenTold, QStringList{"a"});
    // The store is the call manager's business.
    QCOMPARE(DBConfInfo::getAllConfInfo().size(), 2);
    call("slot_ShowConfDetail", "b");
    expectPage(0);
}

void tst_VoiceConferenceWidget::deletingAnUnknownRecordTellsNothing()
{
    open({"a", ""});
    QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_DeleteConfInfoData(QString)));
    call("slot_DeleteConfInfo", "b");
    call("slot_DeleteConfInfo", QString());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(ids(), QStringList({"a", ""}));
}

void tst_VoiceConferenceWidget::deletedIdCanComeAgain()
{
    open({"b", "a"});
    call("slot_DeleteConfInfo", "a");
    m_pWindow->addConferenceInfo(record("a"));
    QCOMPARE(ids(), QStringList({"a", "b"}));
}

void tst_VoiceConferenceWidget::closeButtonClosesAndTells()
{
    open({});
    showAt({100, 100});
    QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_VoiceConfWidgetClose()));
    auto *const pClose = part<CIconButtonEx>("btnClose");
    QTest::mouseClick(pClose->childAt(pClose->rect().center()), Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    QVERIFY(!m_pWindow->isVisible());
}

void tst_VoiceConferenceWidget::closeOfAnyKindTells()
{
    open({});
    QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_VoiceConfWidgetClose()));
    QCloseEvent event;
    QApplication::sendEvent(m_pWindow.get(), &event);
    QCOMPARE(spy.size(), 1);
    QVERIFY(event.isAccepted());
}

void tst_VoiceConferenceWidget::closeIsNoEndOfTheHost()
{
    open({});
    showAt({100, 100});
    QSignalSpy spy(qApp, SIGNAL(lastWindowClosed()));
    m_pWindow->close();
    QCOMPARE(spy.size(), 0);
}

void tst_VoiceConferenceWidget::dragMovesTheWindow()
{
    open({});
    showAt({100, 100});
    mouse(QEvent::MouseButtonPress, {300, 160});
    mouse(QEvent::MouseMove, {350, 190});
    QCOMPARE(m_pWindow->pos(), QPoint(150, 130));
    mouse(QEvent::MouseMove, {10, 10});
    QCOMPARE(m_pWindow->pos(), QPoint(-190, -50));
    mouse(QEvent::MouseButtonRelease, {10, 10});
    mouse(QEvent::MouseMove, {300, 300});
    QCOMPARE(m_pWindow->pos(), QPoint(-190, -50));
}

void tst_VoiceConferenceWidget::dragFromTheCornerPixelDoesNotMove()
{
    open({});
    showAt({100, 100});
    mouse(QEvent::MouseButtonPress, {100, 100});
    mouse(QEvent::MouseMove, {180, 190});
    QCOMPARE(m_pWindow->pos(), QPoint(100, 100));
}

void tst_VoiceConferenceWidget::dragToTheScreensCornerStopsShort()
{
    open({});
    showAt({100, 100});
    mouse(QEvent::MouseButtonPress, {120, 150});
    mouse(QEvent::MouseMove, {21, 51});
    QCOMPARE(m_pWindow->pos(), QPoint(1, 1));
    mouse(QEvent::MouseMove, {20, 50});
    QCOMPARE(m_pWindow->pos(), QPoint(1, 1));
    mouse(QEvent::MouseMove, {20, 51});
    QCOMPARE(m_pWindow->pos(), QPoint(0, 1));
}

void tst_VoiceConferenceWidget::dragDownStopsAboveTheScreensEnd()
{
    open({});
    showAt({100, 100});
    const int iHeight = QGuiApplication::primaryScreen()->availableGeometry().height();
    mouse(QEvent::MouseButtonPress, {120, 150});
    mouse(QEvent::MouseMove, {120, iHeight - 10 + 50});
    QCOMPARE(m_pWindow->y(), iHeight - 10);
    mouse(QEvent::MouseMove, {120, iHeight - 10 + 51});
    QCOMPARE(m_pWindow->y(), iHeight - 10);
    mouse(QEvent::MouseMove, {120, iHeight - 11 + 50});
    QCOMPARE(m_pWindow->y(), iHeight - 11);
}

void tst_VoiceConferenceWidget::moveWithoutAPressDoesNotMove()
{
    open({});
    showAt({100, 100});
    mouse(QEvent::MouseMove, {350, 190});
    QCOMPARE(m_pWindow->pos(), QPoint(100, 100));
}

void tst_VoiceConferenceWidget::otherButtonsDoNotDrag()
{
    open({});
    showAt({100, 100});
    mouse(QEvent::MouseButtonPress, {300, 160}, Qt::RightButton);
    mouse(QEvent::MouseMove, {350, 190});
    QCOMPARE(m_pWindow->pos(), QPoint(100, 100));
}

void tst_VoiceConferenceWidget::dragGoesOnUntilTheLeftButtonIsReleased()
{
    open({});
    showAt({100, 100});
    mouse(QEvent::MouseButtonPress, {300, 160});
    mouse(QEvent::MouseButtonRelease, {300, 160}, Qt::RightButton);
    // What the buttons are now is not asked.
    mouse(QEvent::MouseMove, {310, 160}, Qt::RightButton);
    QCOMPARE(m_pWindow->pos(), QPoint(110, 100));
}

void tst_VoiceConferenceWidget::titleDragsTheWindow()
{
    open({});
    showAt({100, 100});
    auto *const pTitle = part<QLabel>("lblVoipTipMsg");
    const QPoint start = pTitle->mapToGlobal(QPoint(3, 3));
    QTest::mousePress(pTitle, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    QMouseEvent move(QEvent::MouseMove, QPointF(43, 23), start + QPoint(40, 20), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(pTitle, &move);
    QCOMPARE(m_pWindow->pos(), QPoint(140, 120));
    QTest::mouseRelease(pTitle, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
}

void tst_VoiceConferenceWidget::pictures()
{
    open({"b", "a"});
    m_pWindow->addConferenceInfo(record("0"));
    showAt({100, 100});
    const QImage listPage = m_pWindow->grab().toImage();
    call("slot_ShowConfDetail", "a");
    QCoreApplication::processEvents();
    const QImage detailPage = m_pWindow->grab().toImage();
    const QString strFolder = qEnvironmentVariable("VOIP_PICTURES");
    if (!strFolder.isEmpty()) {
        listPage.save(strFolder + QStringLiteral("/centre_list_%1x.png").arg(listPage.devicePixelRatio()));
        detailPage.save(strFolder + QStringLiteral("/centre_detail_%1x.png").arg(listPage.devicePixelRatio()));
    }
    const qreal ratio = listPage.devicePixelRatio();
    QCOMPARE(listPage.size(), QSize(523, 403) * ratio);
    const QPoint title = part<QWidget>("titleWidget")->mapTo(m_pWindow.get(), QPoint(200, 18)) * ratio;
    QCOMPARE(listPage.pixelColor(title), QColor(0xf1, 0xf4, 0xf4));
    QVERIFY(listPage != detailPage);
}

QTEST_MAIN(tst_VoiceConferenceWidget)
#include "tst_VoiceConferenceWidget.moc"
