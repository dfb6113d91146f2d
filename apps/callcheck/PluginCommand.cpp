#include "callcheck/PluginCommand.h"

#include "callcheck/CommandUse.h"
#include "robots/RobotIds.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString openText(CommandUse::Text text, const PluginUser &user)
{
    switch (text) {
    case CommandUse::Text::OwnId:
        return user.id;
    case CommandUse::Text::NickName:
        return user.nickName;
    case CommandUse::Text::Registration:
        return user.registration;
    case CommandUse::Text::CalledId:
        return QString::fromLatin1(Robots::answers);
    case CommandUse::Text::Control:
        return QString::fromLatin1(Wire::cMute);
    case CommandUse::Text::Member:
        return QString::fromLatin1(Wire::cEverybody);
    case CommandUse::Text::Empty:
    case CommandUse::Text::Nothing:
        break;
    }
    return QString();
}

QJsonValue openValue(const Wire::CommandRow &command, int parameter, const PluginUser &user)
{
    switch (command.parameters[parameter - 1]) {
    case 'b':
        return false;
    case 'i':
        return 0;
    case 'a':
        return QJsonValue::Null;
    default:
        return openText(CommandUse::textOf(command.command, parameter), user);
    }
}

QJsonValue namedValue(const ExpectedParameter &parameter, char type)
{
    if (parameter.textOnly || type == 's') {
        return parameter.text;
    }
    const QJsonArray values = QJsonDocument::fromJson("[" + parameter.text.toUtf8() + "]").array();
    return values.size() == 1 ? values.first() : QJsonValue(parameter.text);
}

} // namespace

QByteArray pluginLine(const Statement &statement, const PluginUser &user)
{
    const Wire::CommandRow *row = findCommand(statement.commands.constFirst());
    if (row == nullptr) {
        return QByteArray(Wire::cQuitLine) + '\n';
    }
    QJsonArray values;
    for (int number = 1; number <= Wire::parameterCount(*row); ++number) {
        QJsonValue value = openValue(*row, number, user);
        for (const ExpectedParameter &parameter : statement.parameters) {
            if (parameter.key == parameterKey(number)) {
                value = namedValue(parameter, row->parameters[number - 1]);
            }
        }
        values.append(value);
    }
    return commandLine(QString::fromLatin1(row->name), values);
}

QByteArray commandLine(const QString &name, const QJsonArray &parameters)
{
    QJsonObject object{{QString::fromLatin1(Wire::cKeyMessageType), name}};
    for (int i = 0; i < parameters.size(); ++i) {
        object.insert(parameterKey(i + 1), parameters.at(i));
    }
    const QString text = QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    QByteArray line;
    for (const QChar character : text) {
        line += character.unicode() < 0x80
                    ? QByteArray(1, character.toLatin1())
                    : QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0')).toLatin1();
    }
    return line + '\n';
}
