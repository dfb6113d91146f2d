#pragma once

// Helpers around the customer-service records; for the GUI thread: the user's folder of head images is asked for.

#include <QString>

class CSUtils
{
public:
    /// The path of a channel's picture. For an empty `photoName`, and for the default picture's own path, that is the
    /// default picture. Else it is the system avatar of that name, to which ".jpg" is added where it has no "."; and
    /// where there is no such avatar, the folder of head images followed by `photoName` as it was given, deliberately
    /// without the added ".jpg".
    static QString getChannelIconPath(const QString &photoName);
};
