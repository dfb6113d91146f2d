// Inbound lines from the socket to the end of callbackMessage(), at 1 to 1,000 lines in one read. Beside it the bare
// JSON reader over the same documents.

#include "common/CommonFun.h"
#include "engine/VoipManage.h"
#include "model/CommonData.h"

#include <QApplication>
#include <QLocalServer>
#include <QLocalSocket>

#include <benchmark/benchmark.h>
#include <json/reader.h>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

class Engine : public CVoipManage
{
public:
    bool flag() const { return m_bSdkFlag; }
};

QLocalServer *g_server = nullptr;

/// `count` different lines without effect, and one that lifts or lowers the flag, so that the end can be seen.
QByteArray linesWithFlag(int count, bool flag)
{
    QByteArray lines;
    for (int i = 1; i < count; ++i)
        lines += "{\"content\":\"3001" + QByteArray::number(i) + "\",\"resultCode\":6}\n";
    return lines + "{\"content\":\"" + (flag ? "true" : "false") + "\",\"resultCode\":17}\n";
}

void socketToCallback(benchmark::State &state)
{
    Engine engine;
    if (!g_server->waitForNewConnection(2000)) {
        state.SkipWithError("the engine did not connect");
        return;
    }
    QLocalSocket *peer = g_server->nextPendingConnection();
    const auto count = static_cast<int>(state.range(0));
    bool flag = false;
    for (auto _ : state) {
        flag = !flag;
        peer->write(linesWithFlag(count, flag));
        peer->flush();
        while (engine.flag() != flag)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    state.SetItemsProcessed(state.iterations() * count);
    peer->deleteLater();
}
BENCHMARK(socketToCallback)->Arg(1)->Arg(10)->Arg(100)->Arg(1000);

void bareReader(benchmark::State &state)
{
    const auto count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        const QList<QByteArray> lines = linesWithFlag(count, true).split('\n');
        for (const QByteArray &line : lines) {
            Json::Reader reader;
            Json::Value root;
            if (!line.isEmpty() && reader.parse(line.toStdString(), root))
                benchmark::DoNotOptimize(root["resultCode"].asInt() + root["content"].asString().size());
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(bareReader)->Arg(1)->Arg(10)->Arg(100)->Arg(1000);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    // What the host does with the debug channel is its own cost.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    CommonData data;
    CommonFun::setCommonData(&data);
    QLocalServer server;
    if (!server.listen(QStringLiteral("VoipSDK")))
        return 1;
    g_server = &server;

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    CommonFun::setCommonData(nullptr);
    return 0;
}
