#include "widgets/IconButtonEx.h"

#include "ui_IconButtonEx.h"

#include "common/Palette.h"
#include "common/pictures/IconFont.h"
#include "common/system/DpiScale.h"
#include "model/SkinContext.h"
#include "model/SysUIData.h"
#include "widgets/FocusRing.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <array>

namespace {

constexpr int cTransparent = 0;
constexpr int cOpaque = 255;

// The colour of three decimals, "184,184,184"; invalid for any other text.
QColor colorOfDecimals(const QString &text)
{
    const QStringList listPart = text.split(QLatin1Char(','));
    if (listPart.size() != 3) {
        return {};
    }
    std::array<int, 3> part{};
    for (int i = 0; i < listPart.size(); ++i) {
        bool bNumber = false;
        part.at(static_cast<std::size_t>(i)) = listPart.at(i).trimmed().toInt(&bNumber);
        if (!bNumber) {
            return {};
        }
    }
    return {part[0], part[1], part[2]}; // invalid again for a part outside 0 to 255
}

} // namespace

CIconButtonEx::CIconButtonEx(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::CIconButtonEx>())
{
    ui->setupUi(this);
    ui->widgetBG->installEventFilter(this);
    ui->pushButton->installEventFilter(this);
    ui->pushButton->setEnabled(true);
    // The mouse never clicks the inner button, see eventFilter.
    connect(ui->pushButton, &QPushButton::clicked, this, &CIconButtonEx::passKeyClick);
    setStyles();
}

CIconButtonEx::~CIconButtonEx() = default;

void CIconButtonEx::setStyles()
{
    m_strIconColor = SkinContext::getSkinData()->m_strIconColor;
    m_strBtnStyle = QStringLiteral("QPushButton{color: %1;background:transparent;}");
    m_strBtnHoverStyle = QStringLiteral("QPushButton::hover{color: %1;background:transparent;}");
    m_strBgStyle = QStringLiteral("QWidget{border-radius:2px;background-color:rgba(%1,%2);}");
    m_strBgHoverStyle = QStringLiteral("QWidget::hover{background-color: %1;}");
}

void CIconButtonEx::setIconFont(QString glyph, int size, int type)
{
    QFont font = IconFont::getIconFont();
    if (ADAPT_DPI_INT(size) > 0) {
        font.setPixelSize(ADAPT_DPI_INT(size));
    }
    ui->pushButton->setFont(font);
    showText(glyph);
    m_strGlyph = glyph;
    m_iGlyphSize = size;
    m_iStyleType = type;
    setBtnStyles(type);
}

void CIconButtonEx::setIconColor(const QString &color)
{
    if (!color.isEmpty()) {
        m_strIconColor = color;
    }
    setBtnStyles(m_iStyleType);
}

void CIconButtonEx::setBtnStyles(int type)
{
    const SysUIData &skin = *SkinContext::getSkinData();
    switch (type) {
    case HoverStyle:
    case SameHoverStyle:
        m_strHoverColor = skin.m_strIconHoverColor;
        if (m_bCheckedState) {
            showGlyph(m_strHoverColor);
        } else {
            showNormal();
        }
        break;
    case BackgroundStyle:
        if (m_bBackGroundDark) {
            showGlyph(strCOLOR_WHITE, strCOLOR_WHITE);
            showBackground(strCOLOR_SKINTHEME_GREEN, strCOLOR_SKINTHEME_GREEN);
        } else {
            m_strHoverColor = skin.m_strThirdIconColor;
            showNormal();
            showBackground(skin.m_strFifthIconColor, skin.m_strFourthIconColor);
        }
        break;
    case RedStyle:
        if (m_bBackGroundDark) {
            showGlyph(strCOLOR_WHITE, strCOLOR_WHITE);
        } else {
            m_strHoverColor = skin.m_strThirdIconColor;
            showGlyph(m_strIconColor, strCOLOR_WHITE);
            showBackground(skin.m_strFifthIconColor, skin.m_strFifthIconColor);
        }
        break;
    case StillStyle:
        showGlyph(m_strIconColor);
        break;
    default:
        m_strHoverColor = skin.m_strIconHoverColor;
        showNormal();
    }
}

void CIconButtonEx::showNormal()
{
    showGlyph(m_strIconColor, m_strHoverColor);
}

void CIconButtonEx::showGlyph(const QString &color)
{
    ui->pushButton->setStyleSheet(m_strBtnStyle.arg(color));
    showDecimals(color);
}

void CIconButtonEx::showGlyph(const QString &color, const QString &hoverColor)
{
    ui->pushButton->setStyleSheet(m_strBtnStyle.arg(color) + m_strBtnHoverStyle.arg(hoverColor));
    showDecimals(color);
}

void CIconButtonEx::showDecimals(const QString &color)
{
    // A style sheet cannot read three decimals; the glyph then has the palette's colour, which each new sheet sets
    // back.
    const QColor decimals = colorOfDecimals(color);
    if (decimals.isValid()) {
        QPalette palette = ui->pushButton->palette();
        palette.setColor(QPalette::ButtonText, decimals);
        ui->pushButton->setPalette(palette);
    }
}

QString CIconButtonEx::backgroundOf(const QString &color, int iAlpha) const
{
    return m_strBgStyle.arg(SysUIData::transformToRGBStr(color)).arg(iAlpha);
}

