#include "common/CLogThread.h"
#include "common/CustomLogger.h"
#include "common/log/ClientLogFile.h"
#include "fakes/Patience.h"

#include <QDateTime>
#include <QtTest>

#include <atomic>
#include <ctime>
#include <memory>
#include <unistd.h>
#include <vector>

namespace {

std::atomic<int> rests{0};
std::atomic<long> restNanoseconds{0};

QStringList messages()
{
    QStringList all;
    const QStringList lines = QString::fromUtf8(readBytes(cLog)).split('\n');
    for (const QString &line : lines) {
        if (!line.isEmpty()) {
            all.append(line.section("]: ", 1));
        }
    }
    return all;
}

/// A log file and its writer thread, started; ended when it goes.
class Writer
{
public:
    Writer()
    {
        QObject::connect(
            &thread, &QThread::started, &thread, [this] { m_taskId = gettid(); }, Qt::DirectConnection);
        thread.setCustomLogger(&logger);
    }

    ~Writer()
    {
        thread.stop();
        thread.printLog(CustomLog::Debug, {}, {});
        thread.wait();
    }

    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

    /// Whether the log file holds that many lines by now.
    bool hasWritten(int count)
    {
        logger.flush();
        return messages().size() >= count;
    }

    /// Whether the thread sleeps; once its records are written, it can only do so on its empty queue.
    bool sleeps() const { return readBytes(QStringLiteral("/proc/self/task/%1/stat").arg(m_taskId)).contains(") S "); }

    /// Starts the thread, lets it write the record "before" and wait for the next one, and stops it then.
    bool isStoppedOnItsEmptyQueue()
    {
        thread.start();
        thread.printLog(CustomLog::Debug, {}, "before");
        const bool waits = QTest::qWaitFor([this] { return hasWritten(1) && sleeps(); }, cPatienceMs);
        thread.stop();
        return waits;
    }

    CustomLogger logger{cLog};
    CLogThread thread;

private:
    std::atomic<int> m_taskId{0};
};

} // namespace

/// Stands before the system's own: the writer's rests are counted and cost no time, the test's own thread waits.
extern "C" Q_DECL_EXPORT int nanosleep(const timespec *requested, timespec *remaining)
{
    if (gettid() == getpid()) {
        return clock_nanosleep(CLOCK_MONOTONIC, 0, requested, remaining);
    }
    ++rests;
    restNanoseconds += requested->tv_sec * 1000000000L + requested->tv_nsec;
    return 0;
}

