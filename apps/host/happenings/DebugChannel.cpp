#include "happenings/DebugChannel.h"

#include "common/log/QtWarningFilter.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>

#include <cstdio>

namespace {

struct Channel
{
    QMutex mutex;
    QFile file;
    QStringList warnings;
    QtMessageHandler before = nullptr;
};

Channel &channel()
{
    static Channel theOne;
    return theOne;
}

void handle(QtMsgType type, const QMessageLogContext &, const QString &strText)
{
    const QByteArray line = strText.toUtf8() + '\n';
    const QMutexLocker lock(&channel().mutex);
    channel().file.write(line);
    channel().file.flush();
    if (QtWarningFilter::isKnown(type, strText)) {
        return;
    }
    if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg) {
        channel().warnings.append(strText);
        std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
    }
}

} // namespace

DebugChannel::DebugChannel(const QString &strFile)
{
    {
        const QMutexLocker lock(&channel().mutex);
        channel().warnings.clear();
        channel().file.setFileName(strFile);
        if (!channel().file.open(QIODevice::WriteOnly)) {
            return;
        }
    }
    channel().before = qInstallMessageHandler(handle);
}

DebugChannel::~DebugChannel()
{
    qInstallMessageHandler(channel().before);
    const QMutexLocker lock(&channel().mutex);
    channel().file.close();
}

QStringList DebugChannel::warnings()
{
    const QMutexLocker lock(&channel().mutex);
    return channel().warnings;
}
