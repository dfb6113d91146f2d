#pragma once

// The drawn head pictures of one list, so that a repaint opens no file: a picture is drawn again only when its file has
// changed since, told by the file's modification time, time of its last change of any kind, and size. Owned by the
// list's delegate. A picture among the program's resources (":/...") is drawn once. GUI thread only.

#include <QHash>
#include <QPair>
#include <QPixmap>
#include <QString>

class HeadCache
{
public:
    /// Draws the head of the file at `strPath` in a square of `iSide` pixels.
    using Draw = QPixmap (*)(const QString &strPath, int iSide);

    /// An empty cache of pictures that `draw` makes.
    explicit HeadCache(Draw draw) : m_draw(draw) {}

    /// The head of the file at `strPath` as it is now, `iSide` logical pixels wide and high, for a screen of `dRatio`
    /// device pixels per logical one. A file that is missing or holds no picture gives a null pixmap.
    QPixmap picture(const QString &strPath, int iSide, qreal dRatio);

private:
    struct FileState
    {
        qint64 iModified = -1;
        qint64 iChanged = -1;
        qint64 iSize = -1;
        bool operator==(const FileState &other) const
        {
            return iModified == other.iModified && iChanged == other.iChanged && iSize == other.iSize;
        }
    };
    struct Head
    {
        FileState file;
        QPixmap picture;
    };
    static FileState stateOf(const QString &strPath);

    Draw m_draw;
    QHash<QPair<QString, int>, Head> m_heads; ///< by path and side in device pixels
    qint64 m_iBytes = 0;                      ///< of all pictures
};
