#include "engine/SdkCommand.h"

#include "engine/JsonText.h"

#include <array>
#include <string>

namespace {

struct Row
{
    SdkCommand::Name name;
    const char *wireName;
};

constexpr std::array<Row, SdkCommand::CommandCount> kCommands{{
    {SdkCommand::RegeditUser, "RegeditUser"},
    {SdkCommand::UnReg, "UnReg"},
    {SdkCommand::CallUser, "CallUser"},
    {SdkCommand::RequestConference, "RequestConference"},
    {SdkCommand::Add2Conference, "Add2Conference"},
    {SdkCommand::AcceptCall, "AcceptCall"},
    {SdkCommand::AcceptConf, "AcceptConf"},
    {SdkCommand::RejectCall, "RejectCall"},
    {SdkCommand::RejectConf, "RejectConf"},
    {SdkCommand::HangUpCall, "HangUpCall"},
    {SdkCommand::HangupConf, "HangupConf"},
    {SdkCommand::ControlConf, "ControlConf"},
    {SdkCommand::SetMicEnable, "SetMicEnable"},
    {SdkCommand::SetSpeakerEnable, "SetSpeakerEnble"},
    {SdkCommand::SetCameraEnable, "SetCamreraEnable"},
    {SdkCommand::SetMicVolume, "SetMicVolume"},
    {SdkCommand::SetSpeakerVolume, "SetSpeakerVolume"},
}};

constexpr bool rowsStandInOrder()
{
    int expected = 0;
    for (const Row &row : kCommands) {
        if (row.name != expected++)
            return false;
    }
    return true;
}
static_assert(rowsStandInOrder(), "a command's name is found by its number");

} // namespace

namespace SdkCommand {

const char *wireName(Name name)
{
    return kCommands.at(name).wireName;
}

Json::Value json(const QString &text)
{
    return text.toStdString();
}

QString lineOf(Name name, std::initializer_list<Json::Value> params)
{
    Json::Value root(Json::objectValue);
    root["messagetype"] = wireName(name);
    int number = 0;
    for (const Json::Value &param : params)
        root["param" + std::to_string(++number)] = param;
    return JsonText::write(root);
}

} // namespace SdkCommand
