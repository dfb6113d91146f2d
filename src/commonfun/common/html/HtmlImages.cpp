#include "common/html/HtmlImages.h"

#include "common/html/DomText.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QStringMatcher>

#include <algorithm>
#include <array>

namespace {

/// An element counts as an image when it has three attributes whose names are among these. The three may have the same
/// name.
using AttributeNames = std::array<QLatin1String, 3>;

/// The position behind the value of the first attribute at or behind `iFrom` that has one of the names; -1 when there
/// is none. A name that ends with one of them counts as well, such as "data-src" for "src".
int behindAttribute(const QString &strImage, const AttributeNames &names, int iFrom)
{
    for (int i = strImage.indexOf(QLatin1String("=\""), iFrom); i >= 0;
         i = strImage.indexOf(QLatin1String("=\""), i + 1)) {
        const QStringRef before = strImage.midRef(iFrom, i - iFrom);
        if (std::any_of(names.begin(), names.end(), [&](QLatin1String name) { return before.endsWith(name); })) {
            const int iQuote = strImage.indexOf(QLatin1Char('"'), i + 2);
            return iQuote < 0 ? -1 : iQuote + 1;
        }
    }
    return -1;
}

/// Whether `strImage`, which runs from "<img" through the next ">", has three such attributes one behind the other.
/// This is what the following pattern tells, with "src|type|style" or "src|name|fileid" for cNames, but in linear time:
/// <img([^>]*)(cNames){1,1}="([^>]*)"([^>]*)(cNames){1,1}="([^>]*)"([^>]*)(cNames){1,1}="([^>]*)"[^>]*>
bool isImage(const QString &strImage, const AttributeNames &names)
{
    int i = int(qstrlen("<img"));
    for (int iPlace = 0; iPlace < 3 && i >= 0; ++iPlace) {
        i = behindAttribute(strImage, names, i);
    }
    return i >= 0;
}

/// The text from the first "<body" through the last "</body>"; empty when one of the two is missing.
QString bodyOf(const QString &strHtml)
{
    const QString strEnd = QStringLiteral("</body>");
    const QString strStart = QStringLiteral("<body");
    const int iFirst = strHtml.indexOf(strStart);
    const int iLast = strHtml.lastIndexOf(strEnd);
    if (iFirst < 0 || iLast < iFirst + strStart.size()) {
        return {};
    }
    return strHtml.mid(iFirst, iLast + strEnd.size() - iFirst);
}

/// Calls `take` with each image element, in the order in which they stand. An element ends at the first ">" behind its
/// beginning, so the text is gone through once.
template <typename Take>
void forEachImage(const QString &strHtml, const AttributeNames &names, Take take)
{
    const QString strBody = bodyOf(strHtml);
    const QStringMatcher begin(QStringLiteral("<img"));
    int iEnd = 0;
    for (int iImage = begin.indexIn(strBody); iImage >= 0; iImage = begin.indexIn(strBody, iEnd)) {
        iEnd = strBody.indexOf(QLatin1Char('>'), iImage) + 1;
        if (iEnd == 0) {
            return;
        }
        const QString strImage = strBody.mid(iImage, iEnd - iImage);
        QDomDocument document;
        if (!isImage(strImage, names) || !DomText::parse(strImage, document)) {
            continue;
        }
        const QDomElement image = document.firstChildElement(QStringLiteral("img"));
        if (!image.isNull()) {
            take(image);
        }
    }
}

bool isPlaceholder(const QString &strSrc)
{
    return strSrc.contains(QLatin1String("Emotion")) || strSrc.contains(QLatin1String("failed.png")) ||
           strSrc.contains(QLatin1String("downagain.png"));
}

CImageData recordOf(const QDomElement &image)
{
    CImageData data;
    data.m_strFileId = image.attribute(QStringLiteral("fileid"));
    data.m_strSequence = image.attribute(QStringLiteral("sequence"));
    data.m_strSize = image.attribute(QStringLiteral("trueheight"));
    // Deliberate: the width wins over the height.
    const QString strWidth = image.attribute(QStringLiteral("truewidth"));
    if (!strWidth.isEmpty()) {
        data.m_strSize = strWidth;
    }
    return data;
}

} // namespace

QStringList HtmlImages::getImageListFromHtml(const QString &strHtml, const QString &, const QString &)
{
    const SystemSetData *pSettings = SharedContext::getSystemSetData();
    const QString strFolder = (pSettings ? pSettings->m_strUserFolder : QString()) + QLatin1String("/picRec/");
    QStringList listPath;
    forEachImage(strHtml, {QLatin1String("src"), QLatin1String("type"), QLatin1String("style")},
                 [&](const QDomElement &image) {
                     const QString strSrc = image.attribute(QStringLiteral("src"));
                     if (!strSrc.isEmpty() && !isPlaceholder(strSrc)) {
                         listPath.append(QFileInfo(strFolder + QFileInfo(strSrc).fileName()).absoluteFilePath());
                     }
                 });
    return listPath;
}

QMap<QString, CImageData> HtmlImages::getFileIdListFromHtml(const QString &strHtml, const QString &, const QString &)
{
    QMap<QString, CImageData> mapImage;
    forEachImage(strHtml, {QLatin1String("src"), QLatin1String("name"), QLatin1String("fileid")},
                 [&](const QDomElement &image) {
                     QString strName = image.attribute(QStringLiteral("name"));
                     if (strName.contains(QLatin1String("downagain.png"))) {
                         return;
                     }
                     strName.remove(QLatin1String("file:///"));
                     mapImage.insert(strName, recordOf(image));
                 });
    return mapImage;
}
