#pragma once

// What the tests of the detail page's member grid share: a fresh grid for each test function beside a few contacts and
// a host, its cells' data and places, and its delay. Derive the test class from it. GUI thread.

#include "ContactFixture.h"
#include "ShippedFiles.h"

#include "fakes/FakeHost.h"
#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConfDetailMemberTableView.h"

#include <QMouseEvent>
#include <QTest>

#include <memory>

/// Where a widget last saw the cursor move to.
class LastMove : public QObject
{
public:
    explicit LastMove(QWidget *pWidget) { pWidget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove) {
            m_position = static_cast<QMouseEvent *>(event)->pos();
        }
        return false;
    }
    QPoint position() const { return m_position; }

private:
    QPoint m_position{-1, -1};
};

class MemberGridTest : public QObject
{
    Q_OBJECT

protected:
    static QStringList members(int iCount)
    {
        QStringList list;
        for (int i = 0; i < iCount; ++i) {
            list.append(QStringLiteral("m%1").arg(i));
        }
        return list;
    }
    QVariant data(int iRow, int iColumn, int iRole) const { return m_pGrid->model()->index(iRow, iColumn).data(iRole); }
    QString uid(int iRow, int iColumn) const { return data(iRow, iColumn, ROLE_USER_ID).toString(); }
    QRect head(int iRow, int iColumn) const { return data(iRow, iColumn, ROLE_HEAD_RECT).toRect(); }
    QPoint cell(int iRow, int iColumn) const
    {
        return m_pGrid->visualRect(m_pGrid->model()->index(iRow, iColumn)).topLeft();
    }
    QTimer *delay() const { return m_pGrid->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly); }

    /// Puts the grid on the screen, painted, away from the cursor, and with its delay held: it runs out only in
    /// runOut.
    void show(int iMembers)
    {
        m_pGrid->setMemList(members(iMembers));
        m_pGrid->setFrameShape(QFrame::NoFrame);
        // Qt drops a move to where it last knew the cursor: never twice at the same place of the screen.
        m_iTop = m_iTop == 100 ? 350 : 100;
        m_pGrid->setGeometry(100, m_iTop, 517, 215);
        m_pGrid->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pGrid.get(), cPatienceMs));
        m_pGrid->viewport()->repaint();
        delay()->blockSignals(true);
        m_pHost->events.clear();
    }

    /// Moves the screen's cursor there and waits for the grid to learn of it.
    void moveTo(const QPoint &position)
    {
        const LastMove last(m_pGrid->viewport());
        QTest::mouseMove(m_pGrid->viewport(), position);
        QTRY_COMPARE_WITH_TIMEOUT(last.position(), position, cPatienceMs);
    }
    void runOut() { QVERIFY(QMetaObject::invokeMethod(m_pGrid.get(), "slot_ShowSign")); }
    int shown() const { return m_pHost->received(MSG_SHOW_SIGN_LIST).size(); }
    int closed() const { return m_pHost->received(MSG_CLOSE_SIGN_LIST).size(); }

    int m_iTop = 0;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<FakeHost> m_pHost;
    std::unique_ptr<CConfDetailMemberTableView> m_pGrid;

private slots:
    void initTestCase() { QVERIFY(placeShippedFiles()); }

    void init()
    {
        QCursor::setPos(5, 5);
        m_pContacts = std::make_unique<ContactFixture>();
        m_pHost = std::make_unique<FakeHost>();
        VoipManageMessageProcess::instance()->setSendEvent(m_pHost.get());
        m_pGrid = std::make_unique<CConfDetailMemberTableView>();
    }

    void cleanup()
    {
        m_pGrid.reset();
        m_pHost.reset();
        m_pContacts.reset();
    }
};
