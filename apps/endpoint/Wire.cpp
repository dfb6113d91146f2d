#include "endpoint/Wire.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextCodec>

#include <algorithm>

namespace {

bool hasType(const QJsonValue &value, char type)
{
    switch (type) {
    case 's':
        return value.isString();
    case 'b':
        return value.isBool();
    case 'i':
        return value.isDouble() && value.toDouble() == static_cast<double>(static_cast<qint64>(value.toDouble()));
    default:
        break;
    }
    if (value.isNull()) {
        return true;
    }
    const QJsonArray array = value.toArray();
    return value.isArray() && std::all_of(array.begin(), array.end(), [](const QJsonValue &v) { return v.isString(); });
}

} // namespace

QString parameterKey(int number)
{
    return QLatin1String(Wire::cKeyParameter) + QString::number(number);
}

bool isUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

QJsonValue Command::parameter(int number) const
{
    return object.value(parameterKey(number));
}

QString Command::text(int number) const
{
    return parameter(number).toString();
}

QStringList Command::texts(int number) const
{
    QStringList list;
    const QJsonArray array = parameter(number).toArray();
    for (const QJsonValue &value : array) {
        if (value.isString()) {
            list.append(value.toString());
        }
    }
    return list;
}

const Wire::CommandRow *findCommand(const QString &name)
{
    return Wire::findCommand(name.toStdString());
}

std::optional<Command> parseCommand(const QByteArray &line, QString *reason)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError) {
        *reason = QStringLiteral("not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset);
        return std::nullopt;
    }
    if (!document.isObject()) {
        *reason = QStringLiteral("not an object");
        return std::nullopt;
    }
    Command command;
    command.object = document.object();
    const QJsonValue name = command.object.value(QLatin1String(Wire::cKeyMessageType));
    if (!name.isString()) {
        *reason = QStringLiteral("no text \"messagetype\"");
        return std::nullopt;
    }
    command.name = name.toString();
    return command;
}

QString shapeFault(const Command &command)
{
    const Wire::CommandRow *row = findCommand(command.name);
    if (row == nullptr) {
        return QStringLiteral("unknown command \"%1\"").arg(command.name);
    }
    int number = 0;
    for (const char *type = row->parameters; *type != '\0'; ++type) {
        ++number;
        const QJsonValue value = command.parameter(number);
        if (value.isUndefined()) {
            return QStringLiteral("%1 lacks param%2").arg(command.name).arg(number);
        }
        if (!hasType(value, *type)) {
            return QStringLiteral("%1 has a param%2 of the wrong type").arg(command.name).arg(number);
        }
    }
    if (command.object.size() != number + 1) {
        return QStringLiteral("%1 has keys that it does not use").arg(command.name);
    }
    return {};
}

std::optional<Command> readCommand(const QByteArray &line, QString *fault)
{
    std::optional<Command> command = parseCommand(line, fault);
    if (command) {
        *fault = shapeFault(*command);
    }
    return fault->isEmpty() ? command : std::nullopt;
}

QByteArray notificationLine(Wire::Code code, const QString &content)
{
    return notificationLine(static_cast<int>(code), content);
}

QByteArray notificationLine(int code, const QString &content)
{
    const QJsonObject object{{QString::fromLatin1(Wire::cKeyResultCode), code},
                             {QString::fromLatin1(Wire::cKeyContent), content}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}
