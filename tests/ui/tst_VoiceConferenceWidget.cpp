// The conference centre's records and pages, and what it tells the host and the call manager.

#include "CentreTest.h"
#include "RealCursor.h"

#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "plugin/EMsgId.h"
#include "store/DB.h"
#include "widgets/MenuEx.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

class tst_VoiceConferenceWidget : public CentreTest
{
    Q_OBJECT

private:
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

private slots:
    void recordsComeInTheStoresOrder()
    {
        open({"2", "10", "9"});
        QCOMPARE(ids(), QStringList({"9", "2", "10"}));
    }

    void emptyStoreShowsNoRow()
    {
        open({});
        QCOMPARE(ids(), QStringList());
    }

    void withoutAStoreThereAreNoRecords()
    {
        DB::closeDB();
        m_pWindow = std::make_unique<CVoiceConferenceWidget>();
        QCOMPARE(ids(), QStringList());
        m_pWindow->addConferenceInfo(record("a"));
        QCOMPARE(ids(), QStringList{"a"});
    }

    void newRecordComesOnTop()
    {
        open({"b", "a"});
        m_pWindow->addConferenceInfo(record("0"));
        QCOMPARE(ids(), QStringList({"0", "b", "a"}));
    }

    void knownOrEmptyIdChangesNothing()
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

    void detailButtonShowsTheDetailPage()
    {
        open({"b", "a"});
        showAt({100, 100});
        const QRect row = list()->visualRect(list()->model()->index(1, 0));
        QVERIFY(RealCursor::moveTo(list()->viewport(), row.center()));
        QTRY_VERIFY_WITH_TIMEOUT(!list()->model()->index(1, 0).data(ROLE_REMOVE_RECT).toRect().isNull(), cPatienceMs);
        const QPoint button = list()->model()->index(1, 0).data(ROLE_REMOVE_RECT).toRect().center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, button);
        expectPage(1);
        QCOMPARE(part<QLabel>("lblCallTime")->text(), QStringLiteral("1分15秒"));
        const auto *pPage = part<QWidget>("conferenceDetaileWidget");
        const auto *pGrid = part<QWidget>("tableView");
        QTRY_COMPARE_WITH_TIMEOUT(QRect(pGrid->mapTo(pPage, QPoint()), pGrid->size()),
                                  QRect(0, 94, pPage->width(), pPage->height() - 94 - 10), cPatienceMs);
    }

    void recordOfTheShownDetailCannotBeDeleted()
    {
        open({"a"});
        showAt({100, 100});
        QVERIFY(list()->isVisible());
        call("slot_ShowConfDetail", "a");
        QVERIFY(!list()->isVisible());
        // The list's menu is the only one.
        QCOMPARE(m_pWindow->findChildren<QMenu *>(), QList<QMenu *>{list()->findChild<CMenuEx *>()});
        for (const char *pName : {"conferenceDetaileWidget", "creatUserIcon", "buttonWidget"}) {
            QTest::mouseClick(part<QWidget>(pName), Qt::RightButton);
        }
        QTest::mouseClick(part<QAbstractScrollArea>("tableView")->viewport(), Qt::RightButton);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(ids(), QStringList{"a"});
    }

    void unknownIdShowsNoDetail()
    {
        open({"a"});
        call("slot_ShowConfDetail", "b");
        call("slot_ShowConfDetail", QString());
        expectPage(0);
    }

    void backButtonGoesToTheListAndClearsTheDetail()
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

    void createButtonTellsTheHostWithAnEmptyList()
    {
        open({"a"});
        showAt({100, 100});
        QTest::mouseClick(part<QPushButton>("creatConferenceBtn"), Qt::LeftButton);
        QCOMPARE(wishes(), QStringList{""});
    }

    void redialTellsTheHostTheMembersTheOwnIdKept()
    {
        open({});
        m_pWindow->addConferenceInfo(record("a", {"me", "", "bert", "ann", "bert"}));
        call("slot_ReCallConf", "a");
        QCOMPARE(wishes(), QStringList{"me@kelvar.im bert@kelvar.im ann@kelvar.im bert@kelvar.im"});
    }

    void redialWithoutMembersTellsAnEmptyList()
    {
        open({});
        m_pWindow->addConferenceInfo(record("a", {}));
        call("slot_ReCallConf", "a");
        QCOMPARE(wishes(), QStringList{""});
    }

    void redialOfAnUnknownRecordTellsNothing()
    {
        open({"a"});
        call("slot_ReCallConf", "b");
        QCOMPARE(wishes(), QStringList());
    }

    void hostMayCloseTheWindowWhileItTakesTheRedial()
    {
        open({"a"});
        showAt({100, 100});
        connect(m_pWindow.get(), &CVoiceConferenceWidget::signal_VoiceConfWidgetClose, m_pWindow.get(),
                [this] { m_pWindow.release()->deleteLater(); });
        m_pHost->whileHandled = [this](BaseEvent &event) {
            if (event.msgId != MSG_CREATE_VOICE_CONFERENCE) {
                return;
            }
            const QPointer<QWidget> window = m_pWindow.get();
            QTimer::singleShot(0, window, &QWidget::close);
            QTRY_VERIFY_WITH_TIMEOUT(!window, cPatienceMs);
        };
        const QPoint row = list()->visualRect(list()->model()->index(0, 0)).center();
        QCursor::setPos(list()->viewport()->mapToGlobal(row));
        QTest::mouseClick(list()->viewport(), Qt::RightButton, Qt::NoModifier, row);
        auto *const pMenu = list()->findChild<CMenuEx *>();
        QVERIFY(QTest::qWaitForWindowExposed(pMenu, cPatienceMs));
        const QPoint entry = pMenu->actionGeometry(pMenu->actions().first()).center();
        QVERIFY(RealCursor::moveTo(pMenu, entry));
        QTest::mouseClick(pMenu, Qt::LeftButton, Qt::NoModifier, entry);
        QCOMPARE(wishes().size(), 1);
    }

    void deletedRecordLeavesTheWindowAndIsTold()
    {
        open({"b", "a"});
        showAt({100, 100});
        QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_DeleteConfInfoData(QString)));
        QStringList idsWhenTold;
        connect(m_pWindow.get(), &CVoiceConferenceWidget::signal_DeleteConfInfoData, this,
                [&] { idsWhenTold = ids(); });
        call("slot_DeleteConfInfo", "b");
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().first().toString(), QStringLiteral("b"));
        QCOMPARE(idsWhenTold, QStringList{"a"});
        // The store is the call manager's business.
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), 2);
        call("slot_ShowConfDetail", "b");
        expectPage(0);
    }

    void deletingAnUnknownRecordTellsNothing()
    {
        open({"a", ""});
        QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_DeleteConfInfoData(QString)));
        call("slot_DeleteConfInfo", "b");
        call("slot_DeleteConfInfo", QString());
        QCOMPARE(spy.size(), 0);
        QCOMPARE(ids(), QStringList({"a", ""}));
    }

    void deletedIdCanComeAgain()
    {
        open({"b", "a"});
        call("slot_DeleteConfInfo", "a");
        m_pWindow->addConferenceInfo(record("a"));
        QCOMPARE(ids(), QStringList({"a", "b"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoiceConferenceWidget, Widgets)
#include "tst_VoiceConferenceWidget.moc"
