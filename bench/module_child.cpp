// usage: bench_module_child none|window|load|command|call|client|idle MODULE
// Does as much as the word says and prints the microseconds that it took, the kilobytes of memory that are resident
// then, and how many of them are the process's own: what it has written, and the module's file. The word asks for
// nothing but a bare application; a bare application with a Chinese text on the screen; the module loaded; the first
// command answered; an outgoing call on the screen; a client with a window on the screen and the module loaded; the
// same and the first command answered, after which the call window stands by.

#include "model/CommonData.h"
#include "plugin/BaseEvent.h"
#include "plugin/PluginIds.h"
#include "plugin/PluginInterface.h"
#include "wire/Commands.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLocalServer>
#include <QPluginLoader>

#include <cstdio>
#include <memory>

namespace {

struct Memory
{
    qint64 resident = 0;
    qint64 own = 0;
};

/// In kilobytes; `module` is the file whose pages count as own, read or written.
Memory memory(const QByteArray &module)
{
    Memory sum;
    QFile maps(QStringLiteral("/proc/self/smaps"));
    if (!maps.open(QIODevice::ReadOnly)) {
        return sum;
    }
    bool ofModule = false;
    for (QByteArray line = maps.readLine(); !line.isEmpty(); line = maps.readLine()) {
        const QList<QByteArray> words = line.simplified().split(' ');
        const QByteArray &key = words.first();
        const qint64 kilobytes = words.value(1).toLongLong();
        if (!key.endsWith(':')) {
            ofModule = words.last() == module;
        } else if (key == "Rss:") {
            sum.resident += kilobytes;
        }
        if (key == (ofModule ? "Rss:" : "Anonymous:")) {
            sum.own += kilobytes;
        }
    }
    return sum;
}

void command(QObject *mailbox, EMsgId id, const QByteArray &data)
{
    BaseEvent event(id, QString(), voipPluginId(), false, data);
    QCoreApplication::sendEvent(mailbox, &event);
}

/// Loads the module and goes as far with it as the word says; false where it cannot be loaded.
bool load(QPluginLoader &loader, const QByteArray &word, CommonData *data, QObject *host)
{
    QObject *root = loader.instance();
    if (!root) {
        return false;
    }
    auto *plugin = qobject_cast<PluginInterface *>(root);
    if (word == "command" || word == "call" || word == "idle") {
        plugin->setCommonData(data);
        plugin->setSendEventHandle(host);
        command(plugin->getReceiveEventHandle(), MSG_IS_EXIST_CALL, {});
    }
    if (word == "call") {
        QByteArray payload;
        QDataStream(&payload, QIODevice::WriteOnly) << false << QStringLiteral("30010001");
        command(plugin->getReceiveEventHandle(), MSG_CALL_SINGLE_USER, payload);
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        return 2;
    }
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QByteArray word = argv[1];
    // The child before this one ended without tidying up.
    QLocalServer::removeServer(QLatin1String(Wire::cServerName));
    QLocalServer server;
    server.listen(QLatin1String(Wire::cServerName));
    CommonData data;
    QObject host;

    QElapsedTimer clock;
    clock.start();
    std::unique_ptr<QLabel> label;
    if (word == "window" || word == "client" || word == "idle") {
        label = std::make_unique<QLabel>(QStringLiteral("正在呼叫..."));
        label->show();
        QCoreApplication::processEvents();
    }
    QPluginLoader loader(QString::fromLocal8Bit(argv[2]));
    if (word != "none" && word != "window" && !load(loader, word, &data, &host)) {
        return 1;
    }
    const qint64 microseconds = clock.nsecsElapsed() / 1000;
    QCoreApplication::processEvents();
    const Memory used = memory(argv[2]);
    std::printf("%lld %lld %lld\n", static_cast<long long>(microseconds), static_cast<long long>(used.resident),
                static_cast<long long>(used.own));
    std::fflush(stdout);
    std::_Exit(0);
}
