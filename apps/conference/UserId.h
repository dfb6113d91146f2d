#pragma once

// What can be the id of a user, whoever names him: the plug-in, the far end, a mixer. Any thread.

#include <QString>

inline constexpr int cUserIdLimit = 128;

/// Whether a character is not seen itself, and turns round or hides what stands beside it.
bool isControl(QChar character);

/// Whether a text can be a user's id: not empty, within the limit, without control and format characters and halves of
/// others.
bool isUserId(const QString &id);
