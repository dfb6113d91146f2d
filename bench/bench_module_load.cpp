// Loading the module and its first command, and the memory that stays resident, each in a fresh process: the module
// beside an empty one that is linked with the same libraries, and both beside a bare application. What the module needs
// while no call is on is told in a client that has a window of its own on the screen.

#include <QCoreApplication>
#include <QProcess>

#include <benchmark/benchmark.h>

#include <string>

namespace {

void child(benchmark::State &state, const char *word, const char *module)
{
    double kilobytes = 0;
    for (auto _ : state) {
        QProcess process;
        process.start(QStringLiteral(MODULE_CHILD), {QString::fromLatin1(word), QString::fromLatin1(module)});
        if (!process.waitForFinished() || process.exitCode() != 0) {
            state.SkipWithError("the child process failed");
            return;
        }
        const QList<QByteArray> words = process.readAllStandardOutput().trimmed().split(' ');
        state.SetIterationTime(words.value(0).toDouble() / 1e6);
        kilobytes = words.value(1).toDouble();
    }
    state.counters["resident_KiB"] = kilobytes;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    struct Row
    {
        const char *name;
        const char *word;
        const char *module;
    };
    static constexpr Row rows[] = {
        {"bareApplication", "none", VOIP_MODULE},          {"bareWindow", "window", VOIP_MODULE},
        {"loadEmptyModule", "load", EMPTY_MODULE},         {"loadModule", "load", VOIP_MODULE},
        {"loadAndFirstCommand", "command", VOIP_MODULE},   {"loadAndOutgoingCall", "call", VOIP_MODULE},
        {"clientWithEmptyModule", "client", EMPTY_MODULE}, {"idleModule", "idle", VOIP_MODULE},
    };
    for (const Row &row : rows) {
        benchmark::RegisterBenchmark(row.name, [&row](benchmark::State &state) { child(state, row.word, row.module); })
            ->UseManualTime()
            ->Iterations(3)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
