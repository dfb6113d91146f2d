#pragma once

// One line of the wire as the engine has it: a command written, a notification read. The words themselves stand in
// wire/. Nothing that comes over the wire throws. No state; any thread.

#include "wire/Commands.h"

#include <QString>
#include <QStringList>

#include <json/value.h>

#include <initializer_list>
#include <string_view>

namespace SdkLine {

/// A parameter as JSON: a list without entries is null.
Json::Value json(bool value);
Json::Value json(qlonglong value);
Json::Value json(const QString &text);
Json::Value json(const QStringList &texts);

/// The letter that a parameter of this type has in the table of commands.
template <class Parameter>
inline constexpr char cLetterOf = '?';
template <>
inline constexpr char cLetterOf<bool> = 'b';
template <>
inline constexpr char cLetterOf<qlonglong> = 'i';
template <>
inline constexpr char cLetterOf<QString> = 's';
template <>
inline constexpr char cLetterOf<QStringList> = 'a';
template <>
inline constexpr char cLetterOf<QList<QString>> = 'a';

/// The line of a command whose `param1`, `param2`, ... are `parameters` in their order, with its line feed.
QString lineOf(Wire::Command command, std::initializer_list<Json::Value> parameters);

/// The same for the very parameters that the table has.
template <Wire::Command command, class... Parameters>
QString of(const Parameters &...parameters)
{
    constexpr char given[] = {cLetterOf<Parameters>..., '\0'};
    static_assert(std::string_view(given) == Wire::rowOf(command).parameters, "other parameters than the table has");
    if constexpr (sizeof...(Parameters) == 0) {
        static const QString line = lineOf(command, {});
        return line;
    } else {
        return lineOf(command, {json(parameters)...});
    }
}

/// One inbound line: the code and its payload.
struct Notification
{
    int code = -1;   ///< -1 for a line that has no effect
    QString content; ///< the payload; empty when absent
};

/// Reads one wire line. A line that does not parse, is not an object or has a wrong type where the code or the payload
/// is read gives the code -1, and so does any negative code. What the JSON library converts quietly stays: `null` and
/// `{}` are code 0, `true` is 1, 8.9 is 8.
Notification read(const QString &line);

} // namespace SdkLine
