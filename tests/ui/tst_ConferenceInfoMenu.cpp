// The menu of the conference history list: its entries, what they tell, and where it opens.

#include "HistoryListTest.h"

#include "fakes/LogCapture.h"
#include "fakes/Patience.h"

#include <QScreen>
#include <QSignalSpy>

namespace {

/// A point in the first row, beside its head.
const QPoint cBeside(200, 30);

} // namespace

class tst_ConferenceInfoMenu : public HistoryListTest
{
    Q_OBJECT

private:
    void showTwo() { show({record(QStringLiteral("b")), record(QStringLiteral("a"), false)}); }

    LogCapture m_log;

private slots:
    void menuHasBothEntriesFromTheStart()
    {
        QCOMPARE(m_pList->m_pMenu->actions(), QList<QAction *>({m_pList->m_pRecallAction, m_pList->m_pDeleteAction}));
        QCOMPARE(entries(), QStringList({QStringLiteral("再次发起"), QStringLiteral("删除")}));
    }

    void menuOfAConnectedRecordHasBothEntries()
    {
        showTwo();
        openMenu(0);
        QVERIFY(m_pList->m_pMenu->isVisible());
        QCOMPARE(entries(), QStringList({QStringLiteral("再次发起"), QStringLiteral("删除")}));
    }

    void menuOfAnUnconnectedRecordCanOnlyDelete()
    {
        showTwo();
        openMenu(1);
        QCOMPARE(entries(), QStringList{QStringLiteral("删除")});
    }

    void menuCanBeOpenedAgainAndAgain()
    {
        showTwo();
        for (int i = 0; i < 3; ++i) {
            openMenu(0);
            QCOMPARE(entries().size(), 2);
            m_pList->m_pMenu->hide();
            openMenu(1);
            QCOMPARE(entries().size(), 1);
            m_pList->m_pMenu->hide();
        }
        QCOMPARE(m_pList->m_pRecallAction->parent(), m_pList.get());
        QCOMPARE(m_pList->m_pDeleteAction->parent(), m_pList.get());
    }

    void menuIsAsHighAsItsEntries()
    {
        showTwo();
        QList<int> heights;
        for (const int iRow : {0, 1, 0}) {
            openMenu(iRow);
            QCOMPARE(m_pList->m_pMenu->size(), m_pList->m_pMenu->sizeHint());
            heights.append(m_pList->m_pMenu->height());
            m_pList->m_pMenu->hide();
        }
        QVERIFY(heights.at(1) < heights.at(0));
        QCOMPARE(heights.at(2), heights.at(0));
    }

    void recallTellsTheRow()
    {
        showTwo();
        QSignalSpy recall(m_pList.get(), SIGNAL(signal_ReCallConf(QString)));
        QSignalSpy remove(m_pList.get(), SIGNAL(signal_DeleteConfInfo(QString)));
        openMenu(0);
        choose(0);
        QCOMPARE(recall.size(), 1);
        QCOMPARE(recall.first().first().toString(), QStringLiteral("b"));
        QCOMPARE(remove.size(), 0);
        QVERIFY(!m_pList->m_pMenu->isVisible());
    }

    void deleteTellsTheRow()
    {
        showTwo();
        QSignalSpy recall(m_pList.get(), SIGNAL(signal_ReCallConf(QString)));
        QSignalSpy remove(m_pList.get(), SIGNAL(signal_DeleteConfInfo(QString)));
        openMenu(1);
        choose(0);
        QCOMPARE(remove.size(), 1);
        QCOMPARE(remove.first().first().toString(), QStringLiteral("a"));
        QCOMPARE(recall.size(), 0);
        // The row goes only when it is told to.
        QCOMPARE(ids(), QStringList({"b", "a"}));
    }

    void rowWithoutAnIdTellsNothing()
    {
        show({record(QString())});
        QSignalSpy recall(m_pList.get(), SIGNAL(signal_ReCallConf(QString)));
        QSignalSpy remove(m_pList.get(), SIGNAL(signal_DeleteConfInfo(QString)));
        for (const int iEntry : {0, 1}) {
            openMenu(0);
            choose(iEntry);
        }
        QCOMPARE(recall.size() + remove.size(), 0);
    }

    void menuStaysOnTheScreen_data()
    {
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<bool>("left");
        QTest::addColumn<bool>("above");
        const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
        const int iRight = screen.width() - 1;
        const int iBottom = screen.height() - 1;
        QTest::newRow("top left") << QPoint(0, 0) << false << false;
        QTest::newRow("top right") << QPoint(iRight, 0) << true << false;
        QTest::newRow("bottom left") << QPoint(0, iBottom) << false << true;
        QTest::newRow("bottom right") << QPoint(iRight, iBottom) << true << true;
        QTest::newRow("middle") << QPoint(iRight / 2, iBottom / 2) << false << false;
    }

    void menuStaysOnTheScreen()
    {
        QFETCH(QPoint, cursor);
        QFETCH(bool, left);
        QFETCH(bool, above);
        showTwo();
        QCursor::setPos(cursor);
        const QPoint c = QCursor::pos();
        click(cBeside, Qt::RightButton);
        const QMenu *pMenu = m_pList->m_pMenu;
        QVERIFY(pMenu->width() > 50 && pMenu->height() > 50);
        QCOMPARE(pMenu->x(), left ? c.x() - pMenu->width() : c.x());
        QCOMPARE(pMenu->y(), above ? c.y() - pMenu->height() : c.y());
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(pMenu->geometry()));
    }

    void menuThatJustFitsOpensAtTheCursor()
    {
        showTwo();
        openMenu(0);
        const QMenu *pMenu = m_pList->m_pMenu;
        const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
        const QPoint last(screen.width() - pMenu->width(), screen.height() - pMenu->height());
        for (const QPoint &step : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1)}) {
            m_pList->m_pMenu->hide();
            const QPoint cursor = last + step;
            QCursor::setPos(cursor);
            QTRY_COMPARE_WITH_TIMEOUT(QCursor::pos(), cursor, cPatienceMs);
            QMouseEvent release(QEvent::MouseButtonRelease, cBeside, Qt::RightButton, Qt::NoButton, Qt::NoModifier);
            m_pList->mouseReleaseEvent(&release);
            QCOMPARE(pMenu->x(), step.x() == 0 ? cursor.x() : cursor.x() - pMenu->width());
            QCOMPARE(pMenu->y(), step.y() == 0 ? cursor.y() : cursor.y() - pMenu->height());
        }
    }

    void rightClickBelowTheRowsOpensNothing()
    {
        showTwo();
        m_log.take();
        click(QPoint(200, 200), Qt::RightButton);
        QVERIFY(!m_pList->m_pMenu->isVisible());
        const QStringList lines = m_log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().startsWith(QStringLiteral("[DEBUG][ConferenceInfoListView.cpp:")));
        QVERIFY(lines.first().endsWith(QStringLiteral(": selected is null")));
    }

    void rightClickIsLeftToTheWindow()
    {
        showTwo();
        for (const QPoint &position : {cBeside, QPoint(200, 200)}) {
            QMouseEvent release(QEvent::MouseButtonRelease, position, Qt::RightButton, Qt::NoButton, Qt::NoModifier);
            m_pList->mouseReleaseEvent(&release);
            QVERIFY(!release.isAccepted());
            m_pList->m_pMenu->hide();
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceInfoMenu, Widgets)
#include "tst_ConferenceInfoMenu.moc"
