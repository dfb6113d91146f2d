#include "fakes/QtMessages.h"

#include <QDebug>

QtMessages *QtMessages::s_innermost = nullptr;

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
    // A window manager that takes its frame away while Qt still asks for it: no word about the code under test.
    if (type == QtWarningMsg && text.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)")))
        return;
    for (QtMessages *messages = s_innermost; messages; messages = messages->m_pOuter) {
        if (type == QtDebugMsg)
            messages->debugLines.append(text);
        else if (type == QtFatalMsg && !messages->m_pOuter)
            messages->m_previous(type, context, text);
        else if (type != QtInfoMsg)
            messages->warnings.append(text);
    }
}
