#include "happenings/TraceNote.h"

#include "client/CallService.h"
#include "traffic/TraceFolder.h"

#include <QFileInfo>

QString TraceNote::reason(const CallService &service)
{
    const CallChannel::Trace &trace = service.trace();
    switch (trace.kind) {
    case CallChannel::Trace::None:
        return tr("it was started without a trace");
    case CallChannel::Trace::StandardError:
        return tr("it writes its trace to standard error");
    default:
        break;
    }
    const QFileInfo file(trace.file);
    if (!file.exists()) {
        return tr("it has not written its trace, %1").arg(trace.file);
    }
    return file.isReadable() ? QString() : tr("its trace cannot be read: %1").arg(trace.file);
}

QString TraceNote::of(const CallService &service)
{
    const QString why = service.process() == 0 ? QString() : reason(service);
    if (why.isEmpty()) {
        return {};
    }
    const QString program = CallChannel::programOf(service.process());
    return tr("Lines of the wire cannot be shown at present. The call process is %1 (process %2), and %3. "
              "End that process: the client then starts one that it can follow. "
              "Or start it yourself with %4 naming a file.")
        .arg(program.isEmpty() ? tr("another user's") : program)
        .arg(service.process())
        .arg(why, QLatin1String(TraceFolder::cVariable));
}
