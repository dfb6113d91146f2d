#include "model/RecordMetaTypes.h"

#include "model/CServiceNumData.h"
#include "model/FriendData.h"
#include "model/PresenceData.h"
#include "model/VcardInfo.h"

bool registerRecordMetaTypes()
{
    qRegisterMetaType<VcardInfo>("VcardInfo");
    qRegisterMetaType<QList<FriendData>>("QList<FriendData>");
    qRegisterMetaType<PresenceData::ePcShowType>("PresenceData::ePcShowType");
    qRegisterMetaType<QList<CServiceNumData>>("QList<CServiceNumData>");
    return true;
}
