#include "fakes/QtMessages.h"

#include "common/log/QtWarningFilter.h"

#include <QDebug>

#include <cstdio>

namespace {

// A refused connection is kept: tests say where it comes, and that it comes once.
bool isSkipped(QtMsgType type, const QString &text)
{
    return QtWarningFilter::isKnown(type, text) &&
           QtWarningFilter::reasonOf(type, text) != QtWarningFilter::RefusedConnection;
}

} // namespace

thread_local QtMessages *QtMessages::s_innermost = nullptr;

QtMessages::QtMessages() : m_pOuter(s_innermost)
{
    s_innermost = this;
    m_previous = qInstallMessageHandler(&QtMessages::take);
}

QtMessages::~QtMessages()
{
    qInstallMessageHandler(m_previous);
    s_innermost = m_pOuter;
}

void QtMessages::take(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isSkipped(type, text)) {
        return;
    }
    if (!s_innermost) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
    }
    for (QtMessages *messages = s_innermost; messages; messages = messages->m_pOuter) {
        if (type == QtDebugMsg) {
            messages->debugLines.append(text);
        } else if (type == QtFatalMsg && !messages->m_pOuter) {
            messages->m_previous(type, context, text);
        } else if (type != QtInfoMsg) {
            messages->warnings.append(text);
        }
    }
}
