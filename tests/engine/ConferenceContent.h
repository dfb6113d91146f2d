#pragma once

#include <QString>

/// The content of a notification about a conference, from the members of its inner object.
inline QString conferenceContent(const QString &body)
{
    return "{\"content\":{" + body + "}}";
}
