#include "common/log/QtWarningFilter.h"

#include <QString>

#include <atomic>

namespace {

std::atomic<QtMessageHandler> s_previous{nullptr};

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &strText)
{
    if (!QtWarningFilter::isKnown(type, strText)) {
        s_previous.load()(type, context, strText);
    }
}

} // namespace

bool QtWarningFilter::isKnown(QtMsgType type, const QString &strText)
{
    return type == QtWarningMsg &&
           strText.startsWith(QLatin1String("Could not parse stylesheet of object CLineEditEx("));
}

QtWarningFilter::QtWarningFilter()
{
    // Known before the first message comes.
    s_previous = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(passOn);
}

QtWarningFilter::~QtWarningFilter()
{
    qInstallMessageHandler(s_previous);
}
