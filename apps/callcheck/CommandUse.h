#pragma once

// What the checker knows of each command beyond the table of the wire: what its texts say and when it comes. A command
// without its row, and a text parameter without its meaning, does not compile. Constants alone, without Qt; any thread.

#include "wire/Commands.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace CommandUse {

/// What a text parameter says.
enum class Text
{
    Nothing, ///< there is no such parameter
    Empty,   ///< nothing that has to be said
    OwnId,
    NickName,     ///< the user's own, of no use to anybody else
    Registration, ///< the same
    CalledId,
    Control, ///< a word of control
    Member,  ///< a user id or everybody
};

/// When a command comes.
enum class Moment
{
    Step,    ///< at a step of a sign-on or of a call
    Whenever ///< when the user moves a control of the call window, which may be at any time
};

struct Row
{
    Wire::Command command;
    Moment moment;
    std::array<Text, 3> texts; ///< of the text parameters alone, in their order
};

// clang-format off
inline constexpr std::array cRows{
    Row{Wire::Command::RegeditUser,       Moment::Step,     {Text::OwnId, Text::NickName, Text::Registration}},
    Row{Wire::Command::UnReg,             Moment::Step,     {Text::OwnId}},
    Row{Wire::Command::CallUser,          Moment::Step,     {Text::CalledId}},
    Row{Wire::Command::RequestConference, Moment::Step,     {Text::OwnId, Text::Empty}},
    Row{Wire::Command::Add2Conference,    Moment::Step,     {Text::OwnId, Text::OwnId, Text::Empty}},
    Row{Wire::Command::AcceptCall,        Moment::Step,     {}},
    Row{Wire::Command::AcceptConf,        Moment::Step,     {}},
    Row{Wire::Command::RejectCall,        Moment::Step,     {}},
    Row{Wire::Command::RejectConf,        Moment::Step,     {}},
    Row{Wire::Command::HangUpCall,        Moment::Step,     {}},
    Row{Wire::Command::HangupConf,        Moment::Step,     {}},
    Row{Wire::Command::ControlConf,       Moment::Step,     {Text::Control, Text::Member}},
    Row{Wire::Command::SetMicEnable,      Moment::Whenever, {}},
    Row{Wire::Command::SetSpeakerEnble,   Moment::Whenever, {}},
    Row{Wire::Command::SetCamreraEnable,  Moment::Whenever, {}},
    Row{Wire::Command::SetMicVolume,      Moment::Whenever, {}},
    Row{Wire::Command::SetSpeakerVolume,  Moment::Whenever, {}},
};
// clang-format on
static_assert(Wire::tellOfEveryCommand(cRows), "a command of which the checker knows nothing");

/// How many of these parameters are texts.
constexpr std::size_t textsAmong(std::string_view parameters)
{
    std::size_t texts = 0;
    for (const char type : parameters) {
        texts += type == 's' ? 1 : 0;
    }
    return texts;
}

/// What the parameter says, counted from 1; Nothing for one that is no text.
constexpr Text textOf(Wire::Command command, int parameter)
{
    const std::string_view types = Wire::rowOf(command).parameters;
    const auto place = static_cast<std::size_t>(parameter - 1);
    return types.at(place) == 's'
               ? cRows.at(static_cast<std::size_t>(command)).texts.at(textsAmong(types.substr(0, place)))
               : Text::Nothing;
}

/// Whether each text parameter of the wire has its meaning, and nothing else has one.
constexpr bool tellsOfEveryText()
{
    for (const Row &row : cRows) {
        std::size_t known = 0;
        while (known < row.texts.size() && row.texts.at(known) != Text::Nothing) {
            ++known;
        }
        if (known != textsAmong(Wire::rowOf(row.command).parameters)) {
            return false;
        }
    }
    return true;
}
static_assert(tellsOfEveryText(), "a text parameter of which nobody says what it means");

} // namespace CommandUse
