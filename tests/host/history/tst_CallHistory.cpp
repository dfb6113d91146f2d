#include "client/ContactBook.h"
#include "history/CallHistory.h"
#include "history/CallHistoryModel.h"

#include "fakes/LogCapture.h"
#include "host/history/CallRows.h"
#include "store/DBConfInfo.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

/// The calls in memory, and the table of them.
class tst_CallHistory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pLog = std::make_unique<LogCapture>(); }
    void cleanupTestCase() { m_pLog.reset(); }

    void init()
    {
        m_strFolder = QDir::current().absoluteFilePath(QStringLiteral("round%1").arg(++m_iRound));
        QVERIFY(QDir().mkpath(m_strFolder));
        m_pHistory = std::make_unique<CallHistory>();
        QVERIFY(m_pHistory->open(m_strFolder, QLatin1String(ContactBook::cOwnId)));
        m_pModel = std::make_unique<CallHistoryModel>(*m_pHistory, m_book);
    }

    void cleanup()
    {
        m_pModel.reset();
        m_pHistory.reset();
    }

    void newestCallStandsOnTop()
    {
        QSignalSpy inserted(m_pModel.get(), &QAbstractItemModel::rowsInserted);
        m_pHistory->add(callRow("30010002", 1));
        m_pHistory->add(callRow("30010004"));
        QCOMPARE(inserted.count(), 2);
        QCOMPARE(whos(), (QStringList{"Tom Baker", "Maria Silva"}));
    }

    void rowTellsTheCall_data()
    {
        QTest::addColumn<CallEntry>("call");
        QTest::addColumn<QStringList>("cells");
        CallEntry call = callRow("30010001");
        call.video = call.connected = true;
        call.seconds = 65;
        call.outcome = resultHungUp;
        QTest::newRow("connected") << call
                                   << QStringList{"李雷", "→ outgoing video", "hung up", "1:05", "2024-05-03 12:00"};
        QTest::newRow("missed") << missedRow("4711")
                                << QStringList{"4711", "← incoming", "missed", "", "2024-05-03 12:00"};
        QTest::newRow("conference") << conferenceRow("30010001", "30010002")
                                    << QStringList{"Conference: 李雷, Maria Silva", "→ outgoing", "hung up", "10:00",
                                                   "2024-05-03 12:00"};
        call = conferenceRow("30010001", "30010002");
        call.caller = false;
        call.uid = QStringLiteral("30010001");
        call.begun = QDateTime();
        QTest::newRow("invitation without a time")
            << call << QStringList{"Conference: 李雷, Maria Silva", "← incoming", "hung up", "10:00", ""};
        call = callRow("30010004");
        call.outcome = outcomeCutOff;
        QTest::newRow("cut off") << call << QStringList{"Tom Baker", "→ outgoing", "cut off", "", "2024-05-03 12:00"};
        call.outcome = outcomeNoAnswer;
        QTest::newRow("no answer") << call
                                   << QStringList{"Tom Baker", "→ outgoing", "no answer", "", "2024-05-03 12:00"};
        call.outcome = outcomeRunning;
        QTest::newRow("on") << call << QStringList{"Tom Baker", "→ outgoing", "now", "", "2024-05-03 12:00"};
    }

    void rowTellsTheCall()
    {
        QFETCH(CallEntry, call);
        m_pHistory->add(call);
        QStringList cells;
        for (int column = 0; column < m_pModel->columnCount(); ++column) {
            cells << m_pModel->index(0, column).data().toString();
        }
        QTEST(cells, "cells");
        // A screen reader says the row.
        const QString words = m_pModel->index(0, 0).data(Qt::AccessibleTextRole).toString();
        QVERIFY2(words.startsWith(cells[0] + ", ") && words.contains(cells[2]), qPrintable(words));
    }

    void daysAreNamedAsPeopleDo()
    {
        const QDateTime when(QDate(2024, 2, 29), QTime(9, 8));
        QCOMPARE(CallHistoryModel::whenText(when, QDate(2024, 2, 29)), QStringLiteral("Today 09:08"));
        QCOMPARE(CallHistoryModel::whenText(when, QDate(2024, 3, 1)), QStringLiteral("Yesterday 09:08"));
        QCOMPARE(CallHistoryModel::whenText(when, QDate(2024, 3, 2)), QStringLiteral("2024-02-29 09:08"));
        QCOMPARE(CallHistoryModel::whenText(when, QDate(2024, 2, 28)), QStringLiteral("2024-02-29 09:08"));
    }

    void filterAndSearchLeaveWhatTheySay()
    {
        m_pHistory->add(callRow("30010001", 3));
        m_pHistory->add(missedRow("30010002", 2));
        m_pHistory->add(conferenceRow("30010004", "30010001", 1));
        m_pModel->setFilter(CallHistoryModel::Missed);
        QCOMPARE(whos(), QStringList{"Maria Silva"});
        m_pModel->setFilter(CallHistoryModel::Conferences);
        QCOMPARE(whos(), QStringList{"Conference: Tom Baker, 李雷"});
        m_pModel->setFilter(CallHistoryModel::All);
        m_pModel->setSearch(QStringLiteral(" LL "));
        QCOMPARE(whos(), (QStringList{"Conference: Tom Baker, 李雷", "李雷"}));
        m_pModel->setSearch(QStringLiteral("30010002"));
        QCOMPARE(whos(), QStringList{"Maria Silva"});
        m_pModel->setSearch(QStringLiteral("nobody"));
        QCOMPARE(whos(), QStringList());
        m_pModel->setSearch(QString());
        QCOMPARE(whos().size(), 3);
    }

    void callThatEndsEntersAndLeavesAFilteredList()
    {
        m_pModel->setFilter(CallHistoryModel::Missed);
        m_pHistory->add(missedRow("30010001", 5));
        CallEntry call = missedRow("30010002", 2);
        call.outcome = outcomeRunningIn;
        call.id = m_pHistory->add(call);
        m_pHistory->add(missedRow("30010004", 1));
        QCOMPARE(whos(), (QStringList{"Tom Baker", "李雷"}));
        call.outcome = outcomeMissed;
        m_pHistory->change(call);
        QCOMPARE(whos(), (QStringList{"Tom Baker", "Maria Silva", "李雷"}));
        call.outcome = resultRejected;
        m_pHistory->change(call);
        QCOMPARE(whos(), (QStringList{"Tom Baker", "李雷"}));
    }

    void deletedCallsComeBackWhereTheyWere()
    {
        m_pHistory->add(callRow("30010001", 3));
        const qint64 middle = m_pHistory->add(missedRow("30010002", 2));
        m_pHistory->add(callRow("30010004", 1));
        QCOMPARE(m_pHistory->remove({middle}), 1);
        QCOMPARE(whos(), (QStringList{"Tom Baker", "李雷"}));
        reopen();
        QCOMPARE(whos(), (QStringList{"Tom Baker", "李雷"}));
        QCOMPARE(m_pHistory->restorable(), 0);

        const qint64 first = m_pHistory->entries().front().id;
        QCOMPARE(m_pHistory->remove({first, 4711}), 1);
        QCOMPARE(m_pHistory->restorable(), 1);
        m_pHistory->restore();
        QCOMPARE(m_pHistory->restorable(), 0);
        QCOMPARE(whos(), (QStringList{"Tom Baker", "李雷"}));
        reopen();
        QCOMPARE(whos(), (QStringList{"Tom Baker", "李雷"}));
        QCOMPARE(m_pHistory->entries().front().id, first);
    }

    void eachDeletionComesBackForItself()
    {
        const qint64 first = m_pHistory->add(callRow("30010001", 3));
        const qint64 second = m_pHistory->add(missedRow("30010002", 2));
        const qint64 third = m_pHistory->add(callRow("30010004", 1));
        QCOMPARE(m_pHistory->remove({first, third}), 2);
        QCOMPARE(m_pHistory->remove({second}), 1);
        // What is deleted counts as seen with the others.
        m_pHistory->setAllSeen();
        m_pHistory->restore();
        QCOMPARE(whos(), QStringList{"Maria Silva"});
        QCOMPARE(m_pHistory->restorable(), 2);
        m_pHistory->restore();
        QCOMPARE(whos(), (QStringList{"Tom Baker", "Maria Silva", "李雷"}));
        m_pHistory->restore();
        QCOMPARE(whos().size(), 3);
        QVERIFY(m_pHistory->unseen().empty());
    }

    void callThatIsOnCannotBeDeleted()
    {
        CallEntry call = callRow("30010001");
        call.outcome = outcomeRunning;
        const qint64 id = m_pHistory->add(call);
        QCOMPARE(m_pHistory->remove({id}), 0);
        QCOMPARE(m_pHistory->entries().size(), size_t(1));
    }

    void seenIsKept()
    {
        m_pHistory->add(missedRow("30010001", 2));
        m_pHistory->add(missedRow("30010002", 1));
        m_pHistory->add(callRow("30010004"));
        QCOMPARE(m_pHistory->unseen().size(), size_t(2));
        QCOMPARE(m_pHistory->unseen().front().uid, QStringLiteral("30010002"));
        m_pHistory->setAllSeen();
        QVERIFY(m_pHistory->unseen().empty());
        reopen();
        QVERIFY(m_pHistory->unseen().empty());
        QCOMPARE(m_pHistory->entries().size(), size_t(3));
    }

    void conferencesOfTheStoreComeInOnce()
    {
        ConfInfoData record;
        record.m_strConfID = QStringLiteral("1700000000000");
        record.m_strCreatUserID = QStringLiteral("30010008");
        record.m_strCreatTime = QStringLiteral("2024-05-01 10:00:00");
        record.m_strCallTime = QStringLiteral("90");
        record.m_listMember = QStringList{"30010008", "30010000", "30010002"};
        record.m_bIsConnect = true;
        ConfInfoData nameless = record;
        nameless.m_strConfID.clear();
        m_pHistory->add(callRow("30010001"));
        m_pHistory->adopt({record, nameless});
        QCOMPARE(whos(), (QStringList{"李雷", "Conference: Ivan Petrov, Maria Silva"}));
        QVERIFY(m_pHistory->unseen().empty());
        reopen();
        m_pHistory->adopt({record});
        QCOMPARE(whos().size(), 2);
        // One that was deleted here does not come back, although the store still has it.
        QCOMPARE(m_pHistory->remove({m_pHistory->entries().front().id}), 1);
        reopen();
        m_pHistory->adopt({record});
        QCOMPARE(whos(), QStringList{"李雷"});
    }

    void withoutAFileTheCallsOfTheSessionAreThere()
    {
        CallHistory history;
        CallHistoryModel model(history, m_book);
        CallEntry call = callRow("30010001");
        call.id = history.add(call);
        const qint64 other = history.add(callRow("30010002"));
        QVERIFY(call.id != 0 && call.id != other);
        call.outcome = resultRejected;
        history.change(call);
        QCOMPARE(model.index(1, CallHistoryModel::Outcome).data().toString(), QStringLiteral("rejected"));
        QCOMPARE(history.remove({other}), 1);
        history.restore();
        QCOMPARE(model.rowCount(), 2);
    }

    void titlesStandOverAllColumns()
    {
        for (int column = 0; column < m_pModel->columnCount(); ++column) {
            QVERIFY(!m_pModel->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().isEmpty());
        }
        QVERIFY(!m_pModel->headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    }

    void hugeConferenceIsCutInItsRow()
    {
        CallEntry call = conferenceRow("1", "2");
        for (int i = 0; i < 5000; ++i) {
            call.members << QStringLiteral("3001%1").arg(i);
        }
        QVERIFY(CallHistoryModel::whoText(call, m_book).size() < 400);
        QVERIFY(CallHistoryModel::whoText(call, m_book).endsWith(QChar(0x2026)));
    }

private:
    void reopen()
    {
        m_pModel.reset();
        m_pHistory = std::make_unique<CallHistory>();
        QVERIFY(m_pHistory->open(m_strFolder, QLatin1String(ContactBook::cOwnId)));
        m_pModel = std::make_unique<CallHistoryModel>(*m_pHistory, m_book);
    }
    QStringList whos() const
    {
        QStringList names;
        for (int row = 0; row < m_pModel->rowCount(); ++row) {
            names << m_pModel->index(row, CallHistoryModel::Who).data().toString();
        }
        return names;
    }

    ContactBook m_book{QStringLiteral("example.org")};
    int m_iRound = 0;
    QString m_strFolder;
    std::unique_ptr<CallHistory> m_pHistory;
    std::unique_ptr<CallHistoryModel> m_pModel;
    std::unique_ptr<LogCapture> m_pLog;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallHistory, Guiless)
#include "tst_CallHistory.moc"
