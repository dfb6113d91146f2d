#include "callcheck/ScenarioWriter.h"

#include "callcheck/CommandUse.h"
#include "callcheck/LineMatch.h"
#include "endpoint/Wire.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 cRoundedToMs = 100;

bool isControl(char character)
{
    return static_cast<uchar>(character) < 0x20 || character == 0x7F;
}

/// Whether the word means itself as it stands.
bool isPlain(const QByteArray &text)
{
    const int equals = text.indexOf('=');
    const char behindEquals = equals >= 0 && equals + 1 < text.size() ? text.at(equals + 1) : ' ';
    const bool quoted = text.startsWith('"') || text.startsWith('\'') || behindEquals == '"' || behindEquals == '\'';
    return !text.isEmpty() && !quoted && !text.startsWith('#') && text != "{" && text != "}" && !text.contains(' ') &&
           std::none_of(text.begin(), text.end(), isControl) && isUtf8(text);
}

QByteArray doubleQuoted(const QByteArray &text)
{
    const bool readable = isUtf8(text);
    QByteArray word = "\"";
    for (const char character : text) {
        if (character == '\n') {
            word += "\\n";
        } else if (character == '"' || character == '\\') {
            word += '\\';
            word += character;
        } else if (isControl(character) || (!readable && static_cast<uchar>(character) >= 0x80)) {
            word += "\\x" + QByteArray(1, character).toHex().toUpper();
        } else {
            word += character;
        }
    }
    return word + '"';
}

QByteArray codeAndContent(const Notification &notification)
{
    const QByteArray code = QByteArray::number(notification.code);
    return notification.content.isEmpty() ? code : code + ' ' + wordFor(notification.content.toUtf8());
}

/// The notification that the bytes, a whole line, are, if a `send` says the same.
std::optional<Notification> sendable(const QByteArray &line)
{
    const std::optional<Notification> notification = Notification::read(line);
    const bool known = notification && Wire::findNotification(notification->code) != nullptr && isUtf8(line);
    return known ? notification : std::nullopt;
}

QByteArray writtenLine(const QByteArray &line)
{
    const std::optional<Notification> notification = sendable(line);
    return notification ? "send " + codeAndContent(*notification) : "raw " + doubleQuoted(line + '\n');
}

/// Whether a parameter is the user's own and of no use to anybody else.
bool isPrivate(Wire::Command command, int parameter)
{
    const CommandUse::Text text = CommandUse::textOf(command, parameter);
    return text == CommandUse::Text::NickName || text == CommandUse::Text::Registration;
}

QByteArray parameterWord(const QJsonValue &value)
{
    if (value.isString()) {
        return wordFor(value.toString().toUtf8());
    }
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    const QByteArray bare = json.mid(1, json.size() - 2);
    // An array with a blank in it cannot stand in a word that is not quoted, and a quoted one means a text.
    return isPlain(bare) ? bare : QByteArray();
}

QByteArray expectation(const Command &command, const Wire::CommandRow &row)
{
    QByteArray text = "expect " + command.name.toUtf8();
    for (int number = 1; number <= Wire::parameterCount(row); ++number) {
        const QJsonValue value = command.parameter(number);
        const QByteArray word = value.isUndefined() ? QByteArray() : parameterWord(value);
        if (!word.isEmpty() && !isPrivate(row.command, number)) {
            text += " param" + QByteArray::number(number) + '=' + word;
        }
    }
    return text;
}

} // namespace

QByteArray wordFor(const QByteArray &text)
{
    if (isPlain(text)) {
        return text;
    }
    const bool asItStands = !text.contains('\'') && std::none_of(text.begin(), text.end(), isControl) && isUtf8(text);
    return asItStands ? '\'' + text + '\'' : doubleQuoted(text);
}

ScenarioWriter::ScenarioWriter(std::function<void(const QByteArray &)> write) : m_write(std::move(write)) {}

void ScenarioWriter::begin()
{
    QByteArray ignored = "ignore";
    for (const CommandUse::Row &row : CommandUse::cRows) {
        if (row.moment == CommandUse::Moment::Whenever) {
            ignored += ' ' + QByteArray(Wire::nameOf(row.command));
        }
    }
    m_write("# Recorded by kelvarim-callcheck.\n" + ignored + "\ntimeout 0s\n");
}

void ScenarioWriter::said(qint64 now, const QByteArray &line)
{
    if (m_quit) {
        return;
    }
    flushPart();
    m_last = now;
    if (line == Wire::cQuitLine) {
        m_quit = true;
        add("expect quit");
        return;
    }
    QString reason;
    const std::optional<Command> command = parseCommand(line, &reason);
    const Wire::CommandRow *row = command ? findCommand(command->name) : nullptr;
    add(row != nullptr ? expectation(*command, *row) : "# not understood: " + doubleQuoted(line));
}

void ScenarioWriter::written(qint64 now, const QByteArray &bytes)
{
    if (m_quit) {
        return;
    }
    const std::optional<Notification> whole = m_part.isEmpty() ? std::nullopt : sendable((m_part + bytes).trimmed());
    // A split is told by the length of its first part, so the line must be written just as a scenario writes it.
    if (whole && notificationLine(whole->code, whole->content) == m_part + bytes) {
        pause(m_partTime);
        const QByteArray between = QByteArray::number(now - m_partTime) + "ms ";
        add("split " + QByteArray::number(m_part.size()) + ' ' + between + codeAndContent(*whole));
        m_part.clear();
        m_last = now;
        return;
    }
    flushPart();
    if (!bytes.endsWith('\n')) {
        m_part = bytes;
        m_partTime = now;
        return;
    }
    pause(now);
    QList<QByteArray> lines = bytes.split('\n');
    lines.removeLast();
    if (lines.size() == 1) {
        add(writtenLine(lines.constFirst()));
        return;
    }
    QByteArray block = "join {\n";
    for (const QByteArray &line : std::as_const(lines)) {
        block += "    " + writtenLine(line) + '\n';
    }
    add(block + '}');
}

void ScenarioWriter::happened(qint64 now, const char *statement)
{
    if (m_quit) {
        return;
    }
    flushPart();
    pause(now);
    add(statement);
}

void ScenarioWriter::pluginDid(qint64 now, const char *statement)
{
    if (m_quit) {
        return;
    }
    flushPart();
    m_last = now;
    add(statement);
}

void ScenarioWriter::end(const QString &remark)
{
    flushPart();
    if (!remark.isEmpty()) {
        add("# " + remark.toUtf8());
    }
}

void ScenarioWriter::pause(qint64 now)
{
    const qint64 rounded = (now - m_last + cRoundedToMs / 2) / cRoundedToMs * cRoundedToMs;
    if (rounded >= 1000) {
        add("wait " + QByteArray::number(static_cast<double>(rounded) / 1000.0) + 's');
    } else if (rounded > 0) {
        add("wait " + QByteArray::number(rounded) + "ms");
    }
    m_last = now;
}

/// A read that ended inside a line was never completed to a notification: it goes as it was.
void ScenarioWriter::flushPart()
{
    if (!m_part.isEmpty()) {
        pause(m_partTime);
        add("raw " + doubleQuoted(std::exchange(m_part, {})));
    }
}

void ScenarioWriter::add(const QByteArray &line)
{
    m_write(line + '\n');
}
