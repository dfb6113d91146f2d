#include "HostCatalogue.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

// The language as the settings name it, and the suffix of its file. The first stands in for all others.
struct Language
{
    const char *setting;
    const char *suffix;
};

constexpr Language languages[] = {
    {"zh_CN", "zh_CN"},
    {"zh_TW", "zh_TW"},
    {"en", "en"},
    {"uk", "en"},
};

} // namespace

bool HostCatalogue::read(const QString &strFolder, const QString &strLanguage)
{
    const auto *found = std::find_if(std::begin(languages), std::end(languages), [&](const Language &language) {
        return strLanguage == QLatin1String(language.setting);
    });
    const Language &language = found == std::end(languages) ? languages[0] : *found;
    return load(QStringLiteral("kelvarim_") + QLatin1String(language.suffix), strFolder);
}

QString HostCatalogue::folder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Resources/Translations");
}
