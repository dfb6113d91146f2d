#include "ui/ConferenceRoles.h"

QString conferenceStatusText(int iStatus)
{
    for (const ConferenceStatusRow &row : cConferenceStatusTable)
        if (row.iStatus == iStatus)
            return QString::fromUtf8(row.pText);
    return QStringLiteral("未接通");
}

bool isInviteOver(const QTime &inviteTime, const QTime &now)
{
    return inviteTime.msecsTo(now) >= cInviteLimit;
}

bool canReInvite(int iStatus)
{
    return iStatus >= ConferenceFailed;
}
