// What one log statement costs the code that makes it: text built, lock taken, record appended. Beside it the least
// that a queue between threads can cost: the same text, a mutex and a list.

#include "common/CLogManger.h"
#include "common/CLogThread.h"
#include "common/CommonFun.h"
#include "common/CustomLogData.h"
#include "model/CommonData.h"

#include <QCoreApplication>
#include <QMutex>

#include <benchmark/benchmark.h>

namespace {

// The queue is not drained while the clock runs, so its growth is bounded here.
constexpr int kStatements = 100000;

void logStatement(benchmark::State &state)
{
    const QString line = QStringLiteral("{\"messagetype\":\"CallUser\",\"param1\":\"30010001\",\"param2\":false}");
    for (auto _ : state)
        LOG_DEBUG << "sendVoipMsg = " << line << ", try = " << 3 << "\n";
}
BENCHMARK(logStatement)->Iterations(kStatements);

void plainMutexAndList(benchmark::State &state)
{
    const QString line = QStringLiteral("{\"messagetype\":\"CallUser\",\"param1\":\"30010001\",\"param2\":false}");
    QMutex mutex;
    QList<CustomLogData> queue;
    for (auto _ : state) {
        QString message;
        QTextStream(&message) << "sendVoipMsg = " << line << ", try = " << 3;
        const CustomLogData record{CustomLog::Debug, QStringLiteral("bench.cpp:36"), message};
        const QMutexLocker locker(&mutex);
        queue.append(record);
    }
}
BENCHMARK(plainMutexAndList)->Iterations(kStatements);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    CLogThread thread;
    CommonData data;
    data.setCustomLogThread(&thread);
    CommonFun::setCommonData(&data);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    CommonFun::setCommonData(nullptr);
    return 0;
}
