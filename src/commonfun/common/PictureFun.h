#pragma once

// The kinds of pictures by their first bytes, and the paths under which head images are found. GUI thread, for the
// user's settings; no state.

#include <QByteArray>
#include <QString>

class PictureFun
{
public:
    /// The kind of picture whose file starts with `data`: 0 unknown, 1 BMP, 2 JPEG, 3 GIF, 4 PNG. 5 stands for a JPEG
    /// with the suffix "jpeg" and is never the result. Fewer than 4 bytes give 0.
    static int getFileType(const QByteArray &data);

    /// The suffix of a kind of picture, "bmp", "jpg", "gif", "png" or "jpeg" for 1 to 5; empty for any other number.
    static QString getSuffixOfType(int iType);

    /// The path of the default head for fewer than 4 bytes, an empty name or a kind of picture that is not known; for
    /// any other picture an empty text. Creates the folder of the per-user folders; the picture is not written.
    static QString saveByteArrayToLocalFile(const QByteArray &data, const QString &strName);

    /// The path of the head image `strName`, to which ".jpg" is added when it has no ".". `iKind` 1 and 2 are two
    /// kinds of users' own pictures in the head image folder; 0 is a system avatar, which is looked for in the head
    /// image folder when the client has none of that name; any other kind gives an empty text. An empty name or an
    /// empty last text gives the default head. The third argument is not used.
    static QString savePhotoToLocalFile(const QString &strName, int iKind, const QString &strUnused,
                                        const QString &strLast);
};
