#pragma once

// A scenario as read from its text: what the call process shall send, expect and do, statement by statement. The
// language is told in docs/scenario-language.md. Values only; reading has no effects.

#include "callprocess/ScenarioWords.h"
#include "endpoint/Wire.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

#include <array>
#include <optional>

enum class StatementKind
{
    Expect,
    Await,
    Ignore,
    ExpectNothing,
    Timeout,
    Send,
    Raw,
    Split,
    Join,
    Wait,
    Repeat,
    AwaitClient,
    AwaitGone,
    Drop,
    StopListen,
    RestartListen,
    Die,
    End,
};

/// What one parameter of an expected command must be.
struct ExpectedParameter
{
    QString key;           ///< "param1" to "param6"
    QString text;          ///< the value as written
    bool textOnly = false; ///< it was quoted, so only a text matches

    /// A text matches a text that is equal; unquoted, any other value matches its JSON too.
    bool matches(const QJsonValue &value) const;
};

/// One statement; only the fields of its kind are filled.
struct Statement
{
    StatementKind kind = StatementKind::End;
    int line = 0;                          ///< in the scenario's file, from 1
    QStringList commands;                  ///< Expect, Await: one name; Ignore: some
    QVector<ExpectedParameter> parameters; ///< Expect, Await
    QByteArray bytes;                      ///< Send, Raw, Split, Join: what is written
    int milliseconds = 0;                  ///< ExpectNothing, Timeout (0: no limit), Split, Wait
    int count = 0;                         ///< Split: bytes of the first write; Repeat: rounds
    QVector<Statement> body;               ///< Repeat

    /// Whether a command is the one that an Expect or Await means.
    bool matches(const Command &command) const;

    /// An Expect or Await as written, for messages.
    QString expectation() const;
};

/// One row of the language: the word, what it is, how many words may follow (-1: any number), and whether a block does.
struct StatementRow
{
    const char *word;
    StatementKind kind;
    int leastWords;
    int mostWords;
    bool hasBlock;
};

// clang-format off
inline constexpr std::array<StatementRow, 18> cStatements{{
    {"expect",         StatementKind::Expect,        1, -1, false},
    {"await",          StatementKind::Await,         1, -1, false},
    {"ignore",         StatementKind::Ignore,        1, -1, false},
    {"expect-nothing", StatementKind::ExpectNothing, 1,  1, false},
    {"timeout",        StatementKind::Timeout,       1,  1, false},
    {"send",           StatementKind::Send,          1,  2, false},
    {"raw",            StatementKind::Raw,           1, -1, false},
    {"split",          StatementKind::Split,         3,  4, false},
    {"join",           StatementKind::Join,          0,  0, true},
    {"wait",           StatementKind::Wait,          1,  1, false},
    {"repeat",         StatementKind::Repeat,        1,  1, true},
    {"await-client",   StatementKind::AwaitClient,   0,  0, false},
    {"await-gone",     StatementKind::AwaitGone,     0,  0, false},
    {"drop",           StatementKind::Drop,          0,  0, false},
    {"stop-listen",    StatementKind::StopListen,    0,  0, false},
    {"restart-listen", StatementKind::RestartListen, 0,  0, false},
    {"die",            StatementKind::Die,           0,  0, false},
    {"end",            StatementKind::End,           0,  0, false},
}};
// clang-format on

struct Scenario
{
    QString name; ///< the file's name, for messages
    QVector<Statement> statements;

    /// Reads a scenario's text. Nothing on a fault; `error` then begins with "name:line: ".
    static std::optional<Scenario> parse(const QString &name, const QByteArray &text, QString *error);

    /// Reads the file at `path`. Nothing when it cannot be read or has a fault; `error` then says which.
    static std::optional<Scenario> load(const QString &path, QString *error);
};
