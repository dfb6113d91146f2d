#pragma once

// The lines of the wire as the call process sees them: the commands that come in and the notifications that go out,
// each one line of compact JSON ended by a line feed, besides the plain line "quit". The words themselves stand in
// wire/. Values only, no thread of their own.

#include "wire/Commands.h"
#include "wire/Notifications.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

/// The key of a parameter, counted from 1: "param<number>".
QString parameterKey(int number);

/// Whether the bytes are UTF-8 from begin to end.
bool isUtf8(const QByteArray &bytes);

/// A command as it came in.
struct Command
{
    QString name;       ///< "messagetype"
    QJsonObject object; ///< the whole line

    /// The value of "param<number>"; undefined when the key is absent.
    QJsonValue parameter(int number) const;

    /// "param<number>" as text, empty when it is no text.
    QString text(int number) const;

    /// "param<number>" as a list of texts, empty when it is null or no array; entries that are no texts are left out.
    QStringList texts(int number) const;
};

/// The row of a command, null for a name that is not in the catalogue.
const Wire::CommandRow *findCommand(const QString &name);

/// Reads one line (without its line feed). Nothing for a line that is no JSON object with a text "messagetype"; the
/// reason is then in `reason`.
std::optional<Command> parseCommand(const QByteArray &line, QString *reason);

/// What is wrong with the command's parameters, empty when they are as the catalogue has them: an unknown name, a
/// missing, wrongly typed or superfluous key.
QString shapeFault(const Command &command);

/// Reads one line as a command of the catalogue in its own shape. Nothing for any other; what is wrong with it is then
/// in `fault`.
std::optional<Command> readCommand(const QByteArray &line, QString *fault);

/// One notification as a whole line with its line feed.
QByteArray notificationLine(Wire::Code code, const QString &content);

/// The same for any number, also one that no notification has.
QByteArray notificationLine(int code, const QString &content);
