#pragma once

// The user in front of modal message boxes: notes each one's text and closes it. GUI thread; works while it lives.

#include <QStringList>
#include <QTimer>

#include <functional>

class MessageBoxes
{
public:
    MessageBoxes();

    /// The texts shown, oldest first.
    QStringList texts;
    /// The titles shown, oldest first.
    QStringList titles;
    /// Runs while a box is open, before it is closed. May be empty.
    std::function<void()> whileOpen;

private:
    void closeOpenBox();

    QTimer m_timer;
};
