#include "conference/Talk.h"

#include "conference/UserId.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Talk {

namespace {

constexpr const char *cKeyWord = "say";
constexpr double cGreatestTime = 9007199254740992; // up to there JSON's numbers are exact
constexpr int cShownLetters = 40;
constexpr int cDeepest = 2; // a list in an object

QString nameOf(const FieldRow &row)
{
    return QString::fromLatin1(row.name);
}

/// A name from outside, for a remark.
QString shown(const QString &name)
{
    QString text = name.left(cShownLetters);
    text.replace(QLatin1Char('"'), QLatin1Char('\''));
    return isUserId(text) ? QStringLiteral("\"%1\"").arg(text) : QStringLiteral("that name");
}

bool isConferenceId(const QString &text)
{
    const auto isLetter = [](QChar c) { return c == QLatin1Char('-') || (c.unicode() < 0x80 && c.isLetterOrNumber()); };
    return !text.isEmpty() && text.size() <= cLongestId && std::all_of(text.begin(), text.end(), isLetter);
}

bool isUsers(const QJsonValue &value)
{
    const QJsonArray array = value.toArray();
    return value.isArray() && array.size() <= cMostUsers &&
           std::all_of(array.begin(), array.end(), [](const QJsonValue &one) { return isUserId(one.toString()); });
}

bool isTime(const QJsonValue &value)
{
    const double number = value.toDouble(-1);
    return number >= 0 && number <= cGreatestTime && std::floor(number) == number;
}

bool fits(const QJsonValue &value, Type type)
{
    switch (type) {
    case Type::Flag:
        return value.isBool();
    case Type::Id:
        return isConferenceId(value.toString());
    case Type::Text:
        return value.isString() && value.toString().size() <= cLongestText && value.toString().isValidUtf16();
    case Type::Time:
        return isTime(value);
    case Type::User:
        return isUserId(value.toString());
    case Type::Users:
        return isUsers(value);
    }
    return false;
}

void take(const QJsonValue &value, bool *field)
{
    *field = value.toBool();
}

void take(const QJsonValue &value, qint64 *field)
{
    *field = static_cast<qint64>(value.toDouble());
}

void take(const QJsonValue &value, QString *field)
{
    *field = value.toString();
}

void take(const QJsonValue &value, QStringList *field)
{
    const QJsonArray array = value.toArray();
    for (const QJsonValue &one : array) {
        field->append(one.toString());
    }
    field->removeDuplicates();
}

QJsonValue valueOf(bool field)
{
    return field;
}

QJsonValue valueOf(qint64 field)
{
    return static_cast<double>(field);
}

QJsonValue valueOf(const QString &field)
{
    return field.left(cLongestText);
}

QJsonValue valueOf(const QStringList &field)
{
    return QJsonArray::fromStringList(field);
}

/// Whether a field may be written as it is.
template <class Field>
bool isShort(const Field & /*field*/)
{
    return true;
}

bool isShort(const QStringList &field)
{
    return field.size() <= cMostUsers;
}

/// Leaves those in the list who stay.
void keep(QStringList *list, const QSet<QString> &stay)
{
    const auto goes = [&](const QString &id) { return !stay.contains(id); };
    list->erase(std::remove_if(list->begin(), list->end(), goes), list->end());
}

/// Every field of the message with its row, those that the word does not have too.
template <class SomeMessage, class Visitor>
void forEachField(SomeMessage &message, const Visitor &visit)
{
    const auto *row = cFields.begin();
#define TALK_FIELD(type, name, meaning) visit(*row++, message.name);
#define TALK_WORD(word, name, road, who, fields, meaning)
#include "conference/Talk.def"
#undef TALK_WORD
#undef TALK_FIELD
}

QStringList fieldsOf(const WordRow &row)
{
    return QString::fromLatin1(row.fields).split(QLatin1Char(' '));
}

const WordRow *findWord(const QString &name, Road road)
{
    const auto *const row = std::find_if(cWords.begin(), cWords.end(), [&](const WordRow &one) {
        return one.road == road && name == QLatin1String(one.name);
    });
    return row == cWords.end() ? nullptr : row;
}

Heard readFields(const QJsonObject &object, const WordRow &row)
{
    Heard heard;
    QStringList others = object.keys();
    others.removeAll(QString::fromLatin1(cKeyWord));
    const QStringList wanted = fieldsOf(row);
    Message message;
    message.saying = row.word;
    forEachField(message, [&](const FieldRow &field, auto &value) {
        if (!wanted.contains(nameOf(field))) {
            return;
        }
        others.removeAll(nameOf(field));
        const QJsonValue found = object.value(nameOf(field));
        if (!fits(found, field.type)) {
            heard.remark = QStringLiteral("%1 without a proper %2").arg(QLatin1String(row.name), nameOf(field));
        } else {
            take(found, &value);
        }
    });
    if (!heard.remark.isEmpty()) {
        return heard;
    }
    heard.message = message;
    if (!others.isEmpty()) {
        heard.remark = QStringLiteral("%1 has no %2").arg(QLatin1String(row.name), shown(others.first()));
    }
    return heard;
}

/// Where the string that begins at `begin` ends.
int endOfString(const QByteArray &bytes, int begin)
{
    int end = begin + 1;
    while (end < bytes.size() && bytes.at(end) != '"') {
        end += bytes.at(end) == '\\' ? 2 : 1;
    }
    return std::min(end, bytes.size());
}

bool isKey(const QByteArray &bytes, int end)
{
    const auto *const next = std::find_if_not(bytes.begin() + std::min(end + 1, bytes.size()), bytes.end(),
                                              [](char byte) { return std::strchr(" \t\r\n", byte) != nullptr; });
    return next != bytes.end() && *next == ':';
}

/// Whether an object has lists at the deepest and each key once. Qt's parser never gives a list back whose key comes
/// again, and a mixer would grow with each such body.
bool isPlain(const QByteArray &bytes)
{
    QSet<QByteArray> keys;
    int depth = 0;
    for (int i = 0; i < bytes.size(); ++i) {
        const char byte = bytes.at(i);
        if (byte == '{' || byte == '[') {
            ++depth;
        } else if (byte == '}' || byte == ']') {
            --depth;
        } else if (byte == '"') {
            const int end = endOfString(bytes, i);
            const QByteArray text = bytes.mid(i, end - i);
            if (depth == 1 && isKey(bytes, end)) {
                // Letters that are said by their number could hide that it is the same key.
                if (text.contains('\\') || keys.contains(text)) {
                    return false;
                }
                keys.insert(text);
            }
            i = end;
        }
        if (depth > cDeepest) {
            return false;
        }
    }
    return true;
}

/// One line of ASCII, whatever the texts have: a header bears no more.
QByteArray ascii(const QString &json)
{
    QByteArray line;
    line.reserve(json.size());
    for (const QChar letter : json) {
        if (letter.unicode() < 0x7f) {
            line += letter.toLatin1();
        } else {
            line += "\\u" + QByteArray::number(letter.unicode(), 16).rightJustified(4, '0');
        }
    }
    return line;
}

} // namespace

