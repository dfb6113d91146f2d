#pragma once

// What stands while the host is asked whether somebody is a contact: in the middle of an operation of the engine.

#include "fakes/EngineFixture.h"
#include "plugin/BaseEvent.h"
#include "ui/VoipWidget.h"

struct WhileAsked
{
    /// Notes it from here on, at each such question of the fixture's engine.
    explicit WhileAsked(EngineFixture &f)
    {
        f.whileHandled = [this, &f](BaseEvent &event) {
            if (event.msgId != MSG_IS_EXIST_FRIEND) {
                return;
            }
            call = f.callText();
            lines = f.takeLines();
            bShown = f.manager->m_pVoipWidget->isVisible() || f.manager->m_inviteTimer.isActive();
        };
    }
    WhileAsked(const WhileAsked &) = delete;
    WhileAsked &operator=(const WhileAsked &) = delete;

    /// The call's fields, as the fixture writes them.
    QString call;
    /// The lines that have been sent.
    QStringList lines{"not asked"};
    /// Whether the window shows or the invite timer runs.
    bool bShown = true;
};
