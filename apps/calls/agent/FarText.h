#pragma once

// What comes from the far end is text and no more: bounded, on one line. Any thread.

#include <QString>

#include <string>

inline constexpr int cRemarkLimit = 400;

/// UTF-8 from the far end, control and format characters as blanks, cut at `limit` characters.
QString farText(const std::string &bytes, int limit);

/// What SIP's status `cNothingInCommon` says to an operator.
QString nothingInCommon();

/// Why a call was refused with this status of SIP, in words for an operator: those of the library, where there are no
/// better ones.
QString whyRefused(int status, const std::string &phrase);
