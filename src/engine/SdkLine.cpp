#include "engine/SdkLine.h"

#include "engine/JsonText.h"
#include "wire/Notifications.h"

#include <exception>
#include <string>

namespace SdkLine {

Json::Value json(bool value)
{
    return value;
}

Json::Value json(qlonglong value)
{
    return Json::Int64(value);
}

Json::Value json(const QString &text)
{
    return text.toStdString();
}

Json::Value json(const QStringList &texts)
{
    return JsonText::arrayOrNull(texts);
}

QString lineOf(Wire::Command command, std::initializer_list<Json::Value> parameters)
{
    Json::Value root(Json::objectValue);
    root[Wire::cKeyMessageType] = Wire::nameOf(command);
    int number = 0;
    for (const Json::Value &parameter : parameters) {
        root[Wire::cKeyParameter + std::to_string(++number)] = parameter;
    }
    return JsonText::write(root);
}

Notification read(const QString &line)
{
    Json::Value document;
    if (!JsonText::parse(line, document)) {
        return {};
    }
    // Through a constant reference, asking for an absent key does not add it.
    const Json::Value &root = document;
    try {
        const int code = root[Wire::cKeyResultCode].asInt();
        if (code < 0) {
            return {};
        }
        const Json::Value &content = root[Wire::cKeyContent];
        return {code, content.isString() ? JsonText::text(content) : QString::fromStdString(content.asString())};
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace SdkLine
