// The conference detail page: its widgets, and what it shows of a record.

#include "ContactFixture.h"
#include "ShippedFiles.h"

#include "fakes/FakeHost.h"
#include "fakes/PaintedPicture.h"
#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConfDetailMemberTableView.h"
#include "ui/ConferenceDetaileWidget.h"
#include "widgets/VcardHeadLabel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(QMargins)

class tst_ConferenceDetaileWidget : public QObject
{
    Q_OBJECT

private:
    QLabel *label(const char *pName) const { return m_pPage->findChild<QLabel *>(QLatin1String(pName)); }
    QString text(const char *pName) const { return label(pName)->text(); }
    CConfDetailMemberTableView *grid() const
    {
        return m_pPage->findChild<CConfDetailMemberTableView *>(QStringLiteral("tableView"));
    }
    int cells() const { return grid()->model()->rowCount() * grid()->model()->columnCount(); }
    static ConfInfoData record(const QString &strCreator, const QString &strCallTime = QStringLiteral("75"),
                               const QStringList &members = {})
    {
        ConfInfoData info;
        info.m_strConfID = QStringLiteral("c1");
        info.m_strCreatUserID = strCreator;
        info.m_strCreatTime = QStringLiteral("2024-03-05 09:08:07");
        info.m_strCallTime = strCallTime;
        info.m_listMember = members;
        info.m_bIsConnect = true;
        return info;
    }
    void addContact(const QString &strUid, const QString &strName, const QString &strPhoto = {})
    {
        m_pContacts->addContact(strUid, ContactFixture::card(strName, {}, strPhoto));
    }
    /// The page as wide as the conference centre lays it out, on white. Left behind for a person to look at.
    QImage picture(const char *pName)
    {
        QPalette palette = m_pPage->palette();
        palette.setColor(QPalette::Window, Qt::white);
        m_pPage->setPalette(palette);
        m_pPage->resize(517, 309);
        m_pPage->show();
        if (!QTest::qWaitForWindowExposed(m_pPage.get(), cPatienceMs)) {
            return {};
        }
        QCoreApplication::processEvents();
        QImage image = m_pPage->grab().toImage().convertToFormat(QImage::Format_RGB32);
        leavePicture(image, QLatin1String(pName));
        return image;
    }

    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<FakeHost> m_pHost;
    std::unique_ptr<CConferenceDetaileWidget> m_pPage;

private slots:
    void initTestCase()
    {
        QVERIFY(placeShippedFiles());
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(QStringLiteral("red.png")));
    }

    void init()
    {
        QCursor::setPos(5, 5);
        m_pContacts = std::make_unique<ContactFixture>();
        m_pHost = std::make_unique<FakeHost>();
        VoipManageMessageProcess::instance()->setSendEvent(m_pHost.get());
        m_pPage = std::make_unique<CConferenceDetaileWidget>();
    }

    void cleanup()
    {
        m_pPage.reset();
        m_pHost.reset();
        m_pContacts.reset();
    }

    void widgetsStandInTheirTree_data()
    {
        QTest::addColumn<QString>("strParent");
        QTest::addColumn<int>("iHeight");
        const auto row = [](const char *pName, const char *pParent, int iHeight) {
            QTest::newRow(pName) << QString::fromLatin1(pParent) << iHeight;
        };
        row("confDetailWidget", "CConferenceDetaileWidget", 60);
        row("creatUserIcon", "confDetailWidget", 42);
        row("widget_4", "confDetailWidget", 0);
        row("widget", "widget_4", 0);
        row("widget_2", "widget", 15);
        row("CreatName", "widget_2", 0);
        row("lblCallTime", "widget_2", 0);
        row("widget_3", "widget", 15);
        row("isCreatorIcon", "widget_3", 0);
        row("lblCreateTime", "widget_3", 0);
        row("lblLine", "widget_4", 1);
        row("listMemberWidget", "CConferenceDetaileWidget", 0);
        row("listMemberTitleWidget", "listMemberWidget", 34);
        row("lblTableViewTitle", "listMemberTitleWidget", 0);
        row("tableView", "listMemberWidget", 0);
    }
    void widgetsStandInTheirTree()
    {
        QFETCH(QString, strParent);
        QFETCH(int, iHeight);
        const auto *pWidget = m_pPage->findChild<QWidget *>(QLatin1String(QTest::currentDataTag()));
        QVERIFY(pWidget != nullptr);
        QCOMPARE(pWidget->parentWidget()->objectName(), strParent);
        if (iHeight > 0) {
            QCOMPARE(pWidget->minimumHeight(), iHeight);
            QCOMPARE(pWidget->maximumHeight(), iHeight);
        }
    }

    void layoutsHaveTheirSpace_data()
    {
        QTest::addColumn<QString>("strWidget");
        QTest::addColumn<int>("iSpacing");
        QTest::addColumn<QMargins>("margins");
        const auto row = [](const char *pName, const char *pWidget, int iSpacing, const QMargins &margins) {
            QTest::newRow(pName) << QString::fromLatin1(pWidget) << iSpacing << margins;
        };
        row("verticalLayout", "CConferenceDetaileWidget", 0, {});
        row("horizontalLayout", "confDetailWidget", 10, {10, 0, 0, 0});
        row("verticalLayout_3", "widget_4", 0, {});
        row("verticalLayout_2", "widget", 8, {0, 12, 0, 15});
        row("horizontalLayout_2", "widget_2", 0, {0, 0, 10, 0});
        row("horizontalLayout_3", "widget_3", 0, {});
        row("verticalLayout_6", "listMemberWidget", 0, {});
        row("horizontalLayout_4", "listMemberTitleWidget", 0, {20, 0, 0, 0});
    }
    void layoutsHaveTheirSpace()
    {
        QFETCH(QString, strWidget);
        QFETCH(int, iSpacing);
        QFETCH(QMargins, margins);
        const auto *pLayout = m_pPage->findChild<QBoxLayout *>(QLatin1String(QTest::currentDataTag()));
        QVERIFY(pLayout != nullptr);
        QCOMPARE(pLayout->parentWidget()->objectName(), strWidget);
        QCOMPARE(pLayout->spacing(), iSpacing);
        QCOMPARE(pLayout->contentsMargins(), margins);
    }

    void formIsComplete()
    {
        const auto *pIcon = qobject_cast<VcardHeadLabel *>(label("creatUserIcon"));
        QVERIFY(pIcon != nullptr);
        QCOMPARE(pIcon->minimumSize(), QSize(42, 42));
        QCOMPARE(pIcon->maximumSize(), QSize(42, 42));
        QCOMPARE(grid()->frameShape(), QFrame::NoFrame);
        QCOMPARE(text("lblTableViewTitle"), QStringLiteral("参与人员"));
        QCOMPARE(label("isCreatorIcon")->font().family(), QStringLiteral("kelvarimiconfont"));
        QCOMPARE(m_pPage->objectName(), QStringLiteral("CConferenceDetaileWidget"));
    }

    void titleAloneHasTheTitlesLook()
    {
        const QString strSheet = QStringLiteral("QLabel#lblTableViewTitle{ color: #313131; font:14px 微软雅黑; }");
        picture("empty");
        QCOMPARE(label("lblTableViewTitle")->font().pixelSize(), 14);
        QCOMPARE(label("lblTableViewTitle")->palette().color(QPalette::WindowText), QColor(0x31, 0x31, 0x31));
        const QLabel plain;
        for (const char *pName : {"CreatName", "lblCallTime", "lblCreateTime"}) {
            QCOMPARE(label(pName)->styleSheet(), strSheet);
            QCOMPARE(label(pName)->font(), plain.font());
            QCOMPARE(label(pName)->palette().color(QPalette::WindowText), plain.palette().color(QPalette::WindowText));
        }
        QCOMPARE(label("lblTableViewTitle")->styleSheet(), strSheet);
    }

    void recordIsShownWhole()
    {
        addContact(QStringLiteral("ann"), QStringLiteral("Ann"), QStringLiteral("red.png"));
        addContact(QStringLiteral("m3"), QStringLiteral("a name that is far too long for one cell"));
        QStringList members;
        for (int i = 0; i < 15; ++i) {
            members.append(QStringLiteral("m%1").arg(i));
        }
        for (int i = 0; i < 15; i += 2) {
            addContact(members.at(i), QStringLiteral("成员 %1").arg(i),
                       i % 4 == 0 ? QStringLiteral("red.png") : QString());
        }
        m_pPage->setConferenceDetail(record(QStringLiteral("ann"), QStringLiteral("3725"), members));
        QCOMPARE(text("CreatName"), QStringLiteral("Ann"));
        QCOMPARE(text("lblCallTime"), QStringLiteral("1小时2分5秒"));
        QCOMPARE(text("lblCreateTime"), QStringLiteral("【语音会议】 2024-03-05 09:08:07"));
        QCOMPARE(cells(), 18);
        QCOMPARE(grid()->model()->index(2, 2).data(ROLE_USER_ID).toString(), QStringLiteral("m14"));

        const QImage image = picture("detail");
        const qreal dRatio = image.devicePixelRatio();
        QCOMPARE(image.pixelColor(QPoint(31, 30) * dRatio), QColor(Qt::red));
        QCOMPARE(image.pixelColor(QPoint(10, 9) * dRatio), QColor(Qt::white));
        const QPoint line = label("lblLine")->mapTo(m_pPage.get(), QPoint(0, 0));
        QCOMPARE(line, QPoint(62, 59));
        QCOMPARE(label("lblLine")->size(), QSize(455, 1));
        QCOMPARE(image.pixelColor(line * dRatio), QColor(0xdb, 0xdd, 0xdd));
        QCOMPARE(image.pixelColor(QPoint(516, 59) * dRatio), QColor(0xdb, 0xdd, 0xdd));
        QCOMPARE(grid()->mapTo(m_pPage.get(), QPoint(0, 0)), QPoint(0, 94));
        QCOMPARE(label("isCreatorIcon")->mapTo(m_pPage.get(), QPoint(0, 0)).x(), 62);
        QCOMPARE(label("lblCreateTime")->geometry().left(), label("isCreatorIcon")->sizeHint().width());
    }

    void arrowTellsWhoseConferenceItWas_data()
    {
        QTest::addColumn<QString>("strCreator");
        QTest::addColumn<int>("iGlyph");
        QTest::newRow("own") << QStringLiteral("me") << 0xF730;
        QTest::newRow("another's") << QStringLiteral("ann") << 0xF731;
        QTest::newRow("nobody's") << QString() << 0xF731;
        QTest::newRow("in other letters") << QStringLiteral("ME") << 0xF731;
    }
    void arrowTellsWhoseConferenceItWas()
    {
        QFETCH(QString, strCreator);
        QFETCH(int, iGlyph);
        m_pPage->setConferenceDetail(record(strCreator));
        QCOMPARE(text("isCreatorIcon"), QString(QChar(iGlyph)));
    }

    void callTimeIsToldInWords_data()
    {
        QTest::addColumn<QString>("strCallTime");
        QTest::addColumn<QString>("strShown");
        QTest::newRow("seconds") << QStringLiteral("59") << QStringLiteral("59秒");
        QTest::newRow("all parts") << QStringLiteral("3661") << QStringLiteral("1小时1分1秒");
        QTest::newRow("fraction") << QStringLiteral("61.9") << QStringLiteral("1分1秒");
        QTest::newRow("exponent") << QStringLiteral("6e1") << QStringLiteral("1分");
        QTest::newRow("never connected") << QStringLiteral("0") << QString();
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("no number") << QStringLiteral("12 seconds") << QString();
        QTest::newRow("negative") << QStringLiteral("-75") << QString();
        QTest::newRow("nan") << QStringLiteral("nan") << QString();
        QTest::newRow("inf") << QStringLiteral("inf") << QStringLiteral("2562047788015215小时30分7秒");
        QTest::newRow("-inf") << QStringLiteral("-inf") << QString();
        QTest::newRow("beyond 64 bits") << QStringLiteral("9223372036854775808")
                                        << QStringLiteral("2562047788015215小时30分7秒");
        QTest::newRow("far beyond") << QStringLiteral("1e300") << QStringLiteral("2562047788015215小时30分7秒");
        QTest::newRow("far below") << QStringLiteral("-1e300") << QString();
        QTest::newRow("beyond any double") << QStringLiteral("1e999") << QStringLiteral("2562047788015215小时30分7秒");
    }
    void callTimeIsToldInWords()
    {
        QFETCH(QString, strCallTime);
        QFETCH(QString, strShown);
        m_pPage->setConferenceDetail(record(QStringLiteral("ann"), strCallTime));
        QCOMPARE(text("lblCallTime"), strShown);
    }

    void recordThatNeverConnectedShowsNoWordForIt()
    {
        ConfInfoData info = record(QStringLiteral("ann"), QStringLiteral("0"));
        info.m_bIsConnect = false;
        m_pPage->setConferenceDetail(info);
        QCOMPARE(text("lblCallTime"), QString());
    }

    void creationTimeIsShownAsItIs_data()
    {
        QTest::addColumn<QString>("strTime");
        QTest::newRow("empty") << QString();
        QTest::newRow("no time") << QStringLiteral("<b>yesterday</b>");
        QTest::newRow("long") << QString(2000, QLatin1Char('9'));
    }
    void creationTimeIsShownAsItIs()
    {
        QFETCH(QString, strTime);
        ConfInfoData info = record(QStringLiteral("ann"));
        info.m_strCreatTime = strTime;
        m_pPage->setConferenceDetail(info);
        QCOMPARE(text("lblCreateTime"), QStringLiteral("【语音会议】 ") + strTime);
        QVERIFY(m_pPage->minimumSizeHint().width() <= 517);
    }

    void emptyNameLeavesTheNameThatStands()
    {
        addContact(QStringLiteral("ann"), QStringLiteral("Ann"));
        m_pPage->setConferenceDetail(record(QStringLiteral("ann")));
        m_pPage->setConferenceDetail(record(QStringLiteral("nobody")));
        QCOMPARE(text("CreatName"), QStringLiteral("Ann"));
    }

    void unknownCreatorHasTheDefaultHead()
    {
        m_pPage->setConferenceDetail(record(QStringLiteral("nobody")));
        const QImage shown = label("creatUserIcon")->pixmap(Qt::ReturnByValue).toImage();
        VcardHeadLabel expected;
        expected.setFixedSize(42, 42);
        expected.setHeadPictrue(QStringLiteral("Resources/images/FriendDetail/defaultHead.png"));
        QVERIFY(!shown.isNull());
        QCOMPARE(shown, expected.pixmap(Qt::ReturnByValue).toImage());
    }

    void creatorsNameIsPlainText()
    {
        addContact(QStringLiteral("ann"), QStringLiteral("<h1>Ann</h1>&amp;"));
        m_pPage->setConferenceDetail(record(QStringLiteral("ann")));
        QCOMPARE(text("CreatName"), QStringLiteral("<h1>Ann</h1>&amp;"));
        for (const char *pName : {"creatUserIcon", "CreatName", "lblCallTime", "isCreatorIcon", "lblCreateTime",
                                  "lblLine", "lblTableViewTitle"}) {
            QCOMPARE(label(pName)->textFormat(), Qt::PlainText);
        }
    }

    void longNameLeavesTheCallTimeItsPlace()
    {
        addContact(QStringLiteral("ann"), QString(3000, QLatin1Char('W')));
        m_pPage->setConferenceDetail(record(QStringLiteral("ann"), QStringLiteral("1e300")));
        picture("long-name");
        QCOMPARE(m_pPage->width(), 517);
        const QRect time(label("lblCallTime")->mapTo(m_pPage.get(), QPoint(0, 0)), label("lblCallTime")->size());
        QCOMPARE(time.right(), 506);
        QVERIFY(time.width() >= label("lblCallTime")->sizeHint().width());
    }

    void clearedPageIsEmpty()
    {
        addContact(QStringLiteral("ann"), QStringLiteral("Ann"), QStringLiteral("red.png"));
        m_pPage->setConferenceDetail(record(QStringLiteral("ann"), QStringLiteral("75"), {QStringLiteral("ann")}));
        m_pPage->clearDetail();
        for (const char *pName : {"creatUserIcon", "CreatName", "lblCallTime", "isCreatorIcon", "lblCreateTime"}) {
            QCOMPARE(text(pName), QString());
            QVERIFY(label(pName)->pixmap(Qt::ReturnByValue).isNull());
        }
        QCOMPARE(cells(), 0);
        QCOMPARE(text("lblTableViewTitle"), QStringLiteral("参与人员"));
    }

    void secondRecordAfterClearingShowsNothingOfTheFirst()
    {
        QStringList many;
        for (int i = 0; i < 20; ++i) {
            many.append(QString::number(i));
        }
        addContact(QStringLiteral("ann"), QStringLiteral("Ann"));
        m_pPage->setConferenceDetail(record(QStringLiteral("ann"), QStringLiteral("75"), many));
        m_pPage->clearDetail();
        m_pPage->setConferenceDetail(record(QStringLiteral("nobody"), QStringLiteral("0"), {QStringLiteral("x")}));
        QCOMPARE(text("CreatName"), QString());
        QCOMPARE(text("lblCallTime"), QString());
        QCOMPARE(cells(), 1);
        QCOMPARE(grid()->model()->index(0, 0).data(ROLE_USER_ID).toString(), QStringLiteral("x"));
    }

    void secondRecordWithoutClearingKeepsTheCellsBeyondItsOwn()
    {
        m_pPage->setConferenceDetail(
            record(QStringLiteral("ann"), QStringLiteral("75"), {QStringLiteral("a"), QStringLiteral("b")}));
        m_pPage->setConferenceDetail(record(QStringLiteral("ann"), QStringLiteral("75"), {QStringLiteral("x")}));
        QCOMPARE(grid()->model()->index(0, 0).data(ROLE_USER_ID).toString(), QStringLiteral("x"));
        QCOMPARE(grid()->model()->index(0, 1).data(ROLE_USER_ID).toString(), QStringLiteral("b"));
    }

    void pageWorksWithoutAHost()
    {
        m_pContacts->takeAway();
        m_pHost.reset();
        m_pPage->setConferenceDetail(record(QStringLiteral("ann"), QStringLiteral("75"), {QStringLiteral("a")}));
        QCOMPARE(text("lblCallTime"), QStringLiteral("1分15秒"));
        QCOMPARE(cells(), 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceDetaileWidget, Widgets)

#include "tst_ConferenceDetaileWidget.moc"
