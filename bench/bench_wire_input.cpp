// Inbound lines from readyRead to the end of callbackMessage(), at 1 to 10,000 lines in one read and for each code.
// Beside it the least that anyone must do for them: the JSON reader over the same documents, the nested ones included,
// the records and debug lines that stand in the log afterwards, by the same logger, and one direct call. What the log
// thread takes is queued as in the client, but not written while the clock runs.

#include "ProcessorClock.h"

#include "common/CLogManger.h"
#include "common/CLogThread.h"
#include "engine/VoipManage.h"
#include "model/CommonData.h"
#include "model/SharedContext.h"
#include "wire/Commands.h"
#include "wire/Notifications.h"

#include <QApplication>
#include <QDebug>
#include <QLocalServer>
#include <QLocalSocket>

#include <benchmark/benchmark.h>
#include <json/reader.h>

#include <malloc.h>
#include <optional>
#include <vector>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

constexpr int cLinesOfACode = 1000;
constexpr int cNoNotification = -1;

/// A code that has no action.
constexpr int openCode()
{
    for (const Wire::NotificationRow &row : Wire::cNotifications) {
        if (row.content == Wire::Content::Open) {
            return static_cast<int>(row.code);
        }
    }
    return cNoNotification;
}
static_assert(openCode() != cNoNotification, "every code has an action: there is none to measure the bare road with");

/// Whether the code comes in a conference whose members are known.
bool isInConference(int code)
{
    return Wire::Code(code) == Wire::Code::ConfUpdate || Wire::Code(code) == Wire::Code::ConfMemberLeft;
}

QLocalServer *g_server = nullptr;
std::optional<CLogThread> g_logThread;

/// Payloads of a kind, made different by a number: equal lines of one read are delivered once.
std::string payload(int code, int number)
{
    const std::string digits = std::to_string(number);
    const Wire::NotificationRow *row = Wire::findNotification(code);
    switch (row == nullptr ? Wire::Content::Open : row->content) {
    case Wire::Content::Conference:
        return R"({\"content\":{\"confId\":\"c1\",\"conventioneer\":[\"30010001\",\"30010002\"],\"createTime\":)" +
               std::to_string(1462266764000 + number) + R"(,\"from\":\"30010001\"}})";
    case Wire::Content::Creation:
        return R"({\"result\":{\"confId\":\"c)" + digits + R"(\"}})";
    case Wire::Content::Addition:
        return R"({\"result\":{\"failedNums\":[\"3001)" + digits + R"(\"]},\"status\":0})";
    case Wire::Content::None:
    case Wire::Content::Text:
    case Wire::Content::Open:
        break;
    }
    return "3001" + digits;
}

bool isNested(int code)
{
    return payload(code, 0).front() == '{';
}

std::vector<std::string> documents(int code, int count)
{
    std::vector<std::string> lines;
    lines.reserve(count);
    for (int i = 0; i < count; ++i) {
        lines.push_back(R"({"content":")" + payload(code, i) + R"(","resultCode":)" + std::to_string(code) + "}\n");
    }
    return lines;
}

class Engine : public CVoipManage
{
public:
    QLocalSocket *socket() { return m_pVoipSocket; }
    bool flag() const { return m_bSdkFlag; }

    /// In the state in which the code comes.
    void prepare(int code)
    {
        const bool inConference = isInConference(code);
        clearLocalCallData();
        m_callData.bIsConf = inConference;
        if (inConference) {
            m_callData.confId = QStringLiteral("c1");
            m_callData.memberList << QStringLiteral("30010001") << QStringLiteral("30010002");
        }
    }

    /// Takes `bytes` in with one read; the time from readyRead on.
    double take(QLocalSocket *peer, const QByteArray &bytes)
    {
        {
            const QSignalBlocker block(m_pVoipSocket);
            peer->write(bytes);
            while (m_pVoipSocket->bytesAvailable() < bytes.size()) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
        }
        const ProcessorClock clock;
        emit m_pVoipSocket->readyRead();
        return clock.seconds();
    }
};

