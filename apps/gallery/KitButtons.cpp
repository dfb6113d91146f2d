#include "KitButtons.h"

#include "Sheet.h"

#include "common/pictures/IconGlyphs.h"
#include "model/SkinContext.h"
#include "widgets/IconButtonEx.h"
#include "widgets/PushButtonEx.h"

#include <QCheckBox>
#include <QRadioButton>

namespace {

struct IconType
{
    const char *name;
    int type;
    ushort glyph;
    bool dark;
};

constexpr int cGlyphPixels = 16;
// A type that the button has no look of its own for.
constexpr int cOtherType = 5;

constexpr IconType cIconTypes[] = {
    {"type 0", 0, IconGlyph::MicOn, false},      {"type 1", 1, IconGlyph::SpeakerOn, false},
    {"type 2", 2, IconGlyph::CameraOn, false},   {"type 2, dark background", 2, IconGlyph::CameraOn, true},
    {"type 3", 3, IconGlyph::Close, false},      {"type 3, dark background", 3, IconGlyph::Close, true},
    {"type 4", 4, IconGlyph::FullScreen, false}, {"any other type", cOtherType, IconGlyph::Creator, false},
};

CIconButtonEx *iconButton(const IconType &type)
{
    auto *button = new CIconButtonEx;
    button->setBackGroundDark(type.dark);
    button->setIconFont(IconGlyph::text(type.glyph), cGlyphPixels, type.type);
    return button;
}

CIconButtonEx *checkedIconButton(const IconType &type, bool bBackground)
{
    CIconButtonEx *button = iconButton(type);
    button->setChangeBackgroundOnChecked(bBackground);
    button->setChecked(true);
    return button;
}

CIconButtonEx *disabledIconButton(const IconType &type)
{
    CIconButtonEx *button = iconButton(type);
    button->setEnabled(false);
    return button;
}

PushButtonEx *pushButton(int iType)
{
    auto *button = new PushButtonEx;
    button->setFixedSize(70, 30);
    button->setText(iType == 0 ? QStringLiteral("确定") : QStringLiteral("取消"));
    button->setBtnType(iType);
    return button;
}

PushButtonEx *checkedPushButton(int iType)
{
    PushButtonEx *button = pushButton(iType);
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

PushButtonEx *disabledPushButton(int iType)
{
    PushButtonEx *button = pushButton(iType);
    button->setEnabled(false);
    return button;
}

PushButtonEx *sizedPushButton(int iPixels)
{
    PushButtonEx *button = pushButton(1);
    button->setText(QStringLiteral("%1 px").arg(iPixels));
    button->setFontSize(iPixels);
    return button;
}

template <typename Choice>
Choice *choice(const QString &strStyle, bool bChecked, bool bEnabled)
{
    auto *button = new Choice(QStringLiteral("静音"));
    button->setStyleSheet(strStyle);
    button->setAutoExclusive(false);
    button->setChecked(bChecked);
    button->setEnabled(bEnabled);
    return button;
}

template <typename Choice>
QList<QWidget *> choices(const QString &strStyle)
{
    return {choice<Choice>(strStyle, false, true), Sheet::hovered(choice<Choice>(strStyle, false, true)),
            choice<Choice>(strStyle, true, true), Sheet::hovered(choice<Choice>(strStyle, true, true)),
            choice<Choice>(strStyle, false, false)};
}

} // namespace

void KitButtons::addIconButtons(Sheet &sheet)
{
    sheet.section(QStringLiteral("CIconButtonEx"),
                  {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("pressed"),
                   QStringLiteral("checked"), QStringLiteral("checked, background"), QStringLiteral("disabled")});
    for (const IconType &type : cIconTypes) {
        sheet.row(QString::fromLatin1(type.name),
                  {iconButton(type), Sheet::hovered(iconButton(type)), Sheet::pressed(iconButton(type)),
                   checkedIconButton(type, false), checkedIconButton(type, true), disabledIconButton(type)},
                  type.dark);
    }
}

void KitButtons::addPushButtons(Sheet &sheet)
{
    sheet.section(QStringLiteral("PushButtonEx"),
                  {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("pressed"),
                   QStringLiteral("checked"), QStringLiteral("disabled")});
    for (const int type : {1, 0}) {
        sheet.row(type == 0 ? QStringLiteral("type 0, strong") : QStringLiteral("type 1"),
                  {pushButton(type), Sheet::hovered(pushButton(type)), Sheet::pressed(pushButton(type)),
                   checkedPushButton(type), disabledPushButton(type)});
    }
    sheet.row(QStringLiteral("font sizes"), {sizedPushButton(10), sizedPushButton(12), sizedPushButton(14)});
}

void KitButtons::addChoices(Sheet &sheet)
{
    const SysUIData &skin = *SkinContext::getSkinData();
    sheet.section(QStringLiteral("Check boxes and radio buttons in the skin's styles"),
                  {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("checked"),
                   QStringLiteral("checked, hover"), QStringLiteral("disabled")});
    sheet.row(QStringLiteral("check box"),
              choices<QCheckBox>(skin.m_strCheckBoxStyle + skin.m_strCheckBoxHoverStyle +
                                 skin.m_strCheckBoxCheckedStyle + skin.m_strCheckBoxCheckedHoverStyle +
                                 skin.m_strCheckBoxDisabledStyle));
    sheet.row(QStringLiteral("radio button"),
              choices<QRadioButton>(skin.m_strRadioButtonStyle + skin.m_strRadioButtonHoverStyle +
                                    skin.m_strRadioButtonCheckedStyle + skin.m_strRadioButtonCheckedHoverStyle +
                                    skin.m_strRadioButtonDisabledStyle));
}
