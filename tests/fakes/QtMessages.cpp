#include "fakes/QtMessages.h"

#include <QDebug>

QtMessages *QtMessages::s_current = nullptr;

QtMessages::QtMessages()
{
    s_current = this;
    m_previous = qInstallMessageHandler(&QtMessages::take);
}

QtMessages::~QtMessages()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

void QtMessages::take(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtFatalMsg)
        s_current->m_previous(type, context, text);
    else if (type == QtDebugMsg)
        s_current->debugLines.append(text);
    else if (type != QtInfoMsg)
        s_current->warnings.append(text);
}
