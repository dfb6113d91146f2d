#include "fakes/QtMessages.h"

#include "common/log/QtWarningFilter.h"

#include <QDebug>

#include <cstdio>

namespace {

// A window manager that takes its frame away while Qt still asks for it or gives it the focus is no word about the code
// under test; and one warning is required.
bool isKnown(const QString &text)
{
    return text.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)")) ||
           (text.startsWith(QLatin1String("QXcbConnection: XCB error: 8 (BadMatch)")) &&
            text.contains(QLatin1String("(SetInputFocus)"))) ||
           QtWarningFilter::isKnown(QtWarningMsg, text);
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
    if (type == QtWarningMsg && isKnown(text)) {
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
