#include "client/HostSkins.h"

#include "common/Palette.h"
#include "model/SkinContext.h"

#include <QCoreApplication>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *cFormSheet = "formSheet";

struct SkinRow
{
    const char *name;
    const char *shown;
    QString main;
    QString dark;
    QString soft;
    QString mint;
    QString tint;
    QString panel;
};

using SkinColour = QString SkinRow::*;
constexpr SkinColour cReplaced[] = {&SkinRow::main, &SkinRow::dark, &SkinRow::soft, &SkinRow::mint, &SkinRow::tint};

const QList<SkinRow> &rows()
{
    static const QList<SkinRow> all = {
        {"ThemeGreen", QT_TRANSLATE_NOOP("HostSkins", "Green"), strCOLOR_SKINTHEME_GREEN, strCOLOR_BLACKISH_GREEN,
         strCOLOR_LIGHT_GREEN, strCOLOR_MINT_GREEN, strCOLOR_PINK_GREEN, strCOLOR_MILK_WHITE},
        {"ThemeBlue", QT_TRANSLATE_NOOP("HostSkins", "Blue"), strCOLOR_SKINTHEME_BLUE, strCOLOR_INK_BLUE,
         strCOLOR_LIGHT_BLUE, strCOLOR_PALE_BLUE, strCOLOR_PINK_BLUE, strCOLOR_PINK_BLUE},
        {"ThemeRed", QT_TRANSLATE_NOOP("HostSkins", "Red"), strCOLOR_BIG_RED, QStringLiteral("#a63222"), strCOLOR_PINK,
         QStringLiteral("#fbd3cc"), QStringLiteral("#fdeeeb"), QStringLiteral("#fbf1ef")},
        {"ThemeGrey", QT_TRANSLATE_NOOP("HostSkins", "Grey"), strCOLOR_SKINTHEME_GREY, QStringLiteral("#2a2b2e"),
         strCOLOR_THIED_MID_GREY, strCOLOR_BORDER_SELECT_GREY, strCOLOR_LIGHT_GREY, strCOLOR_LIGHT_GREY},
    };
    return all;
}

const SkinRow &rowOf(const QString &strName)
{
    const auto found = std::find_if(rows().begin(), rows().end(),
                                    [&](const SkinRow &row) { return strName == QLatin1String(row.name); });
    return found == rows().end() ? rows().first() : *found;
}

const SkinRow &currentRow()
{
    return rowOf(HostSkins::currentName());
}

/// The text with the standard skin's colours replaced by the row's.
QString recoloured(QString strText, const SkinRow &row)
{
    for (const SkinColour colour : cReplaced) {
        strText.replace(rows().first().*colour, row.*colour);
    }
    return strText;
}

SysUIData makeSkin(const SysUIData &standard, const SkinRow &row)
{
    SysUIData skin = standard;
#define SKIN_TEXT(position, name, value) skin.name = recoloured(skin.name, row);
#include "model/SysUIData.def"
#undef SKIN_TEXT
    skin.m_strSkinName = QLatin1String(row.name);
    skin.m_strShownName = HostSkins::shownName(skin.m_strSkinName);
    skin.m_strPanelColor = row.panel;
    return skin;
}

} // namespace

QString HostSkins::standardName()
{
    return QLatin1String(rows().first().name);
}

QString HostSkins::currentName()
{
    return SkinContext::getSkinData()->m_strSkinName;
}

bool HostSkins::use(const QString &strName)
{
    const QList<SysUIData> *skins = SkinContext::getSysUIDataList();
    if (skins == nullptr) {
        return false;
    }
    const auto found = std::find_if(skins->begin(), skins->end(),
                                    [&](const SysUIData &skin) { return skin.m_strSkinName == strName; });
    if (found == skins->end()) {
        return false;
    }
    SkinContext::setSkinData(*found);
    return true;
}

QList<SysUIData> HostSkins::makeAll()
{
    const SysUIData standard = *SkinContext::getSkinData();
    QList<SysUIData> skins;
    std::transform(rows().begin(), rows().end(), std::back_inserter(skins),
                   [&](const SkinRow &row) { return makeSkin(standard, row); });
    return skins;
}

QStringList HostSkins::names()
{
    QStringList all;
    std::transform(rows().begin(), rows().end(), std::back_inserter(all),
                   [](const SkinRow &row) { return QString::fromLatin1(row.name); });
    return all;
}

QString HostSkins::shownName(const QString &strName)
{
    const SkinRow &row = rowOf(strName);
    return strName == QLatin1String(row.name) ? QCoreApplication::translate("HostSkins", row.shown) : QString();
}

QColor HostSkins::mainColour(const QString &strName)
{
    return QColor(rowOf(strName).main);
}

QColor HostSkins::darkColour()
{
    return QColor(currentRow().dark);
}

void HostSkins::dress(QWidget *window)
{
    QList<QWidget *> parts = window->findChildren<QWidget *>();
    parts.prepend(window);
    for (QWidget *part : qAsConst(parts)) {
        if (!part->property(cFormSheet).isValid()) {
            part->setProperty(cFormSheet, part->styleSheet());
        }
        const QString sheet = recoloured(part->property(cFormSheet).toString(), currentRow());
        if (sheet != part->styleSheet()) {
            part->setStyleSheet(sheet);
        }
    }
}
