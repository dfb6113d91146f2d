#include "client/ContactBook.h"
#include "panes/CallRecordModel.h"

#include <QSignalSpy>
#include <QTest>

class tst_CallRecordModel : public QObject
{
    Q_OBJECT

private slots:
    void eachResultHasItsWord_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("word");
        QTest::newRow("21") << 21 << QStringLiteral("cancelled");
        QTest::newRow("22") << 22 << QStringLiteral("failed");
        QTest::newRow("24") << 24 << QStringLiteral("hung up");
        QTest::newRow("25") << 25 << QStringLiteral("busy");
        QTest::newRow("26") << 26 << QStringLiteral("rejected");
        QTest::newRow("another") << 23 << QStringLiteral("23");
    }

    void eachResultHasItsWord()
    {
        QFETCH(int, result);
        QTEST(outcomeWord(result), "word");
    }

    void durationIsMinutesAndSeconds_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << qint64(0) << QStringLiteral("0:00");
        QTest::newRow("seconds") << qint64(9) << QStringLiteral("0:09");
        QTest::newRow("minutes") << qint64(754) << QStringLiteral("12:34");
        QTest::newRow("just below an hour") << qint64(3599) << QStringLiteral("59:59");
        QTest::newRow("one hour") << qint64(3600) << QStringLiteral("1:00:00");
        QTest::newRow("one minute") << qint64(60) << QStringLiteral("1:00");
        QTest::newRow("longer than a day") << qint64(100 * 3600) << QStringLiteral("100:00:00");
        QTest::newRow("hours") << qint64(3600 + 62) << QStringLiteral("1:01:02");
        QTest::newRow("a clock set back") << qint64(-5) << QStringLiteral("0:00");
    }

    void durationIsMinutesAndSeconds()
    {
        QFETCH(qint64, seconds);
        QTEST(durationText(seconds), "text");
    }

    void newestRecordStandsOnTop()
    {
        CallRecordModel model(m_book);
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        CallRecord record;
        record.uid = QStringLiteral("30010002");
        model.add(record);
        record.uid = QStringLiteral("30010004");
        model.add(record);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(inserted.count(), 2);
        QCOMPARE(text(model, 0, CallRecordModel::Who), QStringLiteral("Tom Baker"));
        QCOMPARE(text(model, 1, CallRecordModel::Who), QStringLiteral("Maria Silva"));
    }

    void rowTellsTheCall()
    {
        CallRecordModel model(m_book);
        CallRecord record;
        record.uid = QStringLiteral("30010001");
        record.video = true;
        record.result = 24;
        record.caller = true;
        record.connected = true;
        record.seconds = 65;
        record.endedAt = QDateTime(QDate(2024, 5, 3), QTime(9, 8, 7));
        model.add(record);
        QCOMPARE(text(model, 0, CallRecordModel::Who), QStringLiteral("李雷"));
        QCOMPARE(text(model, 0, CallRecordModel::Direction), QStringLiteral("→ outgoing video"));
        QCOMPARE(text(model, 0, CallRecordModel::Outcome), QStringLiteral("hung up"));
        QCOMPARE(text(model, 0, CallRecordModel::Connected), QStringLiteral("yes"));
        QCOMPARE(text(model, 0, CallRecordModel::Duration), QStringLiteral("1:05"));
        QCOMPARE(text(model, 0, CallRecordModel::EndedAt), QStringLiteral("09:08:07"));
    }

    void unansweredCallHasNoDuration()
    {
        CallRecordModel model(m_book);
        CallRecord record;
        record.result = 26;
        model.add(record);
        QCOMPARE(text(model, 0, CallRecordModel::Direction), QStringLiteral("← incoming"));
        QCOMPARE(text(model, 0, CallRecordModel::Connected), QStringLiteral("no"));
        QCOMPARE(text(model, 0, CallRecordModel::Duration), QString());
    }

    void unknownUserGoesByTheId()
    {
        CallRecordModel model(m_book);
        CallRecord record;
        record.uid = QStringLiteral("4711");
        model.add(record);
        QCOMPARE(text(model, 0, CallRecordModel::Who), QStringLiteral("4711"));
    }

    void titlesStandOverAllColumns()
    {
        const CallRecordModel model(m_book);
        QCOMPARE(model.columnCount(), 6);
        for (int column = 0; column < model.columnCount(); ++column) {
            QVERIFY(!model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().isEmpty());
        }
        QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    }

private:
    static QString text(const CallRecordModel &model, int row, int column)
    {
        return model.data(model.index(row, column), Qt::DisplayRole).toString();
    }

    ContactBook m_book{QStringLiteral("example.org")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallRecordModel, Guiless)
#include "tst_CallRecordModel.moc"
