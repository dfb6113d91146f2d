#pragma once

// The images in a message's HTML: where their files lie, and under which ids they are fetched. Only what stands between
// the first "<body" and the last "</body>" is looked at. An image element counts when it is well-formed XML and has
// three attributes with the names told below, in any order. Time grows with the length of the HTML only. GUI thread,
// since the user's folder is read from the shared settings; no state. Reached as CommonFun::name.

#include "common/pictures/CImageData.h"

#include <QMap>
#include <QString>
#include <QStringList>

class HtmlImages
{
public:
    /// For each image with three attributes out of src, type and style, in their order, an absolute path: the file name
    /// of its src in the folder "picRec" of the user's folder. Emoticons and placeholders (a src with "Emotion",
    /// "failed.png" or "downagain.png") and images without a src are left out. The other two arguments are not used.
    static QStringList getImageListFromHtml(const QString &strHtml, const QString &strUnused1,
                                            const QString &strUnused2);

    /// The record of each image with three attributes out of src, name and fileid. The key is its name without
    /// "file:///"; of two images with one name the last counts. An image whose name holds "downagain.png" is left out.
    /// The other two arguments are not used.
    static QMap<QString, CImageData> getFileIdListFromHtml(const QString &strHtml, const QString &strUnused1,
                                                           const QString &strUnused2);
};
