#pragma once

// Takes the messages of Qt that its own thread makes while it lives: the debug log's lines and Qt's own warnings. They
// can stand inside one another; each then has the messages of its own time. What other threads say, as those of the
// ring do when the sound server goes, is written to standard error: it comes at any time and belongs to no test. One
// thread at a time makes these objects, in every test program the one with the tests.

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

    /// Of each thread its own, so that nobody else's message meets an object that is going.
    static thread_local QtMessages *s_innermost;
    QtMessages *m_pOuter;
    QtMessageHandler m_previous = nullptr;
};
