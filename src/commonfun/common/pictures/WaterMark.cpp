#include "common/pictures/WaterMark.h"

#include "common/pictures/PictureFolders.h"
#include "common/system/DpiScale.h"
#include "model/LoginData.h"
#include "model/SharedContext.h"
#include "model/SkinContext.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QObject>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

#include <cmath>

namespace {

const QString cDefaultColor = QStringLiteral("#e8e9eb");

constexpr double cAngle = 16;
// Cosine, sine and tangent of cAngle, deliberately computed with 3.14 for pi although the painter turns by the true
// angle: the watermarks that the host has already are laid out so.
constexpr double cCosine = 0.9613007080676148;
constexpr double cSine = 0.2755012679983567;
constexpr double cTangent = 0.28659218253585106;

constexpr int cFontPixels = 14;
constexpr int cRowGap = 50;
constexpr int cTextGap = 100;
constexpr int cOddRowIndent = 60;
// The number of columns is computed with a narrower distance than they are drawn at, deliberately: the last ones run
// over the edge, so that the shifted rows have no gap there.
constexpr int cCountedGap = 110;

// Far more than a screen shows. A longer text would take long to measure, and its width may fit into no number.
constexpr int cMostCharacters = 10000;

// The two texts in turn, with the measures of their font.
class Tiles
{
public:
    Tiles(const QFont &font, QString strFirst, QString strSecond)
        : m_strFirst(std::move(strFirst)), m_strSecond(std::move(strSecond))
    {
        const QFontMetrics metrics(font);
        m_iFirstWidth = metrics.horizontalAdvance(m_strFirst);
        m_iSecondWidth = metrics.horizontalAdvance(m_strSecond);
        m_iPitch = metrics.height() + cRowGap;
    }

    int period() const { return m_iFirstWidth + m_iSecondWidth + 2 * cTextGap; }

    void draw(QPainter &painter, const QSize &canvas) const
    {
        const int iRows = int(std::ceil(double(canvas.height()) / m_iPitch));
        const int iColumns = int(std::ceil(double(canvas.width()) / (m_iFirstWidth + m_iSecondWidth + cCountedGap)));
        for (int iRow = 0; iRow < iRows; ++iRow) {
            const double dShift = iRow * m_iPitch * cTangent;
            const int iY = int(canvas.height() * cTangent + iRow * m_iPitch);
            for (int iColumn = 0; iColumn < iColumns; ++iColumn) {
                drawPair(painter, iRow % 2 == 1, iColumn * period() - dShift, iY);
            }
        }
    }

private:
    void drawPair(QPainter &painter, bool bOddRow, double dX, int iY) const
    {
        if (bOddRow) {
            painter.drawText(int(cOddRowIndent + dX), iY, m_strFirst);
            painter.drawText(int(m_iFirstWidth + cOddRowIndent + cTextGap + dX), iY, m_strSecond);
        } else {
            painter.drawText(int(dX), iY, m_strSecond);
            painter.drawText(int(m_iSecondWidth + cTextGap + dX), iY, m_strFirst);
        }
    }

    QString m_strFirst;
    QString m_strSecond;
    int m_iFirstWidth = 0;
    int m_iSecondWidth = 0;
    int m_iPitch = 0;
};

// The watermark for an area of that size: the texts painted on a larger canvas, and the part of it that they fill.
QPixmap drawWaterMark(const QSize &area, const QColor &color, const QString &strOwn, const QString &strUser)
{
    QPixmap canvas(int(area.width() / cCosine), int(area.width() * cTangent + area.height()));
    canvas.fill(Qt::transparent);
    QFont font(QStringLiteral("Microsoft YaHei"));
    font.setPixelSize(ADAPT_DPI_INT(cFontPixels));
    const Tiles tiles(font, strOwn, strUser);
    QPainter painter(&canvas);
    painter.setFont(font);
    painter.setPen(color);
    painter.rotate(-cAngle);
    tiles.draw(painter, canvas.size());
    painter.rotate(cAngle);
    painter.end();
    const int iWidth = int(3 * tiles.period() * cCosine);
    return canvas.copy(int(canvas.height() * cTangent * cSine) - 3, int(canvas.width() * cSine), iWidth, area.height());
}

} // namespace

bool WaterMark::generateWaterMark(QString &strName, QString &strId, QString &strPath)
{
    const QString strSkinColor = SkinContext::getSkinData()->m_strWaterMarkColor;
    const QString strColor = strSkinColor.isEmpty() ? cDefaultColor : strSkinColor;
    const LoginData *pLogin = SharedContext::getLoginData();
    const QString strUid = pLogin != nullptr ? pLogin->m_strUid : QString();
    strPath = PictureFolders::waterMarks() + strUid + QLatin1Char('_') + strColor + QLatin1String(".png");
    if (QFile::exists(strPath)) {
        return true;
    }
    // Neither part of the name leads out of the folder.
    if (strUid.contains(QLatin1Char('/')) || strColor.contains(QLatin1Char('/'))) {
        return false;
    }
    const QScreen *pScreen = QGuiApplication::primaryScreen();
    if (pScreen == nullptr) {
        return false;
    }
    const QString strUser = strId.isEmpty() ? strName : strName + QLatin1Char('(') + strId + QLatin1Char(')');
    const QPixmap picture = drawWaterMark(pScreen->availableGeometry().size(), QColor(strColor),
                                          QObject::tr("tarvoShoot"), strUser.left(cMostCharacters));
    QDir().mkpath(PictureFolders::waterMarks());
    return picture.save(strPath, "png");
}
