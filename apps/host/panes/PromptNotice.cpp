#include "panes/PromptNotice.h"

#include "panes/IncomingPrompt.h"

#include <QEvent>
#include <QGuiApplication>

namespace {

constexpr int cSettleMs = 300;

bool isInFront()
{
    return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

} // namespace

PromptNotice::PromptNotice(IncomingPrompt &prompt) : m_prompt(prompt)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(cSettleMs);
    m_prompt.installEventFilter(this);
    connect(&m_prompt, &IncomingPrompt::prompted, this, [this] {
        // Another call than the one that the notice tells of.
        m_notice.withdraw();
        follow();
    });
    connect(&m_settle, &QTimer::timeout, this, &PromptNotice::follow);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, &m_settle, QOverload<>::of(&QTimer::start));
    connect(&m_notice, &CallNotice::chosen, &m_prompt, &IncomingPrompt::enter);
}

bool PromptNotice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        m_notice.withdraw();
    }
    return QObject::eventFilter(watched, event);
}

void PromptNotice::follow()
{
    const bool bWanted = m_prompt.isVisible() && !isInFront();
    if (bWanted && !m_notice.isShown()) {
        m_notice.show(m_prompt.caller(), m_prompt.kind());
    } else if (!bWanted) {
        m_notice.withdraw();
    }
}
