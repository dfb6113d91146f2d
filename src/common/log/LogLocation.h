#pragma once

// The place of a log statement, "VoipWidget.cpp:835": the source's name without its folders, a colon, the line.
// The compiler finds where the name begins and joins the line to it, and the text is made when the statement is first
// reached. Any thread. The texts live to the end of the process, also when the module that made them is unloaded: the
// log thread may still hold some.

#include "common/text/LastingText.h"

#include <cstddef>
#include <string_view>

namespace LogLocation {

/// Where the bare file name begins in `path`.
constexpr std::size_t fileNameStart(std::string_view path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? 0 : slash + 1;
}

/// The text behind the first `Start` bytes of a UTF-8 literal.
template <std::size_t Start, std::size_t Size>
QString text(const char (&literal)[Size])
{
    return QString::fromUtf8(literal + Start, static_cast<int>(Size - 1 - Start));
}

} // namespace LogLocation

#define LOG_LOCATION_TEXT_OF(line) #line
#define LOG_LOCATION_TEXT(line) LOG_LOCATION_TEXT_OF(line)

/// The place where it stands, as a QString.
#define LOG_LOCATION                                                                                                   \
    []() -> const QString & {                                                                                          \
        static const QString &location = lastingText(                                                                  \
            LogLocation::text<LogLocation::fileNameStart(__FILE__)>(__FILE__ ":" LOG_LOCATION_TEXT(__LINE__)));        \
        return location;                                                                                               \
    }()
