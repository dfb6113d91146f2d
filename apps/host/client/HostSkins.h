#pragma once

#include "model/SysUIData.h"

#include <QColor>
#include <QList>
#include <QString>

class QWidget;

/// The skins that this client offers, and the colours that its own windows take from the current one. The plug-in's
/// windows read the current skin from the shared context by themselves. GUI thread; no state.
namespace HostSkins {

/// The name of the skin that is chosen from the start, "ThemeGreen".
QString standardName();

/// The name of the current skin, as the shared context has it.
QString currentName();

/// Makes the skin of that name of the shared context's list the current one. False where the list has none such, or
/// where there is no list.
bool use(const QString &strName);

/// All skins, the standard one first, as they stand in the shared context's list. They are made from the built-in one
/// with its greens replaced, so without a shared context or before the context has a skin.
QList<SysUIData> makeAll();

/// The names of all skins, in their order.
QStringList names();

/// What the skin is called, in the client's language; empty for an unknown name.
QString shownName(const QString &strName);

/// The main colour of the skin of that name; the standard one's for an unknown name.
QColor mainColour(const QString &strName);

/// The dark colour of the current skin, for lines and for areas with white words.
QColor darkColour();

/// Gives the window and the parts in it the colours of the current skin. Their forms' style sheets are written in those
/// of the standard skin; each is kept at the first call. To be called again when the skin has changed.
void dress(QWidget *window);

} // namespace HostSkins
