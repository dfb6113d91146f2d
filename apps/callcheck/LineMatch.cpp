#include "callcheck/LineMatch.h"

#include "endpoint/Trace.h"
#include "endpoint/Wire.h"
#include "wire/Notifications.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

namespace {

QStringList sortedTexts(const QJsonArray &array)
{
    QStringList texts;
    for (const QJsonValue &value : array) {
        texts.append(value.isString() ? value.toString() : QString());
    }
    texts.sort();
    return texts;
}

} // namespace

std::optional<Notification> Notification::read(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QJsonValue code = object.value(QLatin1String(Wire::cKeyResultCode));
    const QJsonValue content = object.value(QLatin1String(Wire::cKeyContent));
    if (object.size() != 2 || !content.isString() || !code.isDouble() || code.toDouble() != code.toInt(-1)) {
        return std::nullopt;
    }
    return Notification{code.toInt(), content.toString()};
}

QString Notification::shown() const
{
    QString text = QString::number(code);
    const Wire::NotificationRow *row = Wire::findNotification(code);
    if (row != nullptr && *row->name != '\0') {
        text += QStringLiteral(" (%1)").arg(QLatin1String(row->name));
    }
    return content.isEmpty() ? text : text + QLatin1Char(' ') + Trace::printable(content.toUtf8());
}

bool LineMatch::matches(const QByteArray &recorded, const QByteArray &line)
{
    const std::optional<Notification> expected = Notification::read(recorded);
    const std::optional<Notification> got = Notification::read(line);
    if (!expected || !got) {
        return recorded == line;
    }
    return expected->code == got->code && contentMatches(expected->content, got->content);
}

QString LineMatch::shown(const QByteArray &line)
{
    const std::optional<Notification> notification = Notification::read(line);
    return notification ? notification->shown() : QStringLiteral("\"%1\"").arg(Trace::printable(line));
}

bool LineMatch::isLog(const QByteArray &line)
{
    const std::optional<Notification> notification = Notification::read(line);
    return notification && notification->code == static_cast<int>(Wire::Code::SdkLog);
}

bool LineMatch::contentMatches(const QString &recorded, const QString &content)
{
    const QJsonDocument expected = QJsonDocument::fromJson(recorded.toUtf8());
    const QJsonDocument got = QJsonDocument::fromJson(content.toUtf8());
    if (!expected.isObject() || !got.isObject()) {
        return recorded == content;
    }
    return valueMatches(QString(), expected.object(), got.object());
}

bool LineMatch::valueMatches(const QString &key, const QJsonValue &recorded, const QJsonValue &value)
{
    if (recorded.type() != value.type()) {
        return false;
    }
    if (key == QLatin1String(Wire::cKeyConfId) && recorded.isString()) {
        return idMatches(recorded.toString(), value.toString());
    }
    if (key == QLatin1String(Wire::cKeyCreateTime) && recorded.isDouble()) {
        return (recorded.toDouble() > 0) == (value.toDouble() > 0);
    }
    if (recorded.isArray()) {
        return sortedTexts(recorded.toArray()) == sortedTexts(value.toArray());
    }
    if (!recorded.isObject()) {
        return recorded == value;
    }
    const QJsonObject expected = recorded.toObject();
    const QJsonObject got = value.toObject();
    const QStringList keys = expected.keys();
    return keys == got.keys() && std::all_of(keys.begin(), keys.end(), [&](const QString &name) {
               return valueMatches(name, expected.value(name), got.value(name));
           });
}

bool LineMatch::idMatches(const QString &recorded, const QString &id)
{
    if (!m_ids.contains(recorded) && m_ids.key(id).isNull()) {
        m_ids.insert(recorded, id);
    }
    return m_ids.value(recorded) == id && recorded.isEmpty() == id.isEmpty();
}
