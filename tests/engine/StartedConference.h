#pragma once

// A conference of this side's own that is just coming up: nobody has told its id yet.

#include "fakes/EngineFixture.h"

/// Lets the user "me" start a conference with anna and bert, of whom anna is connected, and forgets what went out for
/// it.
inline void startConference(EngineFixture &f)
{
    f.manager->m_strUserId = "me";
    f.manager->callConference({"anna", "bert"}, false, "");
    f.manager->m_callData.connectedList = QStringList{"me", "anna"};
    f.takeJournal();
    EngineFixture::deliverPosted();
    f.host.events.clear();
}
