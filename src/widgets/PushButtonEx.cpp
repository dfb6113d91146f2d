#include "widgets/PushButtonEx.h"

#include "ui_PushButtonEx.h"

#include "common/system/DpiScale.h"
#include "model/SkinContext.h"
#include "model/SysUIData.h"
#include "widgets/FocusRing.h"

namespace {

const auto cNormal = QStringLiteral("QPushButton#btnEx{color:%1;background-color:%2;border-style:none;}");
const auto cHover = QStringLiteral("QPushButton#btnEx::hover{color:%1;background-color:%2;border-style:none;}");
const auto cChecked = QStringLiteral("QPushButton#btnEx:checked{color:%1;background-color:%2;border-style:none;}");
const auto cDisabled = QStringLiteral("QPushButton#btnEx::disabled{color:%1;background-color:%2;border-style:none;}");
const auto cFrame =
    QStringLiteral("QWidget#widgetBG{border:1px solid %1;border-radius:2px;background-color:transparent;}");

} // namespace

PushButtonEx::PushButtonEx(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::PushButtonEx>())
{
    ui->setupUi(this);
    connect(ui->btnEx, SIGNAL(clicked()), this, SLOT(slot_btnClicked()));
    ui->btnEx->setEnabled(true);
    new FocusRing(ui->btnEx, this);
    QFont font(QStringLiteral("微软雅黑"));
    font.setPixelSize(ADAPT_DPI_INT(12));
    ui->btnEx->setFont(font);
    setStyles();
    setBtnType(DefaultButton);
}

PushButtonEx::~PushButtonEx() = default;

void PushButtonEx::setStyles()
{
    const SysUIData &skin = *SkinContext::getSkinData();
    m_setA.m_strNormal = cNormal.arg(skin.m_strButtonTextColor, skin.m_strButtonBackgroundColor);
    m_setA.m_strHover = cHover.arg(skin.m_strButtonHoverTextColor, skin.m_strButtonHoverBackgroundColor);
    m_setA.m_strChecked = cChecked.arg(skin.m_strButtonHoverTextColor, skin.m_strButtonHoverBackgroundColor);
    m_setA.m_strDisabled = cDisabled.arg(skin.m_strButtonDisabledTextColor, skin.m_strButtonDisabledBackgroundColor);
    m_setA.m_strFrame = cFrame.arg(skin.m_strButtonBorderColor);

    m_setB.m_strNormal = cNormal.arg(skin.m_strSecondButtonTextColor, skin.m_strSecondButtonBackgroundColor);
    m_setB.m_strHover = cHover.arg(skin.m_strSecondButtonTextColor, skin.m_strSecondButtonHoverBackgroundColor);
    m_setB.m_strChecked = cChecked.arg(skin.m_strSecondButtonTextColor, skin.m_strSecondButtonHoverBackgroundColor);
    m_setB.m_strDisabled =
        cDisabled.arg(skin.m_strSecondButtonTextColor, skin.m_strSecondButtonDisabledBackgroundColor);
    m_setB.m_strFrame = cFrame.arg(skin.m_strButtonBorderColor);
}

void PushButtonEx::setBtnType(int type)
{
    m_iBtnType = type;
    applySet(type == StrongButton ? m_setB : m_setA);
}

void PushButtonEx::applySet(const StyleSet &set)
{
    ui->widgetBG->setStyleSheet(set.m_strFrame);
    ui->btnEx->setStyleSheet(set.m_strNormal + set.m_strHover + set.m_strChecked + set.m_strDisabled);
}

void PushButtonEx::setText(QString text)
{
    ui->btnEx->setText(text);
    // A new text takes the keys away, but for the letter that it marks itself.
    if (!m_keys.isEmpty()) {
        ui->btnEx->setShortcut(m_keys);
    }
}

void PushButtonEx::setShortcut(const QKeySequence &keys)
{
    m_keys = keys;
    ui->btnEx->setShortcut(keys);
}

QString PushButtonEx::text() const
{
    return ui->btnEx->text();
}

void PushButtonEx::setEnabled(bool bEnabled)
{
    m_bEnabled = bEnabled;
    ui->btnEx->setEnabled(bEnabled);
    // Deliberately not the choice of setBtnType: here every type but the default one takes the strong set, as the
    // windows expect.
    const StyleSet &set = m_iBtnType == DefaultButton ? m_setA : m_setB;
    ui->btnEx->setStyleSheet(bEnabled ? set.m_strNormal + set.m_strHover : set.m_strDisabled);
}

void PushButtonEx::setFlat(bool bFlat)
{
    ui->btnEx->setFlat(bFlat);
}

void PushButtonEx::setAutoDefault(bool bAutoDefault)
{
    ui->btnEx->setAutoDefault(bAutoDefault);
}

void PushButtonEx::setDefault(bool bDefault)
{
    ui->btnEx->setDefault(bDefault);
}

void PushButtonEx::setChecked(bool bChecked)
{
    ui->btnEx->setChecked(bChecked);
}

bool PushButtonEx::isChecked() const
{
    return ui->btnEx->isChecked();
}

void PushButtonEx::setCheckable(bool bCheckable)
{
    ui->btnEx->setCheckable(bCheckable);
}

void PushButtonEx::setFontSize(int iSize)
{
    const int iPixels = ADAPT_DPI_INT(iSize);
    if (iPixels < 1) {
        return;
    }
    QFont font = ui->btnEx->font();
    font.setPixelSize(iPixels);
    ui->btnEx->setFont(font);
}

void PushButtonEx::update()
{
    restyle();
    ui->btnEx->update();
}

void PushButtonEx::enterEvent(QEvent *)
{
    restyle();
}

void PushButtonEx::leaveEvent(QEvent *)
{
    restyle();
}

void PushButtonEx::restyle()
{
    setStyles();
    setBtnType(m_iBtnType);
}

void PushButtonEx::slot_btnClicked()
{
    emit clicked();
}
