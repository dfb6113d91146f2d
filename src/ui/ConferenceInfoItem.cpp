#include "ui/ConferenceInfoItem.h"

#include "common/system/DpiScale.h"
#include "model/MemberRoles.h"
#include "store/DBConfInfo.h"
#include "ui/ConferenceTexts.h"
#include "ui/RowWords.h"

#include <QSize>
#include <QVariant>

namespace {

constexpr QSize cRowSize(500, 62);

} // namespace

ConferenceInfoItem::ConferenceInfoItem(const ConfInfoData &confInfo, std::shared_ptr<const ConferenceCreator> pCreator)
    : m_pCreator(std::move(pCreator)), m_strConfID(confInfo.m_strConfID), m_strCreatTime(confInfo.m_strCreatTime),
      m_strCallTime(confInfo.m_strCallTime), m_bIsConnect(confInfo.m_bIsConnect)
{
}

QVariant ConferenceInfoItem::data(int iRole) const
{
    const QVariant set = QStandardItem::data(iRole);
    return set.isValid() ? set : recordData(iRole);
}

QVariant ConferenceInfoItem::recordData(int iRole) const
{
    switch (iRole) {
    case ROLE_CONF_ID:
        return m_strConfID;
    case ROLE_HEAD_PATH:
        return m_pCreator->strHeadPath;
    case ROLE_USER_ID:
        return m_pCreator->strUserID;
    case ROLE_DISPLAY_NAME:
        return m_pCreator->strName;
    case ROLE_CONF_CREATE_TIME:
        return m_strCreatTime;
    case ROLE_CONF_CALL_TIME:
        return ConferenceTexts::callLength(m_strCallTime);
    case ROLE_CALL_STATUS:
        return m_bIsConnect;
    case ROLE_CREATED_BY_ME:
        return m_pCreator->bIsMe;
    case Qt::AccessibleTextRole:
        return RowWords::ofConference(m_pCreator->strName, m_bIsConnect, m_strCallTime, m_strCreatTime,
                                      m_pCreator->bIsMe);
    case Qt::SizeHintRole:
        return ADAPT_DPI_SIZE(cRowSize);
    default:
        return {};
    }
}
