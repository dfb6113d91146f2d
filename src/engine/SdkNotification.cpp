#include "engine/SdkNotification.h"

#include "engine/JsonText.h"

#include <exception>

namespace SdkNotification {

Line read(const QString &line)
{
    Json::Value document;
    if (!JsonText::parse(line, document))
        return {};
    // Read through a constant, what is absent is not added.
    const Json::Value &root = document;
    try {
        const Json::Value &content = root["content"];
        return {root["resultCode"].asInt(),
                content.isString() ? JsonText::text(content) : QString::fromStdString(content.asString())};
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace SdkNotification
