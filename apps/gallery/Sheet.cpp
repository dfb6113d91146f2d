#include "Sheet.h"

#include "common/Palette.h"
#include "common/pictures/IconFont.h"
#include "common/pictures/IconGlyphs.h"
#include "model/SkinContext.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

constexpr int cPageMargin = 24;
constexpr int cSectionGap = 22;
constexpr int cNameWidth = 170;
constexpr int cHeadingPixels = 16;
constexpr int cCaptionPixels = 11;
constexpr int cDarkMargin = 6;

const QColor cDarkGround(0x3a, 0x40, 0x48);

QLabel *textLine(const QString &strText, int iPixels, const QString &strColor)
{
    auto *label = new QLabel(strText);
    QFont font(QStringLiteral("微软雅黑"));
    font.setPixelSize(iPixels);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(strColor));
    label->setPalette(palette);
    return label;
}

void fillGround(QWidget *widget, const QColor &color)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, color);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

QWidget *onDarkGround(QWidget *specimen)
{
    auto *ground = new QWidget;
    fillGround(ground, cDarkGround);
    auto *layout = new QHBoxLayout(ground);
    layout->setContentsMargins(cDarkMargin, cDarkMargin, cDarkMargin, cDarkMargin);
    layout->addWidget(specimen);
    return ground;
}

} // namespace

Sheet::Sheet(QWidget *parent) : QWidget(parent), m_pSections(new QVBoxLayout(this))
{
    fillGround(this, QColor(strCOLOR_WHITE));
    m_pSections->setContentsMargins(cPageMargin, cPageMargin, cPageMargin, cPageMargin);
    m_pSections->setSpacing(0);
    m_pSections->addStretch();
}

void Sheet::section(const QString &strTitle, const QStringList &columns)
{
    const int iEnd = m_pSections->count() - 1;
    auto *heading = textLine(strTitle, cHeadingPixels, strCOLOR_SKINTHEME_GREEN);
    heading->setContentsMargins(0, iEnd == 0 ? 0 : cSectionGap, 0, 6);
    m_pSections->insertWidget(iEnd, heading);
    m_pGrid = new QGridLayout;
    m_pGrid->setHorizontalSpacing(18);
    m_pGrid->setVerticalSpacing(10);
    m_pGrid->setColumnMinimumWidth(0, cNameWidth);
    m_pSections->insertLayout(iEnd + 1, m_pGrid);
    m_iRow = 0;
    for (int i = 0; i < columns.size(); ++i) {
        m_pGrid->addWidget(caption(columns.at(i)), 0, i + 1, Qt::AlignLeft);
    }
    m_iRow = columns.isEmpty() ? 0 : 1;
}

void Sheet::row(const QString &strName, const QList<QWidget *> &specimens, bool bDark)
{
    m_pGrid->addWidget(caption(strName), m_iRow, 0, Qt::AlignLeft | Qt::AlignVCenter);
    int column = 1;
    for (QWidget *specimen : specimens) {
        m_pGrid->addWidget(bDark ? onDarkGround(specimen) : specimen, m_iRow, column++,
                           Qt::AlignLeft | Qt::AlignVCenter);
    }
    // The last column takes what is left, so that the specimens stand close together.
    for (int i = 0; i < m_pGrid->columnCount(); ++i) {
        m_pGrid->setColumnStretch(i, 0);
    }
    m_pGrid->setColumnStretch(m_pGrid->columnCount(), 1);
    ++m_iRow;
}

QWidget *Sheet::caption(const QString &strText)
{
    return textLine(strText, cCaptionPixels, strCOLOR_ICON_MID_GREY);
}

QWidget *Sheet::picture(const QPixmap &pixmap)
{
    auto *label = new QLabel;
    label->setPixmap(pixmap);
    return label;
}

QIcon Sheet::glyphIcon(ushort glyph, int iSide)
{
    const QColor color(SkinContext::getSkinData()->m_strIconColor);
    return QIcon(IconFont::getIconFontPixmap(IconGlyph::text(glyph), color, QSize(iSide, iSide), iSide));
}

QWidget *Sheet::hovered(QWidget *widget)
{
    widget->resize(widget->sizeHint());
    const QList<QWidget *> parts = QList<QWidget *>{widget} + widget->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        part->ensurePolished();
        part->setAttribute(Qt::WA_UnderMouse);
        // A button waits for the first movement over its face.
        QMouseEvent move(QEvent::MouseMove, part->rect().center(), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(part, &move);
    }
    return widget;
}

QWidget *Sheet::pressed(QWidget *widget)
{
    hovered(widget);
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (button == nullptr) {
        button = widget->findChild<QAbstractButton *>();
    }
    if (button != nullptr) {
        button->setDown(true);
    }
    return widget;
}
