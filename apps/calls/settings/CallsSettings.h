#pragma once

// What calls.ini says about the call process: which kind there is, the exchange that it signs in at, account, media,
// sound. Values only, without Qt, since the front that starts the call process reads it too. Any thread; `read` looks
// into the environment.

#include "calls/settings/CallKinds.h"
#include "calls/settings/SettingTypes.h"

#include <string>
#include <vector>

struct CallsSettings : SettingTypes
{
#define CALLS_SETTING(type, member, section, key, allowed, byDefault, variable, meaning) type member{};
#include "calls/settings/CallsSettings.def"
#undef CALLS_SETTING

    /// All rows in their order.
    static const std::vector<Row> &rows();

    /// The files to look into for a client whose programs stand in `clientFolder`, the strongest first: the one that
    /// VOIPSDK_CALLS_INI names and no other, or calls.ini of the user's configuration folder, of the system's, and
    /// beside the client. They need not exist.
    static std::vector<std::string> files(const std::string &clientFolder);

    /// Takes each value from the environment, else from the first of the files that has it, else the default. Files
    /// that are not there are passed over, but the one that VOIPSDK_CALLS_INI names. False, with what is wrong and
    /// where in `fault`, for a file that cannot be read, a line, section or key that is none, a key said twice, a value
    /// that cannot be, a secret in a file that is not named; the settings then stay as they were.
    bool read(const std::vector<std::string> &files, std::string *fault);
};
