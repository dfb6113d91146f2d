#pragma once

// Whom the tour calls: the robots of the call process by user id, each named for what it does. With it the way in which
// the steps write their texts. Any thread.

#include "robots/RobotIds.h"

#include <QString>

namespace TourCast {

using namespace Robots;

/// The text of a literal in the source's UTF-8.
inline QString u(const char *strText)
{
    return QString::fromUtf8(strText);
}

/// The same with a user id for its %1.
inline QString u(const char *strText, const char *strUid)
{
    return u(strText).arg(QLatin1String(strUid));
}

} // namespace TourCast
