#pragma once

// The engine's one boundary to the JSON library: text in, values out, and nothing thrown. No state; any thread.
// References to members live as long as the value they belong to.

#include <QString>

#include <json/value.h>

namespace JsonText {

/// Parses `text` into `root`. False for text that is no JSON or nests too deep; `root` is then null, never half read.
bool parse(const QString &text, Json::Value &root);

/// One line of compact JSON with its line feed, keys sorted, non-ASCII escaped.
QString write(const Json::Value &root);

/// The member `key` of `object` when `object` is an object that has it, else null.
const Json::Value &member(const Json::Value &object, const char *key);

/// `value` as text; empty when it is not a text.
QString text(const Json::Value &value);

/// The texts of an array; anything in it that is not a text is left out, anything but an array gives an empty list.
QStringList texts(const Json::Value &value);

/// A number cut to a 64-bit integer, towards zero and at most to the limits; 0 when `value` is not a number.
qint64 integer(const Json::Value &value);

/// An array of texts, or null for an empty list, as the commands have it.
Json::Value arrayOrNull(const QStringList &list);

} // namespace JsonText
