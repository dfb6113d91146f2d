#pragma once

// Where head pictures lie: the system avatars beside the application and the user's own folder of head images. Reads
// the file system at each call. For the GUI thread, since the user's folder comes from the settings.

#include <QString>

namespace AvatarFiles {

/// The built-in head of service numbers and official accounts.
extern const QString cServiceHead;

/// `name` with ".jpg" behind it when it holds no ".".
QString withSuffix(const QString &name);

/// "Resources/SystemAvatar/" + `file` when the application's folder holds that file, else the empty text.
QString systemAvatar(const QString &file);

/// The folder of head images of the settings, with its slash; empty when no settings are set.
QString headImageFolder();

} // namespace AvatarFiles
