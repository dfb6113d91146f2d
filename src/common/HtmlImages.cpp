#include "common/HtmlImages.h"

#include "common/DomText.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QRegExp>
#include <QStringMatcher>

namespace {

// The three places take the same attribute names.
QRegExp imagePattern(const QString &strNames)
{
    const QString strAttribute = QStringLiteral("([^>]*)(%1){1,1}=\"([^>]*)\"").arg(strNames);
    QRegExp pattern(QLatin1String("<img") + strAttribute + strAttribute + strAttribute + QLatin1String("[^>]*>"));
    pattern.setMinimal(true);
    return pattern;
}

// All from the first "<body" through the last "</body>", which no second body can follow.
QString bodyOf(const QString &strHtml)
{
    const QString strEnd = QStringLiteral("</body>");
    const QString strStart = QStringLiteral("<body");
    const int iFirst = strHtml.indexOf(strStart);
    const int iLast = strHtml.lastIndexOf(strEnd);
    if (iFirst < 0 || iLast < iFirst + strStart.size())
        return {};
    return strHtml.mid(iFirst, iLast + strEnd.size() - iFirst);
}

// Calls `take` with each image element. An image holds no ">" but at its end, so the pattern is tried once for each
// stretch up to the next one, from the first place where it can begin.
template <typename Take>
void forEachImage(const QString &strHtml, const QString &strNames, Take take)
{
    const QRegExp pattern = imagePattern(strNames);
    const QString strBody = bodyOf(strHtml);
    const QStringMatcher begin(QStringLiteral("<img"));
    int iEnd = 0;
    for (int iImage = begin.indexIn(strBody); iImage >= 0; iImage = begin.indexIn(strBody, iEnd)) {
        iEnd = strBody.indexOf(QLatin1Char('>'), iImage) + 1;
        if (iEnd == 0)
            return;
        const QString strImage = strBody.mid(iImage, iEnd - iImage);
        QDomDocument document;
        if (!pattern.exactMatch(strImage) || !DomText::parse(strImage, document))
            continue;
        const QDomElement image = document.firstChildElement(QStringLiteral("img"));
        if (!image.isNull())
            take(image);
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
    if (!strWidth.isEmpty())
        data.m_strSize = strWidth;
    return data;
}

} // namespace

QStringList HtmlImages::getImageListFromHtml(const QString &strHtml, const QString &, const QString &)
{
    const SystemSetData *pSettings = SharedContext::getSystemSetData();
    const QString strFolder = (pSettings ? pSettings->m_strUserFolder : QString()) + QLatin1String("/picRec/");
    QStringList listPath;
    forEachImage(strHtml, QStringLiteral("src|type|style"), [&](const QDomElement &image) {
        const QString strSrc = image.attribute(QStringLiteral("src"));
        if (!strSrc.isEmpty() && !isPlaceholder(strSrc))
            listPath.append(QFileInfo(strFolder + QFileInfo(strSrc).fileName()).absoluteFilePath());
    });
    return listPath;
}

QMap<QString, CImageData> HtmlImages::getFileIdListFromHtml(const QString &strHtml, const QString &, const QString &)
{
    QMap<QString, CImageData> mapImage;
    forEachImage(strHtml, QStringLiteral("src|name|fileid"), [&](const QDomElement &image) {
        QString strName = image.attribute(QStringLiteral("name"));
        if (strName.contains(QLatin1String("downagain.png")))
            return;
        strName.remove(QLatin1String("file:///"));
        mapImage.insert(strName, recordOf(image));
    });
    return mapImage;
}
