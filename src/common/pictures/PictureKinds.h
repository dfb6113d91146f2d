#pragma once

// The kinds of pictures by their first bytes: 0 unknown, 1 BMP, 2 JPEG, 3 GIF, 4 PNG, 5 JPEG with the suffix "jpeg".
// Pure functions; any thread.

#include <QByteArray>
#include <QString>

namespace PictureKinds {

/// How many first bytes tell the kind.
constexpr int cSignatureLength = 4;

/// The kind of picture whose file starts with `data`, never 5. Fewer bytes than cSignatureLength give 0.
int of(const QByteArray &data);

/// The suffix of a kind, "bmp", "jpg", "gif", "png" or "jpeg" for 1 to 5; empty for any other number.
QString suffix(int iKind);

} // namespace PictureKinds
