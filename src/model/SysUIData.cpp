#include "model/SysUIData.h"

#include "common/text/StyleText.h"

#include <QStringList>

namespace {

uint hexNumber(const QString &strDigits)
{
    return strDigits.toUInt(nullptr, 16);
}

void setBubble(const QString &strPath, QString &strBorderImage, QString &strBorderWidths)
{
    const QStringList listPart = strPath.left(strPath.lastIndexOf(QLatin1Char('.'))).split(QLatin1Char('_'));
    const int iFirst = listPart.size() - 4;
    const QString strTop = listPart.value(iFirst);
    const QString strRight = listPart.value(iFirst + 1);
    const QString strBottom = listPart.value(iFirst + 2);
    const QString strLeft = listPart.value(iFirst + 3);
    strBorderImage =
        QStringLiteral("url(%1) %2 %3 %4 %5 fill stretch stretch").arg(strPath, strTop, strRight, strBottom, strLeft);
    strBorderWidths = QStringLiteral("%1px %2px %3px %4px").arg(strTop, strRight, strBottom, strLeft);
}

/// The numbers of "1px 2px 3px 4px" as texts; empty if there are fewer than four.
QStringList fourWidths(QString strWidths)
{
    const QStringList listWidth = strWidths.remove(QStringLiteral("px")).split(QLatin1Char(' '));
    return listWidth.size() < 4 ? QStringList() : listWidth;
}

QString marginInside(const QString &strMargin, const QString &strBorderWidths)
{
    const QStringList listMargin = fourWidths(strMargin);
    const QStringList listBorder = fourWidths(strBorderWidths);
    if (listMargin.isEmpty() || listBorder.isEmpty()) {
        return strMargin;
    }

    const auto left = [&](int iSide) {
        return QString::number(qint64(listMargin.at(iSide).toInt()) - listBorder.at(iSide).toInt());
    };
    return QStringLiteral("%1px %2px %3px %4px").arg(left(0), left(1), left(2), left(3));
}

} // namespace

void SysUIData::resetData(const SysUIData &other)
{
    // Deliberate: the shown name and the first of the two colours then stand in both places.
    const QString strShownName = other.m_strShownName;
    const QString strColor = other.m_strColor7;
    *this = other;
    m_strText4 = strShownName;
    m_strColor8 = strColor;
}

QColor SysUIData::transformToRGBA(const QString &strColor)
{
    const QString strAlpha = strColor.right(2);
    QColor color;
    color.setRed(int(hexNumber(strColor.left(2))));
    color.setGreen(int(hexNumber(strColor.mid(2, 2))));
    color.setBlue(int(hexNumber(strColor.mid(4, 2))));
    // Deliberate: the last two digits are the alpha also where they are the blue; only the empty text is opaque.
    color.setAlpha(strAlpha.isEmpty() ? 255 : int(hexNumber(strAlpha)));
    return color;
}

QString SysUIData::transformToRGBStr(const QString &strColor)
{
    return StyleText::transformToRGBAStr(strColor);
}

void SysUIData::setLeftChatBubble(const QString &strPath)
{
    setBubble(strPath, m_strLeftBubbleBorderImage, m_strLeftBubbleBorderWidths);
}

void SysUIData::setRightChatBubble(const QString &strPath)
{
    setBubble(strPath, m_strRightBubbleBorderImage, m_strRightBubbleBorderWidths);
}

void SysUIData::setLeftBubbleMargin(const QString &strMargin)
{
    m_strLeftBubbleMargin = marginInside(strMargin, m_strLeftBubbleBorderWidths);
}

void SysUIData::setRightBubbleMargin(const QString &strMargin)
{
    m_strRightBubbleMargin = marginInside(strMargin, m_strRightBubbleBorderWidths);
}
