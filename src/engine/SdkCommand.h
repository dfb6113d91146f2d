#pragma once

#include <QString>

#include <json/value.h>

#include <utility>

/// The commands that the plug-in writes to the call process: their literal names, and the line that carries one. The
/// names are the contract with a closed program, misspellings included ("SetSpeakerEnble", "SetCamreraEnable", and
/// "HangUpCall" beside "HangupConf").
namespace SdkCommand {

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

/// The line of a command whose `param1`, `param2`, ... are `params`, with its line feed.
template <class... Params>
QString line(Name name, Params &&...params);

/// `text` as a JSON string.
Json::Value json(const QString &text);

QString lineOf(Name name, std::initializer_list<Json::Value> params);

template <class... Params>
QString line(Name name, Params &&...params)
{
    return lineOf(name, {Json::Value(std::forward<Params>(params))...});
}

} // namespace SdkCommand
