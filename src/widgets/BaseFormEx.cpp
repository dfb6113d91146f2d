#include "widgets/BaseFormEx.h"

#include "ui_BaseFormEx.h"

#include "common/system/DpiScale.h"
#include "model/SkinContext.h"
#include "widgets/QtWin.h"

#include <QCoreApplication>
#include <QPainter>

namespace {

constexpr int cBodyAlpha = 230;

// Deliberately all but invisible: what a title shows is the colour of the skin, to which windows fit their words.
constexpr int cTitleAlpha = 1;

QColor whiteOf(int iAlpha)
{
    QColor color(Qt::white);
    color.setAlpha(iAlpha);
    return color;
}

} // namespace

CBaseFormEx::CBaseFormEx(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::CBaseFormEx>())
{
    ui->setupUi(this);
}

CBaseFormEx::~CBaseFormEx() = default;

void CBaseFormEx::setTitleHeight(int iHeight)
{
    m_iTitleHeight = ADAPT_DPI_INT(iHeight);
}

void CBaseFormEx::setTitleHeightEx(int iHeight)
{
    m_iTitleHeight = iHeight;
}

void CBaseFormEx::setTitleImage(const QString &)
{
    m_iTitleHeight = ADAPT_DPI_INT(m_titlePixmap.height());
    update();
}

void CBaseFormEx::setPaintLineOffset(int iOffset)
{
    if (iOffset >= 4) {
        m_iPaintLineOffset = iOffset - 3;
    }
}

void CBaseFormEx::setNoSeparate(bool bNoSeparate)
{
    m_bNoSeparate = bNoSeparate;
}

void CBaseFormEx::setNoneShadow(bool bNoneShadow)
{
    m_bNoneShadow = bNoneShadow;
}

void CBaseFormEx::setWhiteTranspatent(bool bWhiteTranspatent)
{
    m_bWhiteTranspatent = bWhiteTranspatent;
}

void CBaseFormEx::setOnlyMainWindow(bool bOnlyMainWindow)
{
    m_bOnlyMainWindow = bOnlyMainWindow;
}

void CBaseFormEx::setPaintPic(bool bPaintPic)
{
    m_bPaintPic = bPaintPic;
}

void CBaseFormEx::setSkinData(SysUIData) {}

void CBaseFormEx::paintEvent(QPaintEvent *)
{
    if (m_bNoneShadow) {
        return;
    }
    QtWin::isCompositionEnabled();
    if (m_bWhiteTranspatent) {
        m_iBodyAlpha = cBodyAlpha;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintPanel(painter);
    paintTitleStrip(painter);
    paintLine(painter);
    if (!m_bNoSeparate) {
        paintBody(painter);
    }
}

void CBaseFormEx::paintPanel(QPainter &painter) const
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(SkinContext::getSkinData()->m_strPanelColor));
    painter.drawRoundedRect(QRectF(2, 2, width() - 4, height() - 4), 2, 2);
    painter.restore();
}

void CBaseFormEx::paintTitleStrip(QPainter &painter) const
{
    const int iHeight = m_iTitleHeight - 2;
    // A rectangle of negative height would be turned round and painted above the strip's place.
    if (iHeight <= 0) {
        return;
    }
    painter.setPen(whiteOf(cTitleAlpha));
    painter.setBrush(whiteOf(cTitleAlpha));
    painter.drawRoundedRect(QRectF(2, 2, width() - 5, iHeight), 3, 3);
}

void CBaseFormEx::paintLine(QPainter &painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(QColor(224, 224, 224, 255), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(m_iPaintLineOffset + 2, lineTop(), width() - 2 - ADAPT_DPI_INT(1), lineTop());
    painter.restore();
}

void CBaseFormEx::paintBody(QPainter &painter) const
{
    painter.setOpacity(m_iBodyAlpha / 255.0);
    painter.setRenderHint(QPainter::Antialiasing);
    // The picture never shows: its brush is replaced before anything is painted with it. Deliberate; skins that bring
    // one of their own rely on a plain body.
    painter.setBrush(
        QPixmap(QCoreApplication::applicationDirPath() + QStringLiteral("/Resources/images/CommonCtrls/bg_main.png")));
    painter.setPen(whiteOf(m_iBodyAlpha));
    painter.setBrush(whiteOf(m_iBodyAlpha));
    painter.drawRoundedRect(QRectF(m_iPaintLineOffset + 4, m_iTitleHeight + 4, width() - 7 - m_iPaintLineOffset,
                                   height() - 5 - m_iTitleHeight),
                            3, 3);
}