void CIconButtonEx::showBackground(const QString &color, const QString &hoverColor)
{
    ui->widgetBG->setStyleSheet(backgroundOf(color, cTransparent) + m_strBgHoverStyle.arg(hoverColor));
}

void CIconButtonEx::setText(const QString &text)
{
    showText(text);
    ui->pushButton->setFlat(true);
}

void CIconButtonEx::showText(const QString &strText)
{
    ui->pushButton->setText(strText);
    // A new text takes the keys away, but for the letter that it marks itself.
    if (!m_keys.isEmpty()) {
        ui->pushButton->setShortcut(m_keys);
    }
}

void CIconButtonEx::setShortcut(const QKeySequence &keys)
{
    m_keys = keys;
    ui->pushButton->setShortcut(keys);
}

void CIconButtonEx::setKeyFocus(bool bTakes)
{
    ui->pushButton->setFocusPolicy(bTakes ? Qt::TabFocus : Qt::NoFocus);
    if (bTakes && m_pRing == nullptr) {
        m_pRing = new FocusRing(ui->pushButton, this);
    }
}

void CIconButtonEx::setAccessibleName(const QString &strName)
{
    m_strName = strName;
    nameInner();
}

void CIconButtonEx::nameInner()
{
    ui->pushButton->setAccessibleName(m_strName.isEmpty() ? toolTip() : m_strName);
}

void CIconButtonEx::passKeyClick()
{
    // The inner button has changed its state by itself; what is shown as checked stays the owner's affair.
    ui->pushButton->setChecked(m_bCheckedState);
    emit clicked();
}

void CIconButtonEx::setFlat(bool bFlat)
{
    ui->pushButton->setFlat(bFlat);
}

void CIconButtonEx::setAutoDefault(bool bAutoDefault)
{
    ui->pushButton->setAutoDefault(bAutoDefault);
}

void CIconButtonEx::setDefault(bool bDefault)
{
    ui->pushButton->setDefault(bDefault);
}

void CIconButtonEx::setIconSize(QSize size)
{
    ui->pushButton->setIconSize(size);
}

void CIconButtonEx::setCheckable(bool bCheckable)
{
    m_bCheckable = bCheckable;
    ui->pushButton->setCheckable(bCheckable);
}

void CIconButtonEx::setChecked(bool bChecked)
{
    if (!m_bCheckable) {
        return;
    }
    ui->pushButton->setChecked(bChecked);
    m_bCheckedState = bChecked;
    if (m_bChangeBackgroundOnChecked) {
        ui->widgetBG->setStyleSheet(bChecked
                                        ? backgroundOf(strCOLOR_PINK, cOpaque)
                                        : backgroundOf(SkinContext::getSkinData()->m_strFifthIconColor, cTransparent));
    }
    if (bChecked) {
        showGlyph(m_strHoverColor);
    } else {
        showNormal();
    }
}

void CIconButtonEx::setEnabled(bool bEnabled)
{
    m_bEnabled = bEnabled;
    showEnabled(bEnabled);
}

void CIconButtonEx::setDisabled(bool bDisabled)
{
    // Deliberately without m_bEnabled: what the owner told setEnabled last stays the answer of isEnabled.
    showEnabled(!bDisabled);
}

void CIconButtonEx::showEnabled(bool bEnabled)
{
    ui->pushButton->setEnabled(bEnabled);
    if (bEnabled) {
        showNormal();
    } else {
        showGlyph(SkinContext::getSkinData()->m_strDisabledIconColor);
    }
}

void CIconButtonEx::setChangeBackgroundOnChecked(bool bChange)
{
    m_bChangeBackgroundOnChecked = bChange;
}

void CIconButtonEx::setBackGroundDark(bool bDark)
{
    m_bBackGroundDark = bDark;
}

bool CIconButtonEx::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTipChange) {
        nameInner();
    }
    return QWidget::event(event);
}

void CIconButtonEx::enterEvent(QEvent *)
{
    if (m_bEnabled) {
        setBtnStyles(m_iStyleType);
    }
}

void CIconButtonEx::leaveEvent(QEvent *)
{
    if (m_bEnabled) {
        setBtnStyles(m_iStyleType);
    }
}

bool CIconButtonEx::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->pushButton || watched == ui->widgetBG) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        // The second of two quick presses comes as this event. If the inner button saw it, the button would stay down.
        case QEvent::MouseButtonDblClick:
            return true;
        case QEvent::MouseButtonRelease:
            if (takeRelease(*static_cast<QMouseEvent *>(event))) {
                return true;
            }
            break;
        case QEvent::KeyPress:
            if (takeKey(*static_cast<QKeyEvent *>(event))) {
                return true;
            }
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool CIconButtonEx::takeRelease(const QMouseEvent &event)
{
    if (!m_bEnabled || !ui->pushButton->isEnabled() || event.button() == Qt::RightButton) {
        return true;
    }
    const QRect face(QPoint(0, 0), QPoint(ui->widgetBG->width() - 1, ui->widgetBG->height() - 1));
    if (!face.contains(event.pos())) {
        return false;
    }
    emit clicked();
    return true;
}

bool CIconButtonEx::takeKey(const QKeyEvent &event)
{
    if ((event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) || !ui->pushButton->hasFocus()) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        ui->pushButton->click();
    }
    return true;
}
