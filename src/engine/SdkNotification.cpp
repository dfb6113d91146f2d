#include "engine/SdkNotification.h"

#include "engine/JsonText.h"

#include <exception>

namespace SdkNotification {

Line read(const QString &line)
{
    Json::Value root;
    if (!JsonText::parse(line, root))
        return {};
    try {
        const Json::Value &content = root["content"];
        return {root["resultCode"].asInt(),
                content.isString() ? JsonText::text(content) : QString::fromStdString(content.asString())};
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace SdkNotification
