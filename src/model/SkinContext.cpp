#include "model/SkinContext.h"

#include "common/Palette.h"
#include "common/pictures/IconGlyphs.h"
#include "model/SharedContext.h"

#include <QObject>

#include <deque>

namespace {

SysUIData builtInSkin()
{
    SysUIData skin;
#define SKIN_TEXT(position, name, value) skin.name = value;
#include "model/SysUIData.def"
#undef SKIN_TEXT
    skin.m_iconCodes = {IconGlyph::Messages,       IconGlyph::MessagesChosen, IconGlyph::Contacts,
                        IconGlyph::ContactsChosen, IconGlyph::Applications,   IconGlyph::ApplicationsChosen,
                        IconGlyph::Discover,       IconGlyph::DiscoverChosen};
    skin.setLeftChatBubble(QStringLiteral("images/Bubbles/bg_chat_bubble_default_left_22_3_3_9.png"));
    skin.setRightChatBubble(QStringLiteral("images/Bubbles/bg_chat_bubble_default_right_22_9_3_3.png"));
    return skin;
}

/// A built-in skin that lives to the end of the process: windows style themselves even while the process ends.
SysUIData *lastingSkin()
{
    static auto &skins = *new std::deque<SysUIData>;
    return &skins.emplace_back(builtInSkin());
}

} // namespace

SysUIData *SkinContext::getSkinData()
{
    CommonData *pContext = SharedContext::getCommonData();
    if (!pContext) {
        static SysUIData *const pSkin = lastingSkin();
        return pSkin;
    }
    if (!pContext->getSkinData()) {
        pContext->setSkinData(lastingSkin());
    }
    return pContext->getSkinData();
}

void SkinContext::setSkinData(const SysUIData &skin)
{
    CommonData *pContext = SharedContext::getCommonData();
    if (pContext && pContext->getSkinData()) {
        pContext->getSkinData()->resetData(skin);
    }
}

QList<SysUIData> *SkinContext::getSysUIDataList()
{
    const CommonData *pContext = SharedContext::getCommonData();
    return pContext ? pContext->getListSysUIData() : nullptr;
}

QList<ChatBubbles> *SkinContext::getChatBubblesList()
{
    const CommonData *pContext = SharedContext::getCommonData();
    return pContext ? pContext->getListChatBubbles() : nullptr;
}
