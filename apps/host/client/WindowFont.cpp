#include "client/WindowFont.h"

#include <QFont>
#include <QFontDatabase>

QStringList WindowFont::families()
{
    return {QStringLiteral("微软雅黑"), QStringLiteral("Microsoft YaHei")};
}

QStringList WindowFont::candidates()
{
    return {QStringLiteral("Noto Sans CJK SC"),    QStringLiteral("Source Han Sans SC"),
            QStringLiteral("Source Han Sans CN"),  QStringLiteral("Noto Sans SC"),
            QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("WenQuanYi Zen Hei"),
            QStringLiteral("Droid Sans Fallback"), QStringLiteral("AR PL UMing CN")};
}

QString WindowFont::standIn(const QStringList &candidates, const QStringList &installed)
{
    for (const QString &candidate : candidates) {
        if (installed.contains(candidate, Qt::CaseInsensitive)) {
            return candidate;
        }
    }
    return QString();
}

void WindowFont::substituteMissing()
{
    const QStringList installed = QFontDatabase().families();
    const QString family = standIn(candidates(), installed);
    if (family.isEmpty()) {
        return;
    }
    for (const QString &missing : families()) {
        // Qt appends to the list of a family, in lower case: a second call would double what stands there.
        if (!installed.contains(missing, Qt::CaseInsensitive) &&
            !QFont::substitutes(missing).contains(family, Qt::CaseInsensitive)) {
            QFont::insertSubstitution(missing, family);
        }
    }
}