void fromReadyRead(benchmark::State &state, int code)
{
    Engine engine;
    if (!g_server->waitForNewConnection(2000)) {
        state.SkipWithError("the engine did not connect");
        return;
    }
    QLocalSocket *peer = g_server->nextPendingConnection();
    QObject::connect(peer, &QLocalSocket::readyRead, [peer] { peer->readAll(); });
    QByteArray bytes;
    for (const std::string &line : documents(code, static_cast<int>(state.range(0)))) {
        bytes += line.c_str();
    }
    for (auto _ : state) {
        engine.prepare(code);
        // A new one in the same place: its queue is empty again.
        g_logThread.emplace();
        state.SetIterationTime(engine.take(peer, bytes));
        QCoreApplication::processEvents();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    engine.prepare(code);
    engine.stopRinging();
    peer->deleteLater();
}

/// The one call that a notification comes to: what is done about it begins here.
[[gnu::noinline]] void directCall(int code, const QString &content, const Json::Value &inner)
{
    benchmark::DoNotOptimize(code);
    benchmark::DoNotOptimize(content.constData());
    benchmark::DoNotOptimize(&inner);
}

QString members(const Json::Value &document)
{
    QStringList users;
    for (const Json::Value &user : document["content"]["conventioneer"]) {
        users << QString::fromStdString(user.asString());
    }
    return users.join(QLatin1Char(','));
}

/// The records and debug lines that a code leaves beside that of the notification, in the state of Engine::prepare().
void logFurther(int code, const QString &content, const Json::Value &inner)
{
    switch (Wire::Code(code)) {
    case Wire::Code::RejectRequest:
        LOG_DEBUG << "reject call!"
                  << "\n";
        LOG_DEBUG << "sendVoipMsg = " << QStringLiteral("{\"messagetype\":\"RejectCall\"}\n") << "\n";
        [[fallthrough]];
    case Wire::Code::PeerCanceled:
    case Wire::Code::UserRejected:
    case Wire::Code::CallEnded:
    case Wire::Code::PeerHangup:
    case Wire::Code::PeerHangupAlt:
    case Wire::Code::PeerRejected:
    case Wire::Code::CallFailed:
    case Wire::Code::PeerBusy:
    case Wire::Code::CallFailedAlt:
    case Wire::Code::CallFailedAlt2:
        LOG_DEBUG << "stop ring!"
                  << "\n";
        return;
    case Wire::Code::ConfUpdate:
    case Wire::Code::ConfMemberLeft:
        LOG_DEBUG << "update conf connected users = " << members(inner) << "\n";
        return;
    case Wire::Code::ConfAddResult:
        qDebug().noquote().nospace() << content;
        LOG_DEBUG << "add conf member result=" << content << "\n";
        return;
    case Wire::Code::ConfMemberRejected:
    case Wire::Code::SdkLog:
        qDebug().noquote().nospace() << "voipsdk:" << content;
        LOG_DEBUG << "voipsdk:" << content << "\n";
        return;
    case Wire::Code::IncomingCall:
    case Wire::Code::IncomingCallAlt:
    case Wire::Code::IncomingConf:
    case Wire::Code::SdkFlag:
    case Wire::Code::CallConnected:
    case Wire::Code::ConfCreated:
        return;
    }
}

/// One line and, where its payload is a document, that too.
void doLeast(const std::string &line, bool nested)
{
    Json::Reader reader;
    Json::Value root;
    if (!reader.parse(line, root)) {
        return;
    }
    const int code = root["resultCode"].asInt();
    const std::string text = root["content"].asString();
    if (code < 0) {
        return;
    }
    const QString content = QString::fromStdString(text);
    LOG_DEBUG << "Voip Sdk call back msg iCode=" << code << ", string=" << content << "\n";
    Json::Value inner;
    if (nested) {
        Json::Reader().parse(text, inner);
    }
    logFurther(code, content, inner);
    directCall(code, content, inner);
}

void leastOfRead(benchmark::State &state, int code)
{
    const std::vector<std::string> lines = documents(code, static_cast<int>(state.range(0)));
    QByteArray bytes;
    for (const std::string &line : lines) {
        bytes += line.c_str();
    }
    const bool nested = isNested(code);
    for (auto _ : state) {
        g_logThread.emplace();
        const ProcessorClock clock;
        qDebug().noquote().nospace() << "Voip返回数据" << bytes;
        for (const std::string &line : lines) {
            doLeast(line, nested);
        }
        state.SetIterationTime(clock.seconds());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// The far side's write, the socket and the event loop included.
void socketToCallback(benchmark::State &state)
{
    Engine engine;
    if (!g_server->waitForNewConnection(2000)) {
        state.SkipWithError("the engine did not connect");
        return;
    }
    QLocalSocket *peer = g_server->nextPendingConnection();
    const QByteArray rest = R"(","resultCode":)" + QByteArray::number(static_cast<int>(Wire::Code::SdkFlag)) + "}\n";
    const QByteArray on = R"({"content":"true)" + rest;
    const QByteArray off = R"({"content":"false)" + rest;
    bool flag = false;
    for (auto _ : state) {
        flag = !flag;
        peer->write(flag ? on : off);
        peer->flush();
        while (engine.flag() != flag) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    g_logThread.emplace();
    peer->deleteLater();
}

void registerAll()
{
    benchmark::RegisterBenchmark("socketToCallback", socketToCallback);
    for (const int lines : {1, 10, 100, 1000, 10000}) {
        benchmark::RegisterBenchmark("readyReadToCallback", fromReadyRead, openCode())->Arg(lines)->UseManualTime();
        benchmark::RegisterBenchmark("leastOfRead", leastOfRead, openCode())->Arg(lines)->UseManualTime();
    }
    // A line without effect, which is read and leaves no record; all that have an action, and one that has none.
    std::vector<int> codes{cNoNotification, openCode()};
    for (const Wire::NotificationRow &row : Wire::cNotifications) {
        if (row.content != Wire::Content::Open) {
            codes.push_back(static_cast<int>(row.code));
        }
    }
    for (const int code : codes) {
        const std::string suffix = "Code" + std::to_string(code);
        benchmark::RegisterBenchmark(("callback" + suffix).c_str(), fromReadyRead, code)
            ->Arg(cLinesOfACode)
            ->UseManualTime();
        benchmark::RegisterBenchmark(("least" + suffix).c_str(), leastOfRead, code)
            ->Arg(cLinesOfACode)
            ->UseManualTime();
    }
}

} // namespace

int main(int argc, char **argv)
{
    // A client's memory has grown to its size long ago, so the queue's records need none from the system.
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 25);
    const QApplication application(argc, argv);
    // What the host does with the debug channel is its own cost.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    CommonData data;
    g_logThread.emplace();
    data.setCustomLogThread(&*g_logThread);
    SharedContext::setCommonData(&data);
    QLocalServer server;
    if (!server.listen(QLatin1String(Wire::cServerName))) {
        return 1;
    }
    g_server = &server;

    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    SharedContext::setCommonData(nullptr);
    return 0;
}
