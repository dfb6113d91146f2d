#include "model/MemberRoles.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

bool isRoleShown(int iRole)
{
    switch (iRole) {
#define MEMBER_ROLE(name, number, shown)                                                                               \
    case name:                                                                                                         \
        return shown;
#include "model/MemberRoles.def"
#undef MEMBER_ROLE
    default:
        return true;
    }
}

const ConferenceStatusRow *statusRow(int iStatus)
{
    const auto *const pRow = std::find_if(cConferenceStatusTable.begin(), cConferenceStatusTable.end(),
                                          [iStatus](const ConferenceStatusRow &row) { return row.iStatus == iStatus; });
    return pRow == cConferenceStatusTable.end() ? nullptr : pRow;
}

const char *statusText(int iStatus)
{
    const ConferenceStatusRow *const pRow = statusRow(iStatus);
    return pRow != nullptr ? pRow->pText : QT_TRANSLATE_NOOP("ConferenceRow", "未接通");
}

} // namespace

bool areRolesShown(const QVector<int> &roles)
{
    return roles.isEmpty() || std::any_of(roles.begin(), roles.end(), isRoleShown);
}

QString conferenceStatusText(int iStatus)
{
    return QString::fromUtf8(statusText(iStatus));
}

QString conferenceStatusWords(int iStatus)
{
    return QCoreApplication::translate("ConferenceRow", statusText(iStatus));
}

QColor conferenceStatusColor(int iStatus)
{
    const ConferenceStatusRow *const pRow = statusRow(iStatus);
    return pRow != nullptr ? pRow->color : QColor();
}

bool isInviteOver(const QTime &inviteTime, const QTime &now)
{
    return inviteTime.msecsTo(now) >= cInviteLimit;
}

bool canRemove(int iStatus)
{
    return iStatus != ConferenceCalling;
}

bool canMute(int iStatus)
{
    return iStatus == ConferenceConnected;
}

bool canReInvite(int iStatus)
{
    return iStatus >= ConferenceFailed;
}
