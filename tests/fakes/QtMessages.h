#pragma once

// Takes Qt's messages while it lives: the debug log's lines and Qt's own warnings. They can stand inside one another;
// each then has the messages of its own time. GUI thread.

#include <QStringList>

class QtMessages
{
public:
    QtMessages();
    ~QtMessages();
    QtMessages(const QtMessages &) = delete;
    QtMessages &operator=(const QtMessages &) = delete;

    /// The lines of the debug channel, oldest first.
    QStringList debugLines;
    /// The warnings and worse, oldest first, but for those that a race with the window manager may bring and those
    /// of the edit fields' menu sheet.
    QStringList warnings;

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &text);

    static QtMessages *s_innermost;
    QtMessages *m_pOuter;
    QtMessageHandler m_previous = nullptr;
};
