#include "client/Presence.h"

#include "common/Palette.h"

#include <QCoreApplication>

#include <cstddef>

namespace {

struct PresenceRow
{
    const char *word;
    const QString &colour;
};

/// In the order of the enumeration, without the unknown.
const PresenceRow &rowOf(Presence presence)
{
    static const PresenceRow rows[] = {
        {QT_TRANSLATE_NOOP("Presence", "offline"), strCOLOT_DISABLE_GREY},
        {QT_TRANSLATE_NOOP("Presence", "online"), strCOLOR_SKINTHEME_GREEN},
        {QT_TRANSLATE_NOOP("Presence", "away"), strCOLOR_YELLO_ORGANGE},
        {QT_TRANSLATE_NOOP("Presence", "busy"), strCOLOR_TRUE_RED},
    };
    return rows[std::size_t(presence)];
}

} // namespace

QString presenceWord(Presence presence)
{
    if (presence == Presence::Unknown) {
        return QString();
    }
    return QCoreApplication::translate("Presence", rowOf(presence).word);
}

QString withPresence(const QString &strName, Presence presence)
{
    return presence == Presence::Unknown ? strName : QStringLiteral("%1, %2").arg(strName, presenceWord(presence));
}

QColor presenceColour(Presence presence)
{
    return presence == Presence::Unknown ? QColor() : QColor(rowOf(presence).colour);
}

int presenceState(Presence presence)
{
    return int(presence == Presence::Unknown ? Presence::Online : presence);
}
