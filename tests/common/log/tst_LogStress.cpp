// The log from several threads at once while its file rolls over again and again: no record is lost, doubled or torn,
// and each thread's records keep their order.

#include "common/CLogManger.h"
#include "common/CLogThread.h"
#include "common/CustomLogger.h"
#include "fakes/FileBytes.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"

#include <QtTest>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace {

const QString cLog = QStringLiteral("client.log");
constexpr int cCallers = 4;
constexpr int cRecords = 1500; // of each caller
constexpr int cFileKib = 32;
constexpr int cMostBackups = 1000;

/// The messages of all backups and of the file, oldest first.
QStringList messages()
{
    QByteArray text;
    int backups = 0;
    while (QFile::exists(cLog + QLatin1Char('.') + QString::number(backups + 1))) {
        ++backups;
    }
    for (int i = backups; i > 0; --i) {
        text += readBytes(cLog + QLatin1Char('.') + QString::number(i));
    }
    text += readBytes(cLog);
    QStringList all;
    const QStringList lines = QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        all.append(line.section(QStringLiteral("]: "), 1));
    }
    return all;
}

/// Writes cRecords statements from each of cCallers threads, and some from this one as long as they run; how many of
/// this one. Each time it flushes, `each` is called.
int writeFromAllThreads(CLogManger *log, const std::function<void()> &each)
{
    std::atomic<int> running{cCallers};
    std::vector<std::thread> callers;
    callers.reserve(cCallers);
    for (int caller = 0; caller < cCallers; ++caller) {
        callers.emplace_back([log, caller, &running] {
            for (int i = 0; i < cRecords; ++i) {
                log->printLog(CustomLog::Info, LOG_LOCATION, QStringLiteral("%1:%2").arg(caller).arg(i));
            }
            --running;
        });
    }
    // Statements build their text in fields without a lock, so one thread alone makes them.
    int own = 0;
    while (running > 0) {
        LOG_DEBUG << cCallers << ":" << own++ << "\n";
        log->flushLog();
        each();
    }
    for (std::thread &caller : callers) {
        caller.join();
    }
    return own;
}

} // namespace

class tst_LogStress : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsLostWhileTheFileRollsOver()
    {
        CustomLogger logger(cLog);
        logger.setMaxFileSize(cFileKib);
        logger.setMaxBackupIndex(cMostBackups);
        CLogThread writer;
        CommonData data;
        data.setCustomLogger(&logger);
        data.setCustomLogThread(&writer);
        const GivenContext given(data);
        // Made before the threads: its creation has no lock.
        CLogManger *log = CLogManger::instance();
        writer.start();

        const int own = writeFromAllThreads(log, [&] { QCOMPARE(writer.getCustomLogger(), &logger); });
        LOG_DEBUG << "last"
                  << "\n";
        const auto lastIsWritten = [log] {
            log->flushLog();
            return messages().contains(QStringLiteral("last"));
        };
        QTRY_VERIFY_WITH_TIMEOUT(lastIsWritten(), 60000);
        writer.stop();
        log->printLog(CustomLog::Debug, {}, {});
        QVERIFY(writer.wait());
        logger.close();

        QVERIFY2(QFile::exists(cLog + QStringLiteral(".1")), "the file has not rolled over");
        const QStringList all = messages();
        QCOMPARE(all.size(), cCallers * cRecords + own + 2);
        for (int caller = 0; caller <= cCallers; ++caller) {
            const QStringList ofCaller = all.filter(QRegularExpression(QStringLiteral("^%1:").arg(caller)));
            QCOMPARE(ofCaller.size(), caller < cCallers ? cRecords : own);
            for (int i = 0; i < ofCaller.size(); ++i) {
                QCOMPARE(ofCaller.at(i), QStringLiteral("%1:%2").arg(caller).arg(i));
            }
        }
    }

    void clearingWhileTheWriterWritesTearsNoLine()
    {
        constexpr int lineCount = 3000;
        constexpr int fewBackups = 2;
        CustomLogger logger(QStringLiteral("cleared.log"));
        logger.setMaxFileSize(cFileKib);
        logger.setMaxBackupIndex(fewBackups);
        std::atomic<bool> done{false};
        std::thread writer([&logger, &done] {
            for (int i = 0; i < lineCount; ++i) {
                logger.printLog(CustomLog::Info, QStringLiteral("place"), QStringLiteral("line %1.").arg(i));
            }
            done = true;
        });
        while (!done) {
            logger.flush();
            logger.clear();
        }
        writer.join();
        logger.clear();
        logger.printLog(CustomLog::Info, QStringLiteral("place"), QStringLiteral("line last."));
        logger.close();

        const QRegularExpression whole(QStringLiteral("^\\[[^\\]]+\\]\\[[^\\]]+\\]\\[place\\]: line (\\d+|last)\\.$"));
        for (const char *name : {"cleared.log", "cleared.log.1", "cleared.log.2"}) {
            const QStringList lines =
                QString::fromUtf8(readBytes(QLatin1String(name))).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
            for (const QString &line : lines) {
                QVERIFY2(whole.match(line).hasMatch(), qPrintable(QLatin1String(name) + QLatin1String(": ") + line));
            }
        }
        QVERIFY(readBytes(QStringLiteral("cleared.log")).contains("line last."));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LogStress, Guiless)
#include "tst_LogStress.moc"
