#include "engine/JsonText.h"

#include "common/text/WholeNumber.h"

#include <QStringList>

#include <json/reader.h>
#include <json/writer.h>

#include <exception>

// The wire is defined by the output and the leniency of these two classes, so their deprecation does not matter here.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace JsonText {

bool parse(const QString &text, Json::Value &root)
{
    // Making a reader costs a third of what reading a line does.
    thread_local Json::Reader reader;
    const QByteArray bytes = text.toUtf8();
    try {
        if (reader.parse(bytes.cbegin(), bytes.cend(), root, true)) {
            return true;
        }
    } catch (const std::exception &) {
        // A text that nests deeper than the library goes ends here; it counts as one that does not parse.
    }
    root = Json::Value();
    return false;
}

QString write(const Json::Value &root)
{
    return QString::fromStdString(Json::FastWriter().write(root));
}

const Json::Value &member(const Json::Value &object, const char *key)
{
    static const Json::Value s_absent;
    return object.isObject() ? object[key] : s_absent;
}

QString text(const Json::Value &value)
{
    const char *begin = nullptr;
    const char *end = nullptr;
    return value.getString(&begin, &end) ? QString::fromUtf8(begin, static_cast<int>(end - begin)) : QString();
}

QStringList texts(const Json::Value &value)
{
    QStringList list;
    if (!value.isArray()) {
        return list;
    }
    list.reserve(static_cast<int>(value.size()));
    for (const Json::Value &item : value) {
        if (item.isString()) {
            list.append(text(item));
        }
    }
    return list;
}

qint64 integer(const Json::Value &value)
{
    return value.isNumeric() ? WholeNumber::cut(value.asDouble()) : 0;
}

Json::Value arrayOrNull(const QStringList &list)
{
    Json::Value array;
    for (const QString &item : list) {
        array.append(item.toStdString());
    }
    return array;
}

} // namespace JsonText
