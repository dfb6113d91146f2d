#include "ui/RowPainter.h"

#include "common/system/DpiScale.h"

#include <QAbstractItemModel>
#include <QFontMetrics>
#include <QPainter>
#include <QStaticText>
#include <QTextOption>

namespace {

constexpr int cTextPixels = 12;
constexpr QColor cLineColor(224, 224, 224);

// The most characters of a line that are measured. More would fit into a line only if they had no width.
constexpr int cMostCharacters = 2048;

QString withBlanks(QString strText)
{
    for (QChar &c : strText) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph) {
            c = QLatin1Char(' ');
        }
    }
    return strText;
}

/// The beginning of the text, as far as it can make a difference in `iWidth` pixels: what comes well behind them never
/// shows.
QString beginning(const QFontMetrics &metrics, const QString &strText, int iWidth)
{
    const int iMost = qMin(strText.size(), cMostCharacters);
    const int iEnough = iWidth + 4 * metrics.height();
    for (int iLength = iWidth / 2 + 32;; iLength *= 2) {
        QString strLine = withBlanks(strText.left(qMin(iLength, iMost)));
        if (iLength >= iMost || metrics.horizontalAdvance(strLine) > iEnough) {
            return strLine;
        }
    }
}

} // namespace

KeptPenAndFont::KeptPenAndFont(QPainter *pPainter)
    : m_pPainter(pPainter), m_font(pPainter->font()), m_pen(pPainter->pen())
{
}

KeptPenAndFont::~KeptPenAndFont()
{
    m_pPainter->setFont(m_font);
    m_pPainter->setPen(m_pen);
}

QFont RowPainter::textFont()
{
    QFont font(QStringLiteral("微软雅黑"));
    font.setPixelSize(ADAPT_DPI_INT(cTextPixels));
    return font;
}

QString RowPainter::elidedLine(const QFontMetrics &metrics, const QString &strText, int iWidth)
{
    return iWidth < 1 ? QString() : metrics.elidedText(beginning(metrics, strText, iWidth), Qt::ElideRight, iWidth);
}

int RowPainter::lineWidth(const QFontMetrics &metrics, const QString &strText, int iWidth)
{
    return iWidth < 1 ? 0 : qMin(metrics.horizontalAdvance(beginning(metrics, strText, iWidth)), iWidth);
}

void RowPainter::drawLine(QPainter &painter, const QRect &place, const QString &strText)
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    painter.drawText(place, strText, option);
}

void RowPainter::drawLine(QPainter &painter, const QRect &place, const QStaticText &line)
{
    // As QPainter::drawText does it: nothing shows outside the place.
    const bool bClipped = !QRectF(place).contains(QRectF(place.topLeft(), line.size()));
    if (bClipped) {
        painter.save();
        painter.setClipRect(place, Qt::IntersectClip);
    }
    painter.drawStaticText(place.topLeft(), line);
    if (bClipped) {
        painter.restore();
    }
}

void RowPainter::drawBottomLine(QPainter &painter, int iLeft, int iRight, int iBottom)
{
    painter.fillRect(QRect(QPoint(iLeft, iBottom), QPoint(iRight, iBottom)), cLineColor);
}

void RowPainter::keepRect(const QModelIndex &index, int iRole, const QRect &place)
{
    const_cast<QAbstractItemModel *>(index.model())->setData(index, place, iRole);
}
