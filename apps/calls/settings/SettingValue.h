#pragma once

// How a value of calls.ini is read into what its type keeps.

#include "calls/settings/SettingTypes.h"

#include <string>
#include <vector>

/// The parts of the text between any of these separators, without the empty ones.
std::vector<std::string> parts(const std::string &text, const char *separators);

// Each gives what is wrong with the text, in words, or nothing and the value.
std::string readChoice(const std::string &text, const SettingTypes::Row &row, SettingTypes::Choice *value);
std::string readChoices(const std::string &text, const SettingTypes::Row &row, SettingTypes::Choices *value);
std::string readFlag(const std::string &text, const SettingTypes::Row &row, SettingTypes::Flag *value);
std::string readHost(const std::string &text, const SettingTypes::Row &row, SettingTypes::Host *value);
std::string readNumber(const std::string &text, const SettingTypes::Row &row, SettingTypes::Number *value);
std::string readPath(const std::string &text, const SettingTypes::Row &row, SettingTypes::Path *value);
std::string readPorts(const std::string &text, const SettingTypes::Row &row, SettingTypes::Ports *value);
std::string readServers(const std::string &text, const SettingTypes::Row &row, SettingTypes::Servers *value);
std::string readText(const std::string &text, const SettingTypes::Row &row, SettingTypes::Text *value);
