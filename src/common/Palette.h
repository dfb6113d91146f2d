#pragma once

// The thirty colours and the style sheets that all widgets share.
// The constants are created before the first use, in the order of this header, and never change: a style sheet is built
// from colours that stand already. Any thread may read them; they live to the end of the process.

#include "common/text/LastingText.h"

// The colours, each "#rrggbb": the names and values stand in Palette.def.
#define PALETTE_COLOUR(name, value) inline const QString &name = lastingText(QStringLiteral(value));
#include "common/Palette.def"
#undef PALETTE_COLOUR

/// Builders of the shared style sheets; widgets read the constants below.
namespace StyleSheets {
/// Makes strVerticalScrollBarNormalStyle.
QString verticalScrollBarNormal();

/// Makes strVerticalScrollBarHoverStyle.
QString verticalScrollBarHover();

/// Makes strMenuStyle.
QString menu();

/// Makes strMenuItemStyle, "%2" still open.
QString menuItem();

/// Makes strMenuItemSelectStyle.
QString menuItemSelect();

/// Makes strMenuItemDisableStyle.
QString menuItemDisable();

/// Makes the style of a checked item's tick; `strKind` is "exclusive" or "non-exclusive", as style sheets know them.
QString menuChecked(const QString &strKind);
} // namespace StyleSheets

/// A thin vertical scroll bar that shows only under the mouse.
inline const QString &strVerticalScrollBarNormalStyle = lastingText(StyleSheets::verticalScrollBarNormal());

/// The same scroll bar, always visible.
inline const QString &strVerticalScrollBarHoverStyle = lastingText(StyleSheets::verticalScrollBarHover());

/// The frame of a menu.
inline const QString &strMenuStyle = lastingText(StyleSheets::menu());

/// A menu item. "%2" is left open: the caller fills in the left padding in pixels.
inline const QString &strMenuItemStyle = lastingText(StyleSheets::menuItem());

/// The menu item under the mouse.
inline const QString &strMenuItemSelectStyle = lastingText(StyleSheets::menuItemSelect());

/// A menu item that cannot be chosen.
inline const QString &strMenuItemDisableStyle = lastingText(StyleSheets::menuItemDisable());

/// The icon of a menu item.
inline const QString &strMenuIconStyle = lastingText(QStringLiteral("QMenu::icon{padding-left:20px;}"));

/// The tick of a menu item that is checked by itself.
inline const QString &strMenuNonExclusiveCheckedStyle =
    lastingText(StyleSheets::menuChecked(QStringLiteral("non-exclusive")));

/// The tick of a menu item that is checked alone in its group.
inline const QString &strMenuExclusiveCheckeedStyle =
    lastingText(StyleSheets::menuChecked(QStringLiteral("exclusive")));

/// The label in a window's title bar.
inline const QString &strTitleLabelStyle =
    lastingText(QStringLiteral("font-family:Microsoft YaHei; font-size:14px; color:#000000;"));
