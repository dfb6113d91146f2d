#include "panes/CallStatusLine.h"

#include "client/ContactBook.h"
#include "history/CallSentences.h"
#include "history/CallWatch.h"

#include <QMainWindow>
#include <QStatusBar>

#include <utility>

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
            hold([this, uid = call.uid] { return tr("%1 is calling").arg(m_book.nameOf(uid)); });
        }
    });
    connect(&calls, &CallWatch::connected, this, [this](const CallEntry &call) {
        if (!call.conference) {
            hold([this, uid = call.uid] { return tr("In a call with %1").arg(m_book.nameOf(uid)); });
        }
    });
    connect(&calls, &CallWatch::ended, this,
            [this](const CallEntry &call) { end(CallSentences::outcome(call, m_book)); });
}

void CallStatusLine::say(const QString &strWords)
{
    m_window.statusBar()->showMessage(strWords, cShownMs);
}

void CallStatusLine::hold(Words words)
{
    m_held = std::move(words);
    // Only now: the window gets its bar later than its status line.
    connect(m_window.statusBar(), &QStatusBar::messageChanged, this, &CallStatusLine::comeBack, Qt::UniqueConnection);
    sayHeld();
}

void CallStatusLine::sayHeld()
{
    if (m_held) {
        m_window.statusBar()->showMessage(m_held());
    }
}

void CallStatusLine::comeBack(const QString &strShown)
{
    if (strShown.isEmpty()) {
        sayHeld();
    }
}

void CallStatusLine::end(const QString &strWords)
{
    m_held = nullptr;
    say(strWords);
}

void CallStatusLine::sayRefused(const CallEntry &wish)
{
    end(wish.conference ? tr("The conference was not started")
                        : tr("The call of %1 was not placed").arg(m_book.nameOf(wish.uid)));
}
