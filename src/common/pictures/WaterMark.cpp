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

const QString DEFAULT_COLOR = QStringLiteral("#e8e9eb");

constexpr double ANGLE = 16;
// Cosine, sine and tangent of ANGLE, deliberately computed with 3.14 for pi although the painter turns by the true
// angle: the watermarks that the host has already are laid out so.
constexpr double COSINE = 0.9613007080676148;
constexpr double SINE = 0.2755012679983567;
constexpr double TANGENT = 0.28659218253585106;

constexpr int FONT_PIXELS = 14;
constexpr int ROW_GAP = 50;
constexpr int TEXT_GAP = 100;
constexpr int ODD_ROW_INDENT = 60;
// The number of columns is computed with a narrower distance than they are drawn at, deliberately: the last ones run
// over the edge, so that the shifted rows have no gap there.
constexpr int COUNTED_GAP = 110;

// Far more than a screen shows. A longer text would take long to measure, and its width may fit into no number.
constexpr int MOST_CHARACTERS = 10000;

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
        m_iPitch = metrics.height() + ROW_GAP;
    }

    int period() const { return m_iFirstWidth + m_iSecondWidth + 2 * TEXT_GAP; }

    void draw(QPainter &painter, const QSize &canvas) const
    {
        const int iRows = int(std::ceil(double(canvas.height()) / m_iPitch));
        const int iColumns = int(std::ceil(double(canvas.width()) / (m_iFirstWidth + m_iSecondWidth + COUNTED_GAP)));
        for (int iRow = 0; iRow < iRows; ++iRow) {
            const double dShift = iRow * m_iPitch * TANGENT;
            const int iY = int(canvas.height() * TANGENT + iRow * m_iPitch);
            for (int iColumn = 0; iColumn < iColumns; ++iColumn) {
                drawPair(painter, iRow % 2 == 1, iColumn * period() - dShift, iY);
            }
        }
    }

private:
    void drawPair(QPainter &painter, bool bOddRow, double dX, int iY) const
    {
        if (bOddRow) {
            painter.drawText(int(ODD_ROW_INDENT + dX), iY, m_strFirst);
            painter.drawText(int(m_iFirstWidth + ODD_ROW_INDENT + TEXT_GAP + dX), iY, m_strSecond);
        } else {
            painter.drawText(int(dX), iY, m_strSecond);
            painter.drawText(int(m_iSecondWidth + TEXT_GAP + dX), iY, m_strFirst);
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
    QPixmap canvas(int(area.width() / COSINE), int(area.width() * TANGENT + area.height()));
    canvas.fill(Qt::transparent);
    QFont font(QStringLiteral("Microsoft YaHei"));
    font.setPixelSize(ADAPT_DPI_INT(FONT_PIXELS));
    const Tiles tiles(font, strOwn, strUser);
    QPainter painter(&canvas);
    painter.setFont(font);
    painter.setPen(color);
    painter.rotate(-ANGLE);
    tiles.draw(painter, canvas.size());
    painter.rotate(ANGLE);
    painter.end();
    const int iWidth = int(3 * tiles.period() * COSINE);
    return canvas.copy(int(canvas.height() * TANGENT * SINE) - 3, int(canvas.width() * SINE), iWidth, area.height());
}

} // namespace

bool WaterMark::generateWaterMark(QString &strName, QString &strId, QString &strPath)
{
    const QString strSkinColor = SkinContext::getSkinData()->m_strWaterMarkColor;
    const QString strColor = strSkinColor.isEmpty() ? DEFAULT_COLOR : strSkinColor;
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
                                          QObject::tr("tarvoShoot"), strUser.left(MOST_CHARACTERS));
    QDir().mkpath(PictureFolders::waterMarks());
    return picture.save(strPath, "png");
}
