#pragma once

// Head images: stored under the account's name, cut to size and to round or other shapes. A picture that cannot be
// read gives a null pixmap. GUI thread; no state: a changed file shows at the next call.

#include <QPixmap>
#include <QSize>
#include <QString>

class HeadImages
{
public:
    /// Stores `pixmap`, stretched to `size`, as the one head image of the account and gives its path: the head image
    /// folder, which is made when missing, the part of the jid before its "@", a "." and `strSuffix`, which tells the
    /// format. The account's files with the suffixes "jpg", "png" and "jpeg" are removed before; only a png stays when
    /// a jpg is stored. With a null `pixmap`, an empty `size` or a suffix in whose format no picture can be written,
    /// the path is given and no file changes. With a slash in that part of the jid or in the suffix, no file changes
    /// and the text is empty. The first argument is not used.
    static QString getFormattedImage(const QString &strUnused, const QString &strJid, const QPixmap &pixmap,
                                     const QSize &size, const QString &strSuffix);

    /// The picture at `strPath`, cut around its middle where it is larger than `size` pixels, never enlarged; one that
    /// is larger both ways is scaled to fit. Null for a width or height below 1.
    static QPixmap getScaledPixmap(const QString &strPath, const QSize &size);

    /// The picture at `strPath` stretched to a square of `iRadius` pixels and cut to a circle with a smooth edge,
    /// transparent around it. Null for an `iRadius` below 1.
    static QPixmap getRoundedImage(const QString &strPath, int iRadius);

    /// The picture at `strPath` within a square of `iRadius` pixels, its aspect ratio kept, in the shape of the
    /// client's mask. Null for an `iRadius` below 1 and without the mask's file.
    static QPixmap getIrregularPix(const QString &strPath, int iRadius);
};
