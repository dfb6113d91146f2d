#include "client/ContactBook.h"
#include "history/CallHistory.h"
#include "panes/CallsPane.h"
#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "fakes/ShiftedClock.h"
#include "host/history/CallRows.h"

#include <QSignalSpy>
#include <QTableView>
#include <QTest>

/// The list of calls while a day ends.
class tst_CallsPaneMidnight : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ShiftedClock::reset(); }

    void todayIsYesterdayAtMidnight()
    {
        const QDateTime now = QDateTime::currentDateTime();
        const qint64 left = now.secsTo(now.date().addDays(1).startOfDay());
        ShiftedClock::setTimeOfDay(left - 3);
        CallHistory history;
        CallsPane pane;
        pane.show(&history, &m_book);
        pane.show();
        CallEntry call = missedRow("30010004");
        call.begun = QDateTime::currentDateTime();
        const QString today = QStringLiteral("Today ") + call.begun.toString(QStringLiteral("hh:mm"));
        const QString yesterday = QStringLiteral("Yesterday ") + call.begun.toString(QStringLiteral("hh:mm"));
        history.add(call);
        QCOMPARE(when(pane), today);
        QVERIFY(notice(pane).endsWith(today));
        QSignalSpy changed(pane.findChild<QTableView *>()->model(), &QAbstractItemModel::dataChanged);
        QTRY_VERIFY_WITH_TIMEOUT(notice(pane).endsWith(yesterday), cPatienceMs);
        QCOMPARE(when(pane), yesterday);
        QCOMPARE(changed.count(), 1);
    }

private:
    static QString notice(const CallsPane &pane) { return WindowProbe::text(&pane, "lblCallNotice"); }
    static QString when(const CallsPane &pane)
    {
        return pane.model()->index(0, CallHistoryModel::When).data().toString();
    }

    ContactBook m_book{QStringLiteral("example.org")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsPaneMidnight, Widgets)
#include "tst_CallsPaneMidnight.moc"
