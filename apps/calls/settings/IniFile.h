#pragma once

// The lines of an INI file, told apart and no more: sections, keys, values, and where each stands.

#include <string>
#include <vector>

struct IniEntry
{
    std::string section;
    std::string key;
    std::string value; ///< without blanks at its ends
    std::string place; ///< "file:line", for messages
};

/// Appends the entries of the file to `entries`. A line is empty, a comment that begins with # or ;, a [section] or
/// key = value. A file that is not there has no entries. False, with `fault`, for any other line, bytes that are no
/// text, a file of more than 64 KiB, or one that cannot be read.
bool readIni(const std::string &file, std::vector<IniEntry> *entries, std::string *fault);

/// The text without blanks at its ends.
std::string trimmed(const std::string &text);
