#pragma once

// The world of a test class about the list of calls: the pane with an empty history, made anew for each function. GUI
// thread.

#include "client/ContactBook.h"
#include "history/CallHistory.h"
#include "panes/CallsPane.h"

#include "fakes/Patience.h"

#include <QObject>
#include <QTableView>
#include <QTest>

#include <memory>

class CallsPaneTest : public QObject
{
    Q_OBJECT

protected slots:
    void init()
    {
        m_pPane.reset();
        m_pHistory = std::make_unique<CallHistory>();
        m_pPane = std::make_unique<CallsPane>();
        m_pPane->show(m_pHistory.get(), &m_book);
        m_pPane->resize(640, 400);
        m_pPane->show();
        m_pPane->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pPane.get(), cPatienceMs));
        m_pTable = m_pPane->findChild<QTableView *>();
    }

protected:
    /// The middle of a row's third cell, in the table's viewport.
    QPoint middle(int iRow) const { return m_pTable->visualRect(m_pTable->model()->index(iRow, 2)).center(); }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<CallHistory> m_pHistory;
    std::unique_ptr<CallsPane> m_pPane;
    QTableView *m_pTable = nullptr;
};
