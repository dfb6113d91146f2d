#include "tour/TourSettings.h"

#include "client/HostSettings.h"
#include "client/HostSkins.h"
#include "client/SettingsFile.h"
#include "panes/MainWindow.h"
#include "tour/TourCast.h"
#include "tour/TourScript.h"

#include "model/SystemSetData.h"

using namespace TourCast;

namespace {

TourCheck silentInFile(const char *strValue)
{
    return {QStringLiteral("the user's settings file says closeVoice=%1").arg(QLatin1String(strValue)), [strValue] {
                return SettingsFile::read(HostSettings::userFile(), QLatin1String(SystemSetData::cCloseVoiceKey)) ==
                       QLatin1String(strValue);
            }};
}

TourCheck skinIs(const QString &strName)
{
    return {QStringLiteral("the shared context has the skin %1").arg(strName),
            [strName] { return HostSkins::currentName() == strName; }};
}

} // namespace

QList<TourStep> searchSteps(const TourStage &stage)
{
    const TourScript s(stage);
    return {
        {u("Search the contacts by the initials of a Chinese name"),
         s.typeInto("editSearch", u("ll")),
         {s.mainShows(answers, true), s.mainShows(busy, false)}},
        {u("Search for somebody who is not there"),
         s.typeInto("editSearch", u("zz")),
         {s.mainSays("lblNoMatch", u("No contact matches"))}},
        {u("Empty the search: everybody is there again"),
         s.pressMain("btnClearSearch"),
         {s.mainShows(answers, true), s.mainShows(crosses, true)}},
    };
}

QList<TourStep> settingsSteps(const TourStage &stage)
{
    const TourScript s(stage);
    const QString language = u("language_") + HostSettings::language();
    const QString skin = HostSettings::skin();
    const auto page = [window = &stage.window] { return &window->settingsPage(); };
    const auto pageShown = [page] { return page()->isVisible(); };
    return {
        {u("Open the settings"),
         s.pressMain("btnSettings"),
         {{u("the settings page is shown"), pageShown}},
         cUsualLimitMs,
         u("settings"),
         page},
        {u("Keep the ring silent"), s.pressSettings(u("boxSilent")), {silentInFile("1")}},
        {u("Let it ring again"), s.pressSettings(u("boxSilent")), {silentInFile("0")}},
        {u("Choose another colour"), s.pressSettings(u("skin_ThemeBlue")), {skinIs(u("ThemeBlue"))}},
        {u("Take the first colour again"), s.pressSettings(u("skin_") + skin), {skinIs(skin)}},
        {u("Choose Traditional Chinese: the windows change at once"),
         s.pressSettings(u("language_zh_TW")),
         {s.mainSays("lblContacts", u("聯絡人"))}},
        {u("Take the first language again, and close the settings"),
         [s, language] { return s.pressSettings(language)() && s.pressSettings(u("btnClose"))(); },
         {{u("the settings page is gone"), [pageShown] { return !pageShown(); }}}},
    };
}
