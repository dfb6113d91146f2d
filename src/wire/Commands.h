#pragma once

// The plug-in's half of the wire's vocabulary: the commands with their parameters, the words of control, the line that
// is no JSON. Rows of wire/Commands.def; docs/wire-protocol.md tells them in words. Constants alone, without Qt; any
// thread.

#include <array>
#include <cstddef>
#include <string_view>

namespace Wire {

/// The local server's name.
inline constexpr const char *cServerName = "VoipSDK";

/// The call process's program, below the client's folder.
inline constexpr const char *cProgram = "/VoipSDK/Contents/MacOS/VoipSDK";

/// The key of a command's name. Its parameters have the next one with their number, from 1 on.
inline constexpr const char *cKeyMessageType = "messagetype";
inline constexpr const char *cKeyParameter = "param";
/// The key of the value that RegeditUser registers a user with, which nobody else is to see.
inline constexpr const char *cKeyRegistrationValue = "param3";

/// The line that ends the call process, without its line feed: the only one that is no JSON.
inline constexpr const char *cQuitLine = "quit";

/// The commands, in the order of the table. An enumerator is spelled as the wire spells it.
enum class Command : int
{
#define WIRE_COMMAND(name, parameters) name,
#include "wire/Commands.def"
#undef WIRE_COMMAND
};

/// One command.
struct CommandRow
{
    Command command;
    const char *name;       ///< what stands at cKeyMessageType
    const char *parameters; ///< one letter for each of param1, param2, ...: s, b, i or a
};

/// Every command, at the place of its number.
inline constexpr std::array cCommands{
#define WIRE_COMMAND(name, parameters) CommandRow{Command::name, #name, parameters},
#include "wire/Commands.def"
#undef WIRE_COMMAND
};

/// The row of a command.
constexpr const CommandRow &rowOf(Command command)
{
    return cCommands.at(static_cast<std::size_t>(command));
}

/// The command's name as it goes over the wire.
constexpr const char *nameOf(Command command)
{
    return rowOf(command).name;
}

/// How many of param1, param2, ... the command has.
constexpr int parameterCount(const CommandRow &row)
{
    return static_cast<int>(std::string_view(row.parameters).size());
}

/// The row of a name, null for one that no command has.
constexpr const CommandRow *findCommand(std::string_view name)
{
    for (const CommandRow &row : cCommands) {
        if (name == row.name) {
            return &row;
        }
    }
    return nullptr;
}

/// Whether `rows`, which have a member `command`, tell of every command, in the order of the table.
template <class Rows>
constexpr bool tellOfEveryCommand(const Rows &rows)
{
    std::size_t place = 0;
    for (const auto &row : rows) {
        if (place == cCommands.size() || row.command != cCommands.at(place++).command) {
            return false;
        }
    }
    return place == cCommands.size();
}

/// Whether each letter of the table is one of those that it may have, and no command has more than six.
constexpr bool areParametersKnown()
{
    for (const CommandRow &row : cCommands) {
        if (std::string_view(row.parameters).find_first_not_of("sbia") != std::string_view::npos ||
            parameterCount(row) > 6) {
            return false;
        }
    }
    return true;
}
static_assert(areParametersKnown(), "a command's parameters are letters of s, b, i and a, six at most");

/// What ControlConf's param1 says.
inline constexpr const char *cKick = "kick";
inline constexpr const char *cMute = "mute";
inline constexpr const char *cUnmute = "unmute";
/// What ControlConf's param2 says instead of a user id.
inline constexpr const char *cEverybody = "non_moderator";

} // namespace Wire
