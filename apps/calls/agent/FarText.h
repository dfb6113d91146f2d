#pragma once

// What comes from the far end is text and no more: bounded, on one line. Any thread.

#include <QString>

#include <string>

inline constexpr int cRemarkLimit = 400;

/// UTF-8 from the far end, control and format characters as blanks, cut at `limit` characters.
QString farText(const std::string &bytes, int limit);
