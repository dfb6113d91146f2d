#include "client/HostCatalogue.h"

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

constexpr Language cLanguages[] = {
#define LANGUAGE(suffix, ownName) {#suffix, #suffix},
#include "client/Languages.def"
#undef LANGUAGE
    {"uk", "en"}, // its older name
};

} // namespace

QString HostCatalogue::suffixOf(const QString &strLanguage)
{
    const auto *found = std::find_if(std::begin(cLanguages), std::end(cLanguages), [&](const Language &language) {
        return strLanguage == QLatin1String(language.setting);
    });
    return QLatin1String(found == std::end(cLanguages) ? cLanguages[0].suffix : found->suffix);
}

bool HostCatalogue::read(const QString &strFolder, const QString &strLanguage)
{
    return load(QStringLiteral("kelvarim_") + suffixOf(strLanguage), strFolder);
}

QString HostCatalogue::folder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Resources/Translations");
}
