#pragma once

// The current skin of the client, as the shared context holds it; made on first need where the host set none. On the
// GUI thread.

#include "model/SysUIData.h"

#include <QList>

class ChatBubbles;

class SkinContext
{
public:
    /// The current skin, never null. If the context holds none, it gets the built-in green one, which stays to the end
    /// of the process. Without a context the answer is a built-in skin that is the same at every call.
    static SysUIData *getSkinData();

    /// Has the context's skin take over the given one by SysUIData::resetData; without a context or a skin in it
    /// nothing happens.
    static void setSkinData(const SysUIData &skin);

    /// The host's list of all skins; null while there is none. Belongs to the host.
    static QList<SysUIData> *getSysUIDataList();

    /// The host's list of all chat bubbles; null while there is none. Belongs to the host.
    static QList<ChatBubbles> *getChatBubblesList();
};