Heard read(const QByteArray &bytes, Road road)
{
    if (bytes.size() > longestOn(road)) {
        return {std::nullopt, QStringLiteral("%1 bytes are too many").arg(bytes.size())};
    }
    if (!isPlain(bytes)) {
        return {std::nullopt, QStringLiteral("more than lists in an object, or a key twice")};
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (!document.isObject()) {
        return {std::nullopt, QStringLiteral("no JSON object, at byte %1").arg(error.offset)};
    }
    const QString name = document.object().value(QLatin1String(cKeyWord)).toString();
    const WordRow *row = findWord(name, road);
    if (row == nullptr) {
        return {std::nullopt, QStringLiteral("no word here: %1").arg(shown(name))};
    }
    return readFields(document.object(), *row);
}

QByteArray written(const Message &message)
{
    const WordRow &row = rowOf(message.saying);
    const QStringList wanted = fieldsOf(row);
    bool fits = true;
    QJsonObject object{{QString::fromLatin1(cKeyWord), QString::fromLatin1(row.name)}};
    forEachField(message, [&](const FieldRow &field, const auto &value) {
        if (wanted.contains(nameOf(field))) {
            object.insert(nameOf(field), valueOf(value));
            fits = fits && isShort(value);
        }
    });
    if (!fits) {
        return {};
    }
    const QByteArray line = ascii(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
    return line.size() > longestOn(row.road) ? QByteArray() : line;
}

Message shortened(Message message)
{
    if (!written(message).isEmpty()) {
        return message;
    }
    QSet<QString> stay(message.connected.begin(), message.connected.end());
    stay.insert(message.creator);
    keep(&message.members, stay + QSet<QString>(message.muted.begin(), message.muted.end()));
    if (!written(message).isEmpty()) {
        return message;
    }
    keep(&message.members, stay);
    keep(&message.muted, stay);
    while (written(message).isEmpty() && !message.members.isEmpty()) {
        const int half = message.members.size() / 2;
        for (QStringList *list : {&message.members, &message.connected, &message.muted}) {
            *list = list->mid(0, half);
        }
    }
    return message;
}

} // namespace Talk
