#pragma once

#include "history/CallEntry.h"

#include <QObject>

#include <functional>

class CallWatch;
class ContactBook;
class QMainWindow;

/// What the status bar of a window says of calls: who is being called, calls or has answered, until that is over,
/// whatever else is said in between, and then how it ended, for a while. GUI thread; window, watch and book must
/// outlive it.
class CallStatusLine : public QObject
{
    Q_OBJECT

public:
    CallStatusLine(QMainWindow &window, const CallWatch &calls, const ContactBook &book);

    /// Makes a sentence in the client's language.
    using Words = std::function<QString()>;

    /// Says this for a while.
    void say(const QString &strWords);

    /// Says this until the call is over.
    void hold(Words words);

    /// Says what is held again, in the language that the client has now; nothing where nothing is held.
    void sayHeld();

private:
    void end(const QString &strWords);
    void comeBack(const QString &strShown);
    void sayRefused(const CallEntry &wish);

    QMainWindow &m_window;
    const ContactBook &m_book;
    Words m_held;
};
