#pragma once

// The images in a message's HTML: where their files lie, and the ids by which they are fetched. Only what stands
// between the first "<body" and the last "</body>" is looked at. An img element counts when it is well-formed XML and
// has three attributes whose names are among those that the function tells, in any order. The time grows with the
// length of the HTML. GUI thread, because the user's folder is read from the shared settings; no state.

#include "common/pictures/CImageData.h"

#include <QMap>
#include <QString>
#include <QStringList>

class HtmlImages
{
public:
    /// The absolute path of the file of each image with three attributes named src, type or style, in the order of the
    /// images. The file has the name that src gives, without its folders, and lies in the folder "picRec" of the user's
    /// folder. An image without a src is left out, and so are emoticons and placeholders: a src that holds "Emotion",
    /// "failed.png" or "downagain.png". The other two arguments are not used.
    static QStringList getImageListFromHtml(const QString &strHtml, const QString &strUnused1,
                                            const QString &strUnused2);

    /// The record of each image with three attributes named src, name or fileid. The key is the value of name without
    /// "file:///"; of two images with the same name the last counts. An image whose name holds "downagain.png" is left
    /// out. The other two arguments are not used.
    static QMap<QString, CImageData> getFileIdListFromHtml(const QString &strHtml, const QString &strUnused1,
                                                           const QString &strUnused2);
};