class tst_CLogThread : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(cLog); }

    void freshRecordIsAnEmptyDebugRecord()
    {
        const CustomLogData data;
        QCOMPARE(data.level, CustomLog::Debug);
        QCOMPARE(data.location, QString());
        QCOMPARE(data.message, QString());
    }

    void recordsAreWrittenInOrder()
    {
        Writer writer;
        writer.thread.printLog({CustomLog::Warn, "a.cpp:1", "first"});
        writer.thread.printLog(CustomLog::Info, "b.cpp:2", "second");
        writer.thread.start();
        writer.thread.printLog(CustomLog::Debug, "c.cpp:3", "third");
        QTRY_VERIFY_WITH_TIMEOUT(writer.hasWritten(3), cPatienceMs);
        QCOMPARE(messages(), (QStringList{"first", "second", "third"}));
        QVERIFY(readBytes(cLog).contains("[WARN][a.cpp:1]: first\n"));
        QVERIFY(readBytes(cLog).contains("[INFO][b.cpp:2]: second\n"));
        QVERIFY(readBytes(cLog).contains("[DEBUG][c.cpp:3]: third\n"));
    }

    void recordsOfManyThreadsKeepEachThreadsOrder()
    {
        Writer writer;
        writer.thread.start();
        std::vector<std::unique_ptr<QThread>> callers;
        for (int caller = 0; caller < 4; ++caller) {
            callers.emplace_back(QThread::create([&writer, caller] {
                for (int i = 0; i < 500; ++i) {
                    writer.thread.printLog(CustomLog::Debug, {}, QStringLiteral("%1:%2").arg(caller).arg(i));
                }
            }));
            callers.back()->start();
        }
        for (const auto &caller : callers) {
            QVERIFY(caller->wait());
        }
        QTRY_VERIFY_WITH_TIMEOUT(writer.hasWritten(2000), cPatienceMs);
        const QStringList all = messages();
        QCOMPARE(all.size(), 2000);
        for (int caller = 0; caller < 4; ++caller) {
            const QStringList own = all.filter(QRegularExpression(QStringLiteral("^%1:").arg(caller)));
            QCOMPARE(own.size(), 500);
            for (int i = 0; i < 500; ++i) {
                QCOMPARE(own.at(i), QStringLiteral("%1:%2").arg(caller).arg(i));
            }
        }
    }

    void timeIsTakenWhenTheRecordIsWritten()
    {
        Writer writer;
        writer.thread.printLog(CustomLog::Debug, {}, "text");
        const QDateTime queued = QDateTime::currentDateTime();
        while (QDateTime::currentDateTime() <= queued) {
        }
        writer.thread.start();
        QTRY_VERIFY_WITH_TIMEOUT(writer.hasWritten(1), cPatienceMs);
        QVERIFY(QDateTime::fromString(QString::fromLatin1(readBytes(cLog).mid(1, 23)), "yyyy-MM-dd hh:mm:ss.zzz") >
                queued);
    }

    void withoutALoggerRecordsAreLost()
    {
        Writer writer;
        writer.thread.setCustomLogger(nullptr);
        QCOMPARE(writer.thread.getCustomLogger(), nullptr);
        writer.thread.printLog(CustomLog::Debug, {}, "lost");
        writer.thread.start();
        QTRY_VERIFY_WITH_TIMEOUT(writer.sleeps(), cPatienceMs);
        writer.thread.setCustomLogger(&writer.logger);
        QCOMPARE(writer.thread.getCustomLogger(), &writer.logger);
        writer.thread.printLog(CustomLog::Debug, {}, "kept");
        QTRY_VERIFY_WITH_TIMEOUT(writer.hasWritten(1), cPatienceMs);
        QCOMPARE(messages(), QStringList{"kept"});
    }

    void loggerIsUnsetAtFirst()
    {
        CLogThread thread;
        QCOMPARE(thread.getCustomLogger(), nullptr);
    }

    void stoppedThreadDoesNotRun()
    {
        Writer writer;
        writer.thread.stop();
        writer.thread.printLog(CustomLog::Debug, {}, "unwritten");
        writer.thread.run();
        writer.logger.flush();
        QCOMPARE(messages(), QStringList());
    }

    void stopWithAnEmptyQueueWaitsForTheNextRecord()
    {
        Writer writer;
        QVERIFY(writer.isStoppedOnItsEmptyQueue());
        QVERIFY(!writer.thread.wait(200));
        writer.thread.printLog(CustomLog::Debug, {}, "after");
        QVERIFY(writer.thread.wait());
        writer.logger.flush();
        QCOMPARE(messages(), (QStringList{"before", "after"}));
    }

    void recordsBehindTheStopStayUnwritten()
    {
        Writer writer;
        QVERIFY(writer.isStoppedOnItsEmptyQueue());
        writer.thread.printLog(CustomLog::Debug, {}, "last");
        writer.thread.printLog(CustomLog::Debug, {}, "unwritten");
        QVERIFY(writer.thread.wait());
        writer.logger.flush();
        QCOMPARE(messages(), (QStringList{"before", "last"}));
    }

    void queuedRecordsGoWithTheThread()
    {
        CustomLogger logger(cLog);
        {
            CLogThread thread;
            thread.setCustomLogger(&logger);
            thread.printLog(CustomLog::Debug, {}, "unwritten");
        }
        logger.flush();
        QCOMPARE(messages(), QStringList());
    }

    void writerRestsTenMillisecondsAfterEveryHundredRecords()
    {
        Writer writer;
        writer.thread.start();
        int written = 0;
        const auto write = [&writer, &written](int count) {
            for (int i = 0; i < count; ++i) {
                writer.thread.printLog(CustomLog::Debug, {}, "text");
            }
            written += count;
            QTRY_VERIFY_WITH_TIMEOUT(writer.hasWritten(written), cPatienceMs);
            QTRY_VERIFY_WITH_TIMEOUT(writer.sleeps(), cPatienceMs);
        };
        // The count goes on from run to run, so it may stand anywhere when this test begins.
        const int atStart = rests;
        while (rests == atStart && written < 101) {
            write(1);
        }
        QVERIFY(written <= 100);

        const int before = rests;
        const long nanosecondsBefore = restNanoseconds;
        write(399);
        QCOMPARE(rests - before, 3);
        QCOMPARE(restNanoseconds - nanosecondsBefore, 3 * 10000000L);
        write(1);
        QCOMPARE(rests - before, 4);
    }

    void restsAreCountedThroughAllRuns()
    {
        const int before = rests;
        for (int run = 0; run < 4; ++run) {
            QFile::remove(cLog);
            Writer writer;
            for (int i = 0; i < 50; ++i) {
                writer.thread.printLog(CustomLog::Debug, {}, "text");
            }
            writer.thread.start();
            QTRY_VERIFY_WITH_TIMEOUT(writer.hasWritten(50), cPatienceMs);
        }
        QVERIFY(rests - before >= 2);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CLogThread, Guiless)
#include "tst_CLogThread.moc"
