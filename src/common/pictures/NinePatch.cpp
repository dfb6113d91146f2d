#include "common/pictures/NinePatch.h"

#include <QColor>
#include <QPainter>

#include <array>

namespace {

// Where a frame picture is cut, from the left as from the top.
constexpr double cFirstCut = 10;
constexpr double cSecondCut = 19;

constexpr int cPartCount = 3;

struct Stretch
{
    double m_dStart;
    double m_dLength;
};

using Parts = std::array<Stretch, cPartCount>;

Parts sourceParts(int iLength)
{
    return {{{0, cFirstCut}, {cFirstCut, cSecondCut - cFirstCut}, {cSecondCut, iLength - cSecondCut}}};
}

Parts targetParts(int iLength, int iSourceLength)
{
    const double dMiddle = iLength - iSourceLength + (cSecondCut - cFirstCut);
    return {{{0, cFirstCut}, {cFirstCut, dMiddle}, {cFirstCut + dMiddle, iSourceLength - cSecondCut}}};
}

QRectF partRect(const Stretch &column, const Stretch &row)
{
    return {column.m_dStart, row.m_dStart, column.m_dLength, row.m_dLength};
}

} // namespace

QPixmap NinePatch::drawNinePatch(QSize size, const QPixmap &source)
{
    if (size.isEmpty()) {
        return {};
    }
    QPixmap frame(size);
    frame.fill(QColor(255, 255, 255, 0));
    const Parts sourceColumns = sourceParts(source.width());
    const Parts sourceRows = sourceParts(source.height());
    const Parts columns = targetParts(size.width(), source.width());
    const Parts rows = targetParts(size.height(), source.height());
    QPainter painter(&frame);
    for (int iRow = 0; iRow < cPartCount; ++iRow) {
        for (int iColumn = 0; iColumn < cPartCount; ++iColumn) {
            const QRectF from = partRect(sourceColumns[iColumn], sourceRows[iRow]);
            const QRectF to = partRect(columns[iColumn], rows[iRow]);
            // A rectangle without room would be taken for the whole picture.
            if (!from.isEmpty() && !to.isEmpty()) {
                painter.drawPixmap(to, source, from);
            }
        }
    }
    return frame;
}
