#pragma once

// Where the pictures that ship beside the executable lie. The paths are relative to the application's folder, from
// which the host runs; they also serve as names that records are compared by, so they are used as they stand.
// Any thread; no state.

#include <QString>

/// The head of a person without a picture of one's own.
inline const QString strDEFAULT_HEAD_PATH = QStringLiteral("Resources/images/FriendDetail/defaultHead.png");

/// The folder of the heads that a user may choose without uploading one; ends with a slash.
inline const QString strSYSTEM_AVATAR_PATH = QStringLiteral("Resources/SystemAvatar/");

/// The shape that getIrregularPix cuts pictures to: dark is kept.
inline const QString strTOPIC_MASK_PATH = QStringLiteral("Resources/images/Dynamic/topic_mask.png");
