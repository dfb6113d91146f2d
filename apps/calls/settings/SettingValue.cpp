#include "calls/settings/SettingValue.h"

#include "calls/settings/IniFile.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace {

constexpr int cGreatestPort = 65535;
constexpr int cSipsPort = 5061;
constexpr std::size_t cLongestText = 255;
constexpr std::size_t cMostServers = 16;

bool contains(const std::vector<std::string> &list, const std::string &word)
{
    return std::find(list.begin(), list.end(), word) != list.end();
}

/// "a, b or c".
std::string spoken(const std::vector<std::string> &words)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
    }
    return text;
}

/// A number of digits alone, between the bounds.
std::optional<int> numberOf(const std::string &text, int least, int greatest)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (text.empty() || text.size() > 9 || !std::all_of(text.begin(), text.end(), isDigit)) {
        return std::nullopt;
    }
    const int value = std::atoi(text.c_str());
    return value >= least && value <= greatest ? std::optional<int>(value) : std::nullopt;
}

bool isHost(const std::string &text)
{
    const char *letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.-_";
    return !text.empty() && text.size() <= cLongestText && text.find_first_not_of(letters) == std::string::npos &&
           text[0] != '-' && text[0] != '.';
}

/// host, host:port, [IPv6] or [IPv6]:port.
std::optional<CallsServer> serverOf(const std::string &text)
{
    CallsServer server;
    std::string rest;
    if (text[0] == '[') {
        const std::size_t end = text.find(']');
        server.host = text.substr(1, end == std::string::npos ? end : end - 1);
        if (end == std::string::npos || server.host.find(':') == std::string::npos ||
            server.host.find_first_not_of("0123456789abcdefABCDEF:.") != std::string::npos) {
            return std::nullopt;
        }
        rest = text.substr(end + 1);
    } else {
        const std::size_t colon = std::min(text.find(':'), text.size());
        server.host = text.substr(0, colon);
        rest = text.substr(colon);
        if (!isHost(server.host)) {
            return std::nullopt;
        }
    }
    const std::optional<int> port = rest.empty()     ? cSipsPort
                                    : rest[0] == ':' ? numberOf(rest.substr(1), 1, cGreatestPort)
                                                     : std::nullopt;
    server.port = port.value_or(0);
    return port ? std::optional<CallsServer>(server) : std::nullopt;
}

} // namespace

std::vector<std::string> parts(const std::string &text, const char *separators)
{
    std::vector<std::string> found;
    std::size_t at = 0;
    while ((at = text.find_first_not_of(separators, at)) != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(separators, at), text.size());
        found.push_back(text.substr(at, end - at));
        at = end;
    }
    return found;
}

std::string readChoice(const std::string &text, const SettingTypes::Row &row, SettingTypes::Choice *value)
{
    const std::vector<std::string> allowed = parts(row.allowed, "|");
    if (!contains(allowed, text)) {
        return "is " + spoken(allowed);
    }
    *value = text;
    return {};
}

std::string readChoices(const std::string &text, const SettingTypes::Row &row, SettingTypes::Choices *value)
{
    const std::vector<std::string> allowed = parts(row.allowed, "|");
    const std::vector<std::string> chosen = parts(text, ", \t");
    for (auto word = chosen.begin(); word != chosen.end(); ++word) {
        if (!contains(allowed, *word) || std::find(chosen.begin(), word, *word) != word) {
            return "has " + spoken(allowed) + ", each once";
        }
    }
    if (chosen.empty()) {
        return "has at least one of " + spoken(allowed);
    }
    *value = chosen;
    return {};
}

std::string readFlag(const std::string &text, const SettingTypes::Row & /*row*/, SettingTypes::Flag *value)
{
    const bool yes = contains({"yes", "true", "on", "1"}, text);
    if (!yes && !contains({"no", "false", "off", "0"}, text)) {
        return "is yes or no";
    }
    *value = yes;
    return {};
}

std::string readHost(const std::string &text, const SettingTypes::Row & /*row*/, SettingTypes::Host *value)
{
    const bool inBrackets = !text.empty() && text[0] == '[' && text.back() == ']' && serverOf(text);
    if (!text.empty() && !isHost(text) && !inBrackets) {
        return "is a host's name, or an address, IPv6 in brackets";
    }
    *value = text;
    return {};
}

std::string readNumber(const std::string &text, const SettingTypes::Row &row, SettingTypes::Number *value)
{
    const std::vector<std::string> bounds = parts(row.allowed, "|");
    const std::optional<int> number = numberOf(text, std::atoi(bounds[0].c_str()), std::atoi(bounds[1].c_str()));
    if (!number) {
        return "is a number from " + bounds[0] + " to " + bounds[1];
    }
    *value = *number;
    return {};
}

std::string readPath(const std::string &text, const SettingTypes::Row & /*row*/, SettingTypes::Path *value)
{
    const char *home = std::getenv("HOME");
    std::string path = text;
    if (path.compare(0, 2, "~/") == 0 && home != nullptr) {
        path = home + path.substr(1);
    }
    if (!path.empty() && path[0] != '/') {
        return "is a whole path, from / or ~/ on";
    }
    *value = path;
    return {};
}

std::string readPorts(const std::string &text, const SettingTypes::Row & /*row*/, SettingTypes::Ports *value)
{
    const std::size_t dash = std::min(text.find('-'), text.size());
    const std::optional<int> first = numberOf(trimmed(text.substr(0, dash)), 1024, cGreatestPort);
    const std::optional<int> last =
        numberOf(trimmed(text.substr(std::min(dash + 1, text.size()))), 1024, cGreatestPort);
    // A call takes two: sound and its reports.
    if (!first || !last || *last <= *first) {
        return "is two ports from 1024 on, the lower one first: 20000-29999";
    }
    *value = {*first, *last};
    return {};
}

std::string readServers(const std::string &text, const SettingTypes::Row & /*row*/, SettingTypes::Servers *value)
{
    std::vector<CallsServer> servers;
    for (const std::string &word : parts(text, ", \t")) {
        const std::optional<CallsServer> server = serverOf(word);
        if (!server) {
            return "has servers as host or host:port, and \"" + word + "\" is none";
        }
        servers.push_back(*server);
    }
    if (servers.size() > cMostServers) {
        return "has at most 16 servers";
    }
    *value = servers;
    return {};
}

std::string readText(const std::string &text, const SettingTypes::Row & /*row*/, SettingTypes::Text *value)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; };
    if (text.size() > cLongestText || std::any_of(text.begin(), text.end(), isControl)) {
        return "is at most 255 bytes of text";
    }
    *value = text;
    return {};
}
