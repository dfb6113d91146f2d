#include "engine/ConferenceDocument.h"

#include "engine/JsonText.h"

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
    const Json::Value &body = JsonText::member(root, "content");
    ConferenceDocument document;
    document.from = JsonText::text(JsonText::member(body, "from"));
    document.conventioneer = JsonText::texts(JsonText::member(body, "conventioneer"));
    document.confId = JsonText::text(JsonText::member(body, "confId"));
    document.createTime = JsonText::integer(JsonText::member(body, "createTime"));
    return document;
}

QString createdConferenceId(const QString &content)
{
    const Json::Value root = parsed(content);
    return JsonText::text(JsonText::member(JsonText::member(root, "result"), "confId"));
}

QStringList failedNumbers(const QString &content)
{
    const Json::Value root = parsed(content);
    return JsonText::texts(JsonText::member(JsonText::member(root, "result"), "failedNums"));
}
