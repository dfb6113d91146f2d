#include "engine/ConferenceDocument.h"

#include "engine/JsonText.h"
#include "wire/Notifications.h"

namespace {

Json::Value parsed(const QString &content)
{
    Json::Value root;
    JsonText::parse(content, root);
    return root;
}

} // namespace

ConferenceDocument ConferenceDocument::read(const QString &content)
{
    const Json::Value root = parsed(content);
    const Json::Value &body = JsonText::member(root, Wire::cKeyContent);
    ConferenceDocument document;
    document.from = JsonText::text(JsonText::member(body, Wire::cKeyFrom));
    document.conventioneer = JsonText::texts(JsonText::member(body, Wire::cKeyConventioneer));
    document.confId = JsonText::text(JsonText::member(body, Wire::cKeyConfId));
    document.createTime = JsonText::integer(JsonText::member(body, Wire::cKeyCreateTime));
    return document;
}

QString createdConferenceId(const QString &content)
{
    const Json::Value root = parsed(content);
    return JsonText::text(JsonText::member(JsonText::member(root, Wire::cKeyResult), Wire::cKeyConfId));
}

QStringList failedNumbers(const QString &content)
{
    const Json::Value root = parsed(content);
    return JsonText::texts(JsonText::member(JsonText::member(root, Wire::cKeyResult), Wire::cKeyFailedNums));
}
