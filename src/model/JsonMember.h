#pragma once

// How the model's records read the members of a JSON object. For the sources of the model only; any thread.

#include <QString>

#include <json/value.h>

namespace JsonMember {

/// The member `key` of `object` as text; empty when it is missing. A member that is no text and cannot become one, or
/// an `object` that is none, raises the JSON library's error.
inline QString text(const Json::Value &object, const char *key)
{
    return QString::fromStdString(object[key].asString());
}

/// Hands each item of the array `list` on, in its order. Null, a text or a number has none; an object with members
/// raises the JSON library's error, which is why the items are asked for by their places.
template <typename Take>
void forEachItem(const Json::Value &list, const Take &take)
{
    const Json::ArrayIndex count = list.size();
    for (Json::ArrayIndex i = 0; i != count; ++i) {
        take(list[i]);
    }
}

} // namespace JsonMember
