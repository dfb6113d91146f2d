// The conference centre by keys alone: the list with its menu, both pages, the grid of members, and the ring.

#include "CentreTest.h"

#include "fakes/Patience.h"
#include "plugin/EMsgId.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QWindow>

class tst_CentreKeys : public CentreTest
{
    Q_OBJECT

private:
    void openActive()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record(QStringLiteral("c1"), {"ann", "me", "bob"})));
        ConfInfoData missed = record(QStringLiteral("c0"));
        missed.m_bIsConnect = false;
        QVERIFY(DBConfInfo::saveConfInfo(missed));
        open({});
        showAt({40, 40});
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QCOMPARE(ids(), (QStringList{"c1", "c0"}));
        QVERIFY(list()->hasFocus());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_pWindow->windowHandle(), key, modifiers);
    }
    QWidget *ring(const QWidget *pView) const
    {
        QCoreApplication::processEvents();
        auto *pRing = pView->findChild<QWidget *>("focusRing");
        return pRing != nullptr && pRing->isVisible() ? pRing : nullptr;
    }
    static QMenu *menu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    /// How often the host was asked to begin a conference.
    int conferences() const { return m_pHost->received(MSG_CREATE_VOICE_CONFERENCE).size(); }

private slots:
    void ringComesWithTheFirstArrow()
    {
        openActive();
        const QImage bare = m_pWindow->grab().toImage();
        QVERIFY(ring(list()) == nullptr);
        press(Qt::Key_Down);
        QVERIFY(ring(list()) != nullptr);
        QCOMPARE(ring(list())->geometry(), list()->visualRect(list()->model()->index(1, 0)));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton);
        QVERIFY(ring(list()) == nullptr);
        QCOMPARE(m_pWindow->grab().toImage(), bare);
    }

    void enterShowsTheDetailsAndEscapeLeadsBack()
    {
        openActive();
        press(Qt::Key_Home);
        press(Qt::Key_Return);
        expectPage(1);
        auto *pGrid = part<QTableView>("tableView");
        QVERIFY(pGrid->hasFocus());
        press(Qt::Key_Right);
        QCOMPARE(pGrid->currentIndex().column(), 1);
        QVERIFY(ring(pGrid) != nullptr);
        // Tab does not stay in the grid.
        press(Qt::Key_Tab);
        QCOMPARE(pGrid->currentIndex().column(), 1);
        press(Qt::Key_Escape);
        expectPage(0);
        QVERIFY(list()->hasFocus());
        QVERIFY(ring(list()) != nullptr);
        press(Qt::Key_Escape);
        QVERIFY(!m_pWindow->isVisible());
    }

    void detailsByTheMouseShowNoRing()
    {
        openActive();
        call("slot_ShowConfDetail", QStringLiteral("c1"));
        QVERIFY(ring(part<QTableView>("tableView")) == nullptr);
        QVERIFY(QMetaObject::invokeMethod(m_pWindow.get(), "slot_BackToConfListPage"));
        QVERIFY(ring(list()) == nullptr);
    }

    void aConferenceThatNeverConnectedHasNoDetails()
    {
        openActive();
        press(Qt::Key_End);
        press(Qt::Key_Return);
        expectPage(0);
    }

    void enterOnAMemberAsksForTheCard()
    {
        openActive();
        press(Qt::Key_Home);
        press(Qt::Key_Return);
        m_pWindow->grab();
        m_pHost->events.clear();
        press(Qt::Key_Return);
        QCOMPARE(m_pHost->commands(), QList<int>{MSG_SHOW_SIGN_LIST});
        press(Qt::Key_Right);
        QCOMPARE(m_pHost->commands(), (QList<int>{MSG_SHOW_SIGN_LIST, MSG_CLOSE_SIGN_LIST}));
    }

    void deleteTakesTheRecordAway()
    {
        openActive();
        QSignalSpy deleted(m_pWindow.get(), SIGNAL(signal_DeleteConfInfoData(QString)));
        press(Qt::Key_Home);
        press(Qt::Key_Delete);
        QCOMPARE(ids(), QStringList{"c0"});
        QCOMPARE(deleted.size(), 1);
        QCOMPARE(deleted.at(0).at(0).toString(), QStringLiteral("c1"));
        press(Qt::Key_Delete);
        QCOMPARE(ids(), QStringList());
        press(Qt::Key_Delete);
        QCOMPARE(deleted.size(), 2);
        QVERIFY(ring(list()) == nullptr);
    }

    void menuKeyOpensTheRowsMenu()
    {
        openActive();
        press(Qt::Key_Home);
        press(Qt::Key_Menu);
        QVERIFY(menu() != nullptr);
        QCOMPARE(menu()->actions().size(), 2);
        QTest::keyClick(menu(), Qt::Key_Return);
        QCOMPARE(conferences(), 1);
        press(Qt::Key_End);
        press(Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(menu() != nullptr);
        QCOMPARE(menu()->actions().size(), 1);
        QTest::keyClick(menu(), Qt::Key_Return);
        QCOMPARE(ids(), QStringList{"c1"});
    }

    void keysOfTheButtons()
    {
        openActive();
        press(Qt::Key_N, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(conferences(), 1, cPatienceMs);
        press(Qt::Key_Home);
        press(Qt::Key_Return);
        expectPage(1);
        press(Qt::Key_Left, Qt::AltModifier);
        QTRY_VERIFY_WITH_TIMEOUT(part<QPushButton>("backBtn")->isHidden(), cPatienceMs);
        press(Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY_WITH_TIMEOUT(!m_pWindow->isVisible(), cPatienceMs);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CentreKeys, Widgets)

#include "tst_CentreKeys.moc"
