#pragma once

#include "desktop/CallNotice.h"

#include <QObject>
#include <QTimer>

class IncomingPrompt;

/// Tells by a notice of the desktop that the prompt is up while no window of this program has the keyboard, and takes
/// the notice away with the prompt, or when the user has come back. Who chooses the notice gets the prompt. GUI thread;
/// the prompt must outlive it.
class PromptNotice : public QObject
{
    Q_OBJECT

public:
    explicit PromptNotice(IncomingPrompt &prompt);

protected:
    /// The prompt has gone.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();

    IncomingPrompt &m_prompt;
    CallNotice m_notice;
    QTimer m_settle; // the keyboard is nobody's for a moment when it goes from one window to the next
};
