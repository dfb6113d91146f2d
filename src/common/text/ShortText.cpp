#include "common/text/ShortText.h"

#include "common/text/SurrogatePairs.h"
#include "common/text/TextMeasure.h"

#include <QStringView>
#include <QXmlStreamWriter>

#include <numeric>

namespace {

constexpr int cElidedColumns = 9;

int columnsOf(QStringView text)
{
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int iSum, QChar c) { return iSum + TextMeasure::columnsOf(c); });
}

/// The position behind the character at `i`; a surrogate pair is one character.
int behind(const QString &strText, int i)
{
    return i + SurrogatePairs::unitsAt(strText, i);
}

/// The position at which the columns from `iStart` on have reached `iColumns`.
int endOfStretch(const QString &strText, int iStart, int iColumns)
{
    int iEnd = iStart;
    for (int iWidth = 0; iWidth < iColumns && iEnd < strText.size();) {
        const int iNext = behind(strText, iEnd);
        iWidth += columnsOf(QStringView(strText).mid(iEnd, iNext - iEnd));
        iEnd = iNext;
    }
    return iEnd;
}

QString escaped(const QString &strText)
{
    const QString strTag = QStringLiteral("test");
    const int iOpening = strTag.size() + 2;
    const int iClosing = strTag.size() + 3;
    QString strElement;
    QXmlStreamWriter writer(&strElement);
    writer.writeTextElement(strTag, strText);
    return strElement.mid(iOpening, strElement.size() - iOpening - iClosing);
}

} // namespace

QString ShortText::getShortString(const QString &strText, int iColumns)
{
    QString strLines;
    int iStart = 0;
    int iLeft = columnsOf(strText);
    while (iColumns > 0 && iLeft >= iColumns) {
        const int iEnd = endOfStretch(strText, iStart, iColumns);
        const QStringView stretch = QStringView(strText).mid(iStart, iEnd - iStart);
        strLines.append(stretch.data(), int(stretch.size()));
        if (iEnd < strText.size()) {
            strLines.append(QLatin1Char('\n'));
        }
        iLeft -= columnsOf(stretch);
        iStart = iEnd;
    }
    return escaped(strLines + strText.mid(iStart));
}

QString ShortText::getElidedText(const QString &strText)
{
    int iEnd = 0;
    for (int iWidth = 0; iEnd < strText.size();) {
        const int iNext = behind(strText, iEnd);
        iWidth += columnsOf(QStringView(strText).mid(iEnd, iNext - iEnd));
        if (iWidth >= cElidedColumns) {
            return strText.left(iEnd) + QStringLiteral("...");
        }
        iEnd = iNext;
    }
    return strText;
}
