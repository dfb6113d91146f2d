#include "panes/CallStatusLine.h"

#include "client/ContactBook.h"
#include "history/CallSentences.h"
#include "history/CallWatch.h"

#include <QMainWindow>
#include <QStatusBar>

namespace {

// Long enough to be read by somebody who looks up from the call window.
constexpr int cShownMs = 8000;

} // namespace

CallStatusLine::CallStatusLine(QMainWindow &window, const CallWatch &calls, const ContactBook &book)
    : m_window(window), m_book(book)
{
    connect(&calls, &CallWatch::refused, this, &CallStatusLine::sayRefused);
    connect(&calls, &CallWatch::began, this, [this](const CallEntry &call) {
        if (!call.caller) {
            hold(tr("%1 is calling").arg(m_book.nameOf(call.uid)));
        }
    });
    connect(&calls, &CallWatch::ended, this,
            [this](const CallEntry &call) { say(CallSentences::outcome(call, m_book)); });
}

void CallStatusLine::say(const QString &strWords)
{
    m_window.statusBar()->showMessage(strWords, cShownMs);
}

void CallStatusLine::hold(const QString &strWords)
{
    m_window.statusBar()->showMessage(strWords);
}

void CallStatusLine::sayRefused(const CallEntry &wish)
{
    say(wish.conference ? tr("The conference was not started")
                        : tr("The call of %1 was not placed").arg(m_book.nameOf(wish.uid)));
}
