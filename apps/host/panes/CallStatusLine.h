#pragma once

#include "history/CallEntry.h"

#include <QObject>

class CallWatch;
class ContactBook;
class QMainWindow;

/// What the status bar of a window says of calls: who is being called or calls, until that is over, and then how it
/// ended, for a while. GUI thread; window, watch and book must outlive it.
class CallStatusLine : public QObject
{
    Q_OBJECT

public:
    CallStatusLine(QMainWindow &window, const CallWatch &calls, const ContactBook &book);

    /// Says this for a while.
    void say(const QString &strWords);
    /// Says this until the next words, for what goes on.
    void hold(const QString &strWords);

private:
    void sayRefused(const CallEntry &wish);

    QMainWindow &m_window;
    const ContactBook &m_book;
};
