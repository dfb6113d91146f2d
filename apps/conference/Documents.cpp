#include "conference/Documents.h"

#include "wire/Notifications.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString compact(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

QString conferenceDocument(const QString &confId, const QString &from, const QStringList &connected, qint64 createTime)
{
    QJsonObject body{{QString::fromLatin1(Wire::cKeyFrom), from},
                     {QString::fromLatin1(Wire::cKeyConventioneer), QJsonArray::fromStringList(connected)},
                     {QString::fromLatin1(Wire::cKeyConfId), confId}};
    if (createTime > 0) {
        body.insert(QLatin1String(Wire::cKeyCreateTime), static_cast<double>(createTime));
    }
    return compact({{QString::fromLatin1(Wire::cKeyContent), body}});
}

QString creationDocument(const QString &confId)
{
    return compact(
        {{QString::fromLatin1(Wire::cKeyResult), QJsonObject{{QString::fromLatin1(Wire::cKeyConfId), confId}}}});
}

QString additionDocument(const QStringList &failed)
{
    const QJsonObject result{{QString::fromLatin1(Wire::cKeyFailedNums), QJsonArray::fromStringList(failed)}};
    return compact({{QStringLiteral("status"), 0}, {QString::fromLatin1(Wire::cKeyResult), result}});
}
