// What one log statement costs the code that makes it: text built, lock taken, record appended. Half of all statements
// take at most p50, all but one in a hundred at most p99, alone and while three other threads fill the same queue.
// Beside it spdlog's asynchronous logger, which blocks when its queue is full, with a file that rolls over; and the
// least that a queue between threads can cost: the same text, a mutex and a list.

#include "common/CLogManger.h"
#include "common/CLogThread.h"
#include "common/CustomLogger.h"
#include "common/log/CustomLogData.h"
#include "model/CommonData.h"
#include "model/SharedContext.h"

#include <QCoreApplication>
#include <QMutex>

#include <benchmark/benchmark.h>
#include <spdlog/async.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <optional>
#include <thread>
#include <vector>

namespace {

/// Of each thread in one burst. Four threads' worth fit into spdlog's queue, so that it never blocks.
constexpr int cStatements = 2000;
const QString cLine = QStringLiteral("{\"messagetype\":\"CallUser\",\"param1\":\"30010001\",\"param2\":false}");
const std::string cUtf8Line = cLine.toStdString();

std::optional<CLogThread> g_logThread;

class Ours
{
public:
    explicit Ours(CustomLogger *logger)
    {
        // A new one in the same place: its queue is empty again, and the log facade knows no other.
        g_logThread.emplace();
        g_logThread->setCustomLogger(logger);
        g_logThread->start();
    }
    ~Ours()
    {
        g_logThread->stop();
        load();
        g_logThread->wait();
    }
    Ours(const Ours &) = delete;
    Ours &operator=(const Ours &) = delete;

    void statement() { LOG_DEBUG << "sendVoipMsg = " << cLine << ", try = " << 3 << "\n"; }
    /// The facade serves one thread; others bring finished texts.
    void load() { g_logThread->printLog(CustomLog::Debug, QStringLiteral("bench.cpp:36"), cLine + cLine); }
};

class PlainList
{
public:
    explicit PlainList(CustomLogger *) {}
    void statement()
    {
        QString message;
        QTextStream(&message) << "sendVoipMsg = " << cLine << ", try = " << 3;
        append({CustomLog::Debug, QStringLiteral("bench.cpp:36"), message});
    }
    void load() { append({CustomLog::Debug, QStringLiteral("bench.cpp:36"), cLine + cLine}); }

private:
    void append(const CustomLogData &record)
    {
        const QMutexLocker locker(&m_mutex);
        m_queue.append(record);
    }

    QMutex m_mutex;
    QList<CustomLogData> m_queue;
};

class Spdlog
{
public:
    explicit Spdlog(CustomLogger *)
        : m_pool(std::make_shared<spdlog::details::thread_pool>(8192, 1)),
          m_logger(std::make_shared<spdlog::async_logger>(
              "bench", std::make_shared<spdlog::sinks::rotating_file_sink_mt>("spdlog.log", 0xa00000, 10), m_pool,
              spdlog::async_overflow_policy::block))
    {
        m_logger->set_level(spdlog::level::debug);
    }
    void statement()
    {
        m_logger->log(spdlog::source_loc{__FILE__, __LINE__, ""}, spdlog::level::debug, "sendVoipMsg = {}, try = {}",
                      cUtf8Line, 3);
    }
    void load() { statement(); }

private:
    std::shared_ptr<spdlog::details::thread_pool> m_pool;
    std::shared_ptr<spdlog::async_logger> m_logger;
};

using Clock = std::chrono::steady_clock;

double nanosecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

double clockCost()
{
    std::vector<double> costs(1001);
    for (double &cost : costs) {
        cost = nanosecondsSince(Clock::now());
    }
    std::nth_element(costs.begin(), costs.begin() + 500, costs.end());
    return costs[500];
}

/// One burst of the measured thread while `threads` - 1 others do as much.
template <typename Target>
void burst(Target &target, int threads, std::vector<double> &latencies)
{
    std::atomic<int> waiting{threads};
    const auto meet = [&waiting] {
        for (--waiting; waiting > 0;) {
            std::this_thread::yield();
        }
    };
    std::vector<std::thread> others;
    for (int i = 1; i < threads; ++i) {
        others.emplace_back([&target, &meet] {
            meet();
            for (int statement = 0; statement < cStatements; ++statement) {
                target.load();
            }
        });
    }
    meet();
    for (int i = 0; i < cStatements; ++i) {
        const auto start = Clock::now();
        target.statement();
        latencies.push_back(nanosecondsSince(start));
    }
    for (std::thread &other : others) {
        other.join();
    }
}

/// What so many of a hundred take at most.
double percentile(std::vector<double> &latencies, std::size_t percent)
{
    const auto place = latencies.begin() + static_cast<std::ptrdiff_t>(latencies.size() * percent / 100);
    std::nth_element(latencies.begin(), place, latencies.end());
    return *place;
}

/// The medians of many bursts: a burst in which the machine did something else too counts for one, however long that
/// took, while all latencies thrown together would have their hundredth from the worst burst alone.
template <typename Target>
void latency(benchmark::State &state)
{
    CustomLogger logger(QStringLiteral("ours.log"));
    std::vector<double> p50s;
    std::vector<double> p99s;
    for (auto _ : state) {
        Target target(&logger);
        std::vector<double> latencies;
        latencies.reserve(cStatements);
        burst(target, static_cast<int>(state.range(0)), latencies);
        p50s.push_back(percentile(latencies, 50));
        p99s.push_back(percentile(latencies, 99));
    }
    const double cost = clockCost();
    state.counters["p50_ns"] = std::max(percentile(p50s, 50) - cost, 1.0);
    state.counters["p99_ns"] = std::max(percentile(p99s, 50) - cost, 1.0);
}
BENCHMARK_TEMPLATE(latency, Ours)->Arg(1)->Arg(4)->Iterations(100);
BENCHMARK_TEMPLATE(latency, PlainList)->Arg(1)->Arg(4)->Iterations(100);
BENCHMARK_TEMPLATE(latency, Spdlog)->Arg(1)->Arg(4)->Iterations(100);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    CommonData data;
    g_logThread.emplace();
    data.setCustomLogThread(&*g_logThread);
    SharedContext::setCommonData(&data);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    SharedContext::setCommonData(nullptr);
    return 0;
}
