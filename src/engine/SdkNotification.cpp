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
        return {root["resultCode"].asInt(), QString::fromStdString(root["content"].asString())};
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace SdkNotification
