#pragma once

// What call process and mixer say to each other about a conference: words with their fields, as JSON in the header
// X-Conference of an INVITE or in the body of an INFO. Rows of conference/Talk.def; docs/conferences.md tells them.
// Values and functions; any thread.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace Talk {

/// The header of an INVITE that carries a word.
inline constexpr const char *cHeader = "X-Conference";

/// What a conference's user begins with: the call process dials this and the conference's id.
inline constexpr const char *cUserPrefix = "conf-";

// What is longer is neither read nor written: with the rest of its message it would not get through the exchange.
inline constexpr int cLongestHeader = 16000; ///< in bytes
inline constexpr int cLongestBody = 60000;   ///< in bytes
inline constexpr int cMostUsers = 500;       ///< in one field
inline constexpr int cLongestText = 1000;    ///< in characters; a longer one is written up to there
inline constexpr int cLongestId = 64;        ///< of a conference: letters, digits and hyphens

/// How a word travels: up is to the mixer.
enum class Road
{
    InviteUp,
    InviteDown,
    InfoUp,
    InfoDown,
};

/// Who may say a word.
enum class Who
{
    Anybody, ///< who is signed in at the exchange
    Member,  ///< who belongs to the conference
    Creator, ///< who made it
    Mixer,
};

/// The words, in the order of the table.
enum class Word : int
{
#define TALK_FIELD(type, name, meaning)
#define TALK_WORD(word, name, road, who, fields, meaning) word,
#include "conference/Talk.def"
#undef TALK_WORD
#undef TALK_FIELD
};

/// One word.
struct WordRow
{
    Word word;
    const char *name; ///< as it travels
    Road road;
    Who who;
    const char *fields; ///< their names, parted by blanks
    const char *meaning;
};

/// Every word, at the place of its number.
inline constexpr std::array cWords{
#define TALK_FIELD(type, name, meaning)
#define TALK_WORD(word, name, road, who, fields, meaning)                                                              \
    WordRow{Word::word, name, Road::road, Who::who, fields, meaning},
#include "conference/Talk.def"
#undef TALK_WORD
#undef TALK_FIELD
};

/// What a field holds.
enum class Type
{
    Flag,  ///< a bool
    Id,    ///< a conference's id
    Text,  ///< any text
    Time,  ///< milliseconds since 1970, 0: unknown
    User,  ///< a user's id
    Users, ///< users' ids, each once
};

/// One field.
struct FieldRow
{
    const char *name;
    Type type;
    const char *meaning;
};

/// Every field, in the order of the table.
inline constexpr std::array cFields{
#define TALK_FIELD(type, name, meaning) FieldRow{#name, Type::type, meaning},
#define TALK_WORD(word, name, road, who, fields, meaning)
#include "conference/Talk.def"
#undef TALK_WORD
#undef TALK_FIELD
};

// The types of the fields, as C++ has them.
using Flag = bool;
using Id = QString;
using Text = QString;
using Time = qint64;
using User = QString;
using Users = QStringList;

/// A word that is said. What its row does not name of the fields is left as it is made.
struct Message
{
    Word saying = Word::Create;
#define TALK_FIELD(type, name, meaning) type name{};
#define TALK_WORD(word, name, road, who, fields, meaning)
#include "conference/Talk.def"
#undef TALK_WORD
#undef TALK_FIELD
};

/// What was heard.
struct Heard
{
    std::optional<Message> message; ///< none where it was no word of that road, or one that lacks a field
    QString remark;                 ///< what is wrong, or what was passed over; bounded, on one line; may be empty
};

/// The row of a word.
constexpr const WordRow &rowOf(Word word)
{
    return cWords.at(static_cast<std::size_t>(word));
}

/// The most bytes of a word on this road.
constexpr int longestOn(Road road)
{
    return road == Road::InviteUp || road == Road::InviteDown ? cLongestHeader : cLongestBody;
}

/// Reads any bytes as a word of this road. Fields that the word does not have are passed over, with a remark.
Heard read(const QByteArray &bytes, Road road);

/// The word as it travels: one line of ASCII. Empty where it would be longer than its road bears, or a list has more
/// than cMostUsers.
QByteArray written(const Message &message);

/// How it stands, a Members or a Resume, with as many in `members`, `connected` and `muted` as can be written: all,
/// else without those who are neither in it nor muted nor the creator, else without all who are not in it but the
/// creator, else with the first ones alone of those.
Message shortened(Message message);

} // namespace Talk
