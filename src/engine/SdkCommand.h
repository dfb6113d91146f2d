#pragma once

// The commands that the plug-in writes to the call process: their literal names, and the line that carries one. The
// names are the contract with a closed program, deliberate misspellings included ("SetSpeakerEnble",
// "SetCamreraEnable", and "HangUpCall" beside "HangupConf"). No state; any thread.

#include <QString>

#include <json/value.h>

#include <initializer_list>
#include <utility>

namespace SdkCommand {

/// The commands; the numbers are those of the rows of the table of names.
enum Name
{
    RegeditUser,
    UnReg,
    CallUser,
    RequestConference,
    Add2Conference,
    AcceptCall,
    AcceptConf,
    RejectCall,
    RejectConf,
    HangUpCall,
    HangupConf,
    ControlConf,
    SetMicEnable,
    SetSpeakerEnable,
    SetCameraEnable,
    SetMicVolume,
    SetSpeakerVolume,
    CommandCount,
};

/// The command's name as it goes over the wire.
const char *wireName(Name name);

/// `text` as a JSON string.
Json::Value json(const QString &text);

/// The line of a command whose `param1`, `param2`, ... are `params` in their order, with its line feed.
QString lineOf(Name name, std::initializer_list<Json::Value> params);

/// The same for parameters of any types that make a JSON value.
template <class... Params>
QString line(Name name, Params &&...params)
{
    return lineOf(name, {Json::Value(std::forward<Params>(params))...});
}

} // namespace SdkCommand
