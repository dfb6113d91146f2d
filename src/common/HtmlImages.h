#pragma once

// The images in a message's HTML: where their files lie, and under which ids they are fetched. Looked for between the
// first "<body" and the last "</body>"; an image element counts when it is well-formed XML and holds three of the
// attributes named below, in any order. Time grows with the length of the HTML only. GUI thread, for the user's folder;
// no state. Reached as CommonFun::name.

#include "common/CImageData.h"

#include <QMap>
#include <QString>
#include <QStringList>

class HtmlImages
{
public:
    /// The absolute paths of the images with src, type or style three times, in their order: the file name of src in
    /// the folder "picRec" of the user's folder. Emoticons and placeholders (a src with "Emotion", "failed.png" or
    /// "downagain.png") and images without a src are left out. The other two arguments are not used.
    static QStringList getImageListFromHtml(const QString &strHtml, const QString &strUnused1,
                                            const QString &strUnused2);

    /// The images with src, name or fileid three times by their name without "file:///"; the last of a name counts. A
    /// name with "downagain.png" is left out. The other two arguments are not used.
    static QMap<QString, CImageData> getFileIdListFromHtml(const QString &strHtml, const QString &strUnused1,
                                                           const QString &strUnused2);
};
