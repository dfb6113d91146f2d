#include "calls/settings/IniFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t cMostBytes = 65536;

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isControl(char c)
{
    return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7f;
}

/// Reads the whole file. False with `fault` when it is there and cannot be read.
bool readText(const std::string &file, std::string *text, std::string *fault)
{
    // A pipe in the file's place does not keep the reader waiting.
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return true;
        }
        *fault = file + ": " + std::strerror(errno);
        return false;
    }
    struct stat status = {};
    ::fstat(descriptor, &status);
    if (!S_ISREG(status.st_mode)) {
        *fault = file + ": no file";
        ::close(descriptor);
        return false;
    }
    char buffer[4096];
    ssize_t count = 0;
    while (text->size() <= cMostBytes && (count = ::read(descriptor, buffer, sizeof(buffer))) > 0) {
        text->append(buffer, static_cast<std::size_t>(count));
    }
    if (count < 0) {
        *fault = file + ": " + std::strerror(errno);
    } else if (text->size() > cMostBytes) {
        *fault = file + ": longer than 64 KiB";
    }
    ::close(descriptor);
    return fault->empty();
}

/// Reads a line into `section` or as an entry of it. What is wrong with it, or nothing.
std::string readLine(const std::string &line, const std::string &place, std::string *section,
                     std::vector<IniEntry> *entries)
{
    if (line.empty() || line[0] == '#' || line[0] == ';') {
        return {};
    }
    if (std::any_of(line.begin(), line.end(), isControl)) {
        return "a control character";
    }
    if (line[0] == '[') {
        if (line.back() != ']') {
            return "no ] at the end of \"" + line + "\"";
        }
        *section = trimmed(line.substr(1, line.size() - 2));
        return {};
    }
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) {
        return "\"" + line + "\" is neither [section] nor key = value";
    }
    if (section->empty()) {
        return "\"" + line + "\" stands in no section";
    }
    entries->push_back({*section, trimmed(line.substr(0, sign)), trimmed(line.substr(sign + 1)), place});
    return {};
}

} // namespace

std::string trimmed(const std::string &text)
{
    const auto begin = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto end = std::find_if_not(text.rbegin(), text.rend(), isBlank).base();
    return begin < end ? std::string(begin, end) : std::string();
}

bool readIni(const std::string &file, std::vector<IniEntry> *entries, std::string *fault)
{
    std::string text;
    fault->clear();
    if (!readText(file, &text, fault)) {
        return false;
    }
    const std::string mark = "\xef\xbb\xbf";
    std::size_t at = text.compare(0, mark.size(), mark) == 0 ? mark.size() : 0;
    std::string section;
    for (int number = 1; at < text.size(); ++number) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        std::string place = file;
        place.append(":").append(std::to_string(number));
        const std::string wrong = readLine(trimmed(line), place, &section, entries);
        if (!wrong.empty()) {
            fault->append(place).append(": ").append(wrong);
            return false;
        }
        at = end + 1;
    }
    return true;
}
