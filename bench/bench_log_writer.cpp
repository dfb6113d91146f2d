// The log writer: what it spends on one record, beside the same line by QDateTime's text and arg() and beside a bare
// fwrite() of the finished line; and from the queue to the file, beside the most that its rest of 10 ms after each 100
// records lets through.

#include "common/CLogThread.h"
#include "common/CustomLogger.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

namespace {

const QString cLocation = QStringLiteral("SdkChannel.cpp:123");
const QString cMessage =
    QStringLiteral("sendVoipMsg = {\"messagetype\":\"CallUser\",\"param1\":\"30010001\",\"param2\":false}");
constexpr qint64 cLimit = 0xa00000;

void customLogger(benchmark::State &state)
{
    CustomLogger logger(QStringLiteral("ours.log"));
    logger.setMaxBackupIndex(0);
    for (auto _ : state) {
        logger.printLog(CustomLog::Debug, cLocation, cMessage);
    }
    logger.clear();
}
BENCHMARK(customLogger);

void dateTimeAndArg(benchmark::State &state)
{
    QFile file(QStringLiteral("arg.log"));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text | QIODevice::Truncate)) {
        state.SkipWithError("no file");
        return;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    const QString format = QStringLiteral("[%1][%2][%3]: %4\n");
    for (auto _ : state) {
        const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
        stream << format.arg(time, QStringLiteral("DEBUG"), cLocation, cMessage);
        if (file.pos() >= cLimit) {
            stream.seek(0);
            file.resize(0);
        }
    }
}
BENCHMARK(dateTimeAndArg);

void bareFwrite(benchmark::State &state)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen("fwrite.log", "w"), &std::fclose);
    const QByteArray line =
        QStringLiteral("[2026-05-03 09:12:44.031][DEBUG][%1]: %2\n").arg(cLocation, cMessage).toUtf8();
    const auto size = static_cast<std::size_t>(line.size());
    qint64 written = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::fwrite(line.constData(), 1, size, file.get()));
        written += line.size();
        if (written >= cLimit) {
            // Emptied, as a roll-over without backups leaves it.
            benchmark::DoNotOptimize(std::freopen(nullptr, "w", file.get()));
            written = 0;
        }
    }
}
BENCHMARK(bareFwrite);

/// 5,001 records have 50 rests before the last is written. Each run leaves the writer's own count one further on, so
/// this holds for the first 98 of a process.
void queueToFile(benchmark::State &state)
{
    constexpr int records = 5001;
    constexpr double rests = 50 * 0.010;
    for (auto _ : state) {
        const QString path = QStringLiteral("thread.log");
        QFile::remove(path);
        CustomLogger logger(path);
        const int lineBytes =
            QStringLiteral("[2026-05-03 09:12:44.031][DEBUG][%1]: %2\n").arg(cLocation, cMessage).size();
        CLogThread thread;
        thread.setCustomLogger(&logger);
        for (int i = 0; i < records; ++i) {
            thread.printLog(CustomLog::Debug, cLocation, cMessage);
        }

        QElapsedTimer time;
        time.start();
        thread.start();
        QThread::msleep(static_cast<unsigned long>(rests * 980));
        for (logger.flush(); QFileInfo(path).size() < qint64{records} * lineBytes; logger.flush()) {
            QThread::usleep(200);
        }
        state.SetIterationTime(static_cast<double>(time.nsecsElapsed()) * 1e-9);

        thread.stop();
        thread.printLog(CustomLog::Debug, cLocation, cMessage);
        thread.wait();
    }
}
BENCHMARK(queueToFile)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

/// What this machine makes of the rests alone.
void bareRests(benchmark::State &state)
{
    for (auto _ : state) {
        for (int i = 0; i < 50; ++i) {
            QThread::msleep(10);
        }
    }
}
BENCHMARK(bareRests)->UseRealTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
