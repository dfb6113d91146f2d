#pragma once

// Helpers around the customer-service records; for the GUI thread: the user's folder of head images is asked for.

#include <QString>

class CSUtils
{
public:
    /// The path of a channel's picture. Empty, or the default picture's own path: the default picture. Else the system
    /// avatar of that name (".jpg" is added to a name without "."), and when there is none, the folder of head images
    /// followed by `photoName` as it was given, deliberately without the added ".jpg".
    static QString getChannelIconPath(const QString &photoName);
};
