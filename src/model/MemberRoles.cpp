#include "model/MemberRoles.h"

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

} // namespace

bool areRolesShown(const QVector<int> &roles)
{
    return roles.isEmpty() || std::any_of(roles.begin(), roles.end(), isRoleShown);
}

QString conferenceStatusText(int iStatus)
{
    const ConferenceStatusRow *const pRow = statusRow(iStatus);
    return pRow != nullptr ? QString::fromUtf8(pRow->pText) : QStringLiteral("未接通");
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

bool canReInvite(int iStatus)
{
    return iStatus >= ConferenceFailed;
}
