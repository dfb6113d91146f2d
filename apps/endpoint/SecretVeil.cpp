#include "endpoint/SecretVeil.h"

#include "endpoint/Wire.h"

#include <QJsonDocument>

QByteArray withoutSecret(const QByteArray &line)
{
    if (!line.contains(Wire::nameOf(Wire::Command::RegeditUser))) {
        return line;
    }
    QString reason;
    std::optional<Command> command = parseCommand(line, &reason);
    if (!command) {
        return QByteArrayLiteral("(half a sign-in)");
    }
    command->object.insert(parameterKey(3), QStringLiteral("..."));
    return QJsonDocument(command->object).toJson(QJsonDocument::Compact);
}
