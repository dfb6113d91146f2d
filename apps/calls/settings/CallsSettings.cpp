#include "calls/settings/CallsSettings.h"

#include "calls/settings/IniFile.h"
#include "calls/settings/SettingValue.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr const char *cFile = "/kelvarim-voip/calls.ini";
constexpr const char *cOnlyFile = "VOIPSDK_CALLS_INI";

std::string variable(const char *name)
{
    const char *value = std::getenv(name);
    return value != nullptr ? value : "";
}

/// "process/kind", as messages name a row.
std::string nameOf(const std::string &section, const std::string &key)
{
    return section + "/" + key;
}

/// The value that a row has: from the environment, the strongest file, or by default.
struct Source
{
    std::string value;
    std::string place; // for messages; empty: the default
};

const CallsSettings::Row *rowOf(const IniEntry &entry)
{
    const std::vector<CallsSettings::Row> &rows = CallsSettings::rows();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const CallsSettings::Row &row) {
        return entry.section == row.section && entry.key == row.key;
    });
    return found == rows.end() ? nullptr : &*found;
}

/// Adds the entries of one file to those of stronger ones, which stay.
std::string merge(const std::vector<IniEntry> &entries, std::vector<IniEntry> *stronger)
{
    const std::size_t before = stronger->size();
    for (const IniEntry &entry : entries) {
        if (rowOf(entry) == nullptr) {
            return entry.place + ": there is no setting " + nameOf(entry.section, entry.key);
        }
        const auto same = std::find_if(stronger->begin(), stronger->end(), [&](const IniEntry &other) {
            return other.section == entry.section && other.key == entry.key;
        });
        if (same == stronger->end()) {
            stronger->push_back(entry);
        } else if (std::size_t(same - stronger->begin()) >= before) {
            return entry.place + ": " + nameOf(entry.section, entry.key) + " was said at " + same->place;
        }
    }
    return {};
}

Source sourceOf(const CallsSettings::Row &row, const std::vector<IniEntry> &entries)
{
    // An empty variable is as good as none.
    if (*row.variable != '\0' && !variable(row.variable).empty()) {
        return {trimmed(variable(row.variable)), row.variable};
    }
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const IniEntry &entry) {
        return entry.section == row.section && entry.key == row.key;
    });
    return found == entries.end() ? Source{row.byDefault, {}} : Source{found->value, found->place};
}

std::string readAll(const std::vector<IniEntry> &entries, CallsSettings *settings)
{
    std::size_t index = 0;
    std::string wrong;
    const auto take = [&](auto reader, auto *value) {
        const CallsSettings::Row &row = CallsSettings::rows()[index++];
        const Source source = sourceOf(row, entries);
        const std::string fault = wrong.empty() ? reader(source.value, row, value) : std::string();
        if (!fault.empty()) {
            wrong = source.place + ": " + nameOf(row.section, row.key) + " " + fault + ", not \"" + source.value + "\"";
        }
    };
#define CALLS_SETTING(type, member, section, key, allowed, byDefault, variable, meaning)                               \
    take(read##type, &settings->member);
#include "calls/settings/CallsSettings.def"
#undef CALLS_SETTING
    return wrong;
}

} // namespace

const std::vector<CallsSettings::Row> &CallsSettings::rows()
{
    static const std::vector<Row> table{
#define CALLS_SETTING(type, member, section, key, allowed, byDefault, variable, meaning)                               \
    {Row::Type::type, section, key, allowed, byDefault, variable, meaning},
#include "calls/settings/CallsSettings.def"
#undef CALLS_SETTING
    };
    return table;
}

std::vector<std::string> CallsSettings::files(const std::string &clientFolder)
{
    const std::string only = variable(cOnlyFile);
    if (!only.empty()) {
        return {only};
    }
    std::vector<std::string> found;
    const std::string user = variable("XDG_CONFIG_HOME");
    const std::string home = variable("HOME");
    if (!user.empty()) {
        found.push_back(user + cFile);
    } else if (!home.empty()) {
        found.push_back(home + "/.config" + cFile);
    }
    const std::string system = variable("XDG_CONFIG_DIRS");
    for (const std::string &folder : parts(system.empty() ? "/etc/xdg" : system, ":")) {
        found.push_back(folder + cFile);
    }
    found.push_back(clientFolder + "/calls.ini");
    return found;
}

bool CallsSettings::read(const std::vector<std::string> &files, std::string *fault)
{
    fault->clear();
    std::vector<IniEntry> entries;
    for (const std::string &file : files) {
        std::vector<IniEntry> own;
        if (file == variable(cOnlyFile) && ::access(file.c_str(), F_OK) != 0) {
            *fault = file + ": " + cOnlyFile + " names it, and it is not there";
        } else if (readIni(file, &own, fault)) {
            *fault = merge(own, &entries);
        }
        if (!fault->empty()) {
            break;
        }
    }
    CallsSettings found;
    if (fault->empty()) {
        *fault = readAll(entries, &found);
    }
    if (fault->empty() && found.secret == "file" && found.secretFile.empty()) {
        *fault = "account/secret is file, and account/secret-file names none";
    }
    if (fault->empty()) {
        *this = found;
    }
    return fault->empty();
}
