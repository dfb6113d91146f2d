#include "callprocess/Scenario.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <limits>

namespace {

constexpr int cMostNestedBlocks = 20;

class ScenarioReader
{
public:
    ScenarioReader(const QByteArray &text, QString *error) : m_lines(text.split('\n')), m_error(error) {}

    QVector<Statement> read(bool *good)
    {
        QVector<Statement> statements = readBlock(0, nullptr);
        *good = !m_failed;
        return statements;
    }

    int line() const { return m_line; }

private:
    using Words = QVector<ScenarioWord>;

    QVector<Statement> readBlock(int depth, const StatementRow *owner)
    {
        QVector<Statement> statements;
        const int begun = m_line;
        while (!m_failed && m_line < m_lines.size()) {
            const Words words = scenarioWords(m_lines.at(m_line++), &m_fault);
            if (!m_fault.isEmpty()) {
                fail(m_fault);
            } else if (words.size() == 1 && words.constFirst().isBare("}") && owner != nullptr) {
                return statements;
            } else if (!words.isEmpty()) {
                statements.append(readStatement(words, depth, owner));
            }
        }
        if (!m_failed && owner != nullptr) {
            m_line = begun;
            fail(QStringLiteral("the block of \"%1\" is not closed").arg(QLatin1String(owner->word)));
        }
        return statements;
    }

    Statement readStatement(Words words, int depth, const StatementRow *owner)
    {
        Statement statement;
        const auto *row = std::find_if(cStatements.begin(), cStatements.end(), [&](const StatementRow &entry) {
            return words.constFirst().isBare(entry.word);
        });
        if (row == cStatements.end()) {
            fail(QStringLiteral("unknown statement \"%1\"").arg(QString::fromUtf8(words.constFirst().text)));
            return statement;
        }
        statement.kind = row->kind;
        statement.line = m_line;
        words.removeFirst();
        const bool opensBlock = !words.isEmpty() && words.constLast().isBare("{");
        if (opensBlock) {
            words.removeLast();
        }
        if (!checkForm(*row, words.size(), opensBlock, depth, owner)) {
            return statement;
        }
        readArguments(statement, words);
        if (row->hasBlock && !m_failed) {
            readBody(statement, depth, row);
        }
        return statement;
    }

    bool checkForm(const StatementRow &row, int words, bool opensBlock, int depth, const StatementRow *owner)
    {
        const QString name = QString::fromLatin1(row.word);
        if (opensBlock != row.hasBlock) {
            fail(row.hasBlock ? QStringLiteral("\"%1\" needs a block: \"{\" at the end of its line").arg(name)
                              : QStringLiteral("\"%1\" has no block").arg(name));
        } else if (words < row.leastWords) {
            fail(QStringLiteral("\"%1\" needs more").arg(name));
        } else if (row.mostWords >= 0 && words > row.mostWords) {
            fail(QStringLiteral("\"%1\" takes less").arg(name));
        } else if (depth >= cMostNestedBlocks) {
            fail(QStringLiteral("blocks are nested too deep"));
        } else if (owner != nullptr && owner->kind == StatementKind::Join && row.kind != StatementKind::Send &&
                   row.kind != StatementKind::Raw) {
            fail(QStringLiteral("only \"send\" and \"raw\" can be joined"));
        }
        return !m_failed;
    }

    void readBody(Statement &statement, int depth, const StatementRow *row)
    {
        const int begun = m_line;
        statement.body = readBlock(depth + 1, row);
        if (statement.body.isEmpty() && !m_failed) {
            m_line = begun;
            fail(QStringLiteral("the block of \"%1\" is empty").arg(QLatin1String(row->word)));
        }
        if (statement.kind == StatementKind::Join) {
            for (const Statement &part : std::as_const(statement.body)) {
                statement.bytes += part.bytes;
            }
            statement.body.clear();
        }
    }

    void readArguments(Statement &statement, const Words &words)
    {
        switch (statement.kind) {
        case StatementKind::Expect:
        case StatementKind::Await:
            readExpectation(statement, words);
            break;
        case StatementKind::Ignore:
            for (const ScenarioWord &word : words) {
                statement.commands.append(commandName(word));
            }
            if (statement.commands.contains(QLatin1String(Wire::cQuitLine))) {
                fail(QStringLiteral("\"quit\" cannot be ignored"));
            }
            break;
        case StatementKind::ExpectNothing:
        case StatementKind::Timeout:
        case StatementKind::Wait:
            statement.milliseconds = duration(words.at(0));
            break;
        case StatementKind::Send:
            statement.bytes = notification(words);
            break;
        case StatementKind::Raw:
            for (const ScenarioWord &word : words) {
                statement.bytes += word.text;
            }
            break;
        case StatementKind::Split:
            statement.count = positive(words.at(0));
            statement.milliseconds = duration(words.at(1));
            statement.bytes = notification(words.mid(2));
            if (!m_failed && statement.count >= statement.bytes.size()) {
                fail(QStringLiteral("the line has only %1 bytes").arg(statement.bytes.size()));
            }
            break;
        case StatementKind::Repeat:
            statement.count = positive(words.at(0));
            break;
        default:
            break;
        }
    }

    void readExpectation(Statement &statement, const Words &words)
    {
        statement.commands.append(commandName(words.at(0)));
        const Wire::CommandRow *row = findCommand(statement.commands.constFirst());
        const int known = row == nullptr ? 0 : Wire::parameterCount(*row);
        for (const ScenarioWord &word : words.mid(1)) {
            const int equals = word.text.indexOf('=');
            const ExpectedParameter parameter{QString::fromUtf8(word.text.left(equals)),
                                              QString::fromUtf8(word.text.mid(equals + 1)),
                                              word.quotedFrom == equals + 1};
            bool isKnown = false;
            for (int number = 1; number <= known; ++number) {
                isKnown = isKnown || (equals > 0 && parameter.key == parameterKey(number));
            }
            if (!isKnown) {
                fail(QStringLiteral("%1 has no parameter \"%2\"")
                         .arg(statement.commands.constFirst(), QString::fromUtf8(word.text)));
                return;
            }
            statement.parameters.append(parameter);
        }
    }

    QString commandName(const ScenarioWord &word)
    {
        QString name = QString::fromUtf8(word.text);
        if (findCommand(name) == nullptr && name != QLatin1String(Wire::cQuitLine)) {
            fail(QStringLiteral("unknown command \"%1\"").arg(name));
        }
        return name;
    }

    QByteArray notification(const Words &words)
    {
        bool valid = false;
        const int code = words.at(0).text.toInt(&valid);
        if (!valid || Wire::findNotification(code) == nullptr) {
            fail(QStringLiteral("no notification has the code \"%1\" (use \"raw\" for what no call process sends)")
                     .arg(QString::fromUtf8(words.at(0).text)));
            return {};
        }
        const QByteArray content = words.size() > 1 ? words.at(1).text : QByteArray();
        if (!isUtf8(content)) {
            fail(QStringLiteral("the content is no UTF-8 (use \"raw\" for such bytes)"));
        }
        return notificationLine(code, QString::fromUtf8(content.constData(), content.size()));
    }

    int duration(const ScenarioWord &word)
    {
        QByteArray number = word.text;
        double unit = 0.0;
        if (number.endsWith("ms")) {
            unit = 1.0;
            number.chop(2);
        } else if (number.endsWith('s')) {
            unit = 1000.0;
            number.chop(1);
        }
        bool valid = false;
        const double value = number.toDouble(&valid) * unit;
        if (!valid || unit == 0.0 || !(value >= 0.0) || value > std::numeric_limits<int>::max()) {
            fail(QStringLiteral("bad duration \"%1\": a number and ms or s").arg(QString::fromUtf8(word.text)));
            return 0;
        }
        return static_cast<int>(value);
    }

    int positive(const ScenarioWord &word)
    {
        bool valid = false;
        const int value = word.text.toInt(&valid);
        if (!valid || value < 1) {
            fail(QStringLiteral("\"%1\" is no whole number above 0").arg(QString::fromUtf8(word.text)));
            return 1;
        }
        return value;
    }

    void fail(const QString &text)
    {
        if (!m_failed) {
            m_failed = true;
            *m_error = text;
        }
    }

    const QList<QByteArray> m_lines;
    QString *m_error;
    QString m_fault;
    int m_line = 0;
    bool m_failed = false;
};

} // namespace

bool ExpectedParameter::matches(const QJsonValue &value) const
{
    if (value.isString()) {
        return value.toString() == text;
    }
    if (textOnly || value.isUndefined()) {
        return false;
    }
    // In brackets, so that a lone number, true, false or null is a document as well.
    const QJsonDocument document = QJsonDocument::fromJson("[" + text.toUtf8() + "]");
    return document.array().size() == 1 && document.array().first() == value;
}

bool Statement::matches(const Command &command) const
{
    return command.name == commands.constFirst() &&
           std::all_of(parameters.begin(), parameters.end(), [&](const ExpectedParameter &parameter) {
               return parameter.matches(command.object.value(parameter.key));
           });
}

QString Statement::expectation() const
{
    QString text = commands.constFirst();
    for (const ExpectedParameter &parameter : parameters) {
        const QString quote = parameter.textOnly ? QStringLiteral("\"") : QString();
        text += QLatin1Char(' ') + parameter.key + QLatin1Char('=') + quote + parameter.text + quote;
    }
    return text;
}

std::optional<Scenario> Scenario::parse(const QString &name, const QByteArray &text, QString *error)
{
    QString fault;
    ScenarioReader reader(text, &fault);
    bool good = false;
    Scenario scenario{name, reader.read(&good)};
    if (!good) {
        *error = QStringLiteral("%1:%2: %3").arg(name).arg(reader.line()).arg(fault);
        return std::nullopt;
    }
    return scenario;
}

std::optional<Scenario> Scenario::load(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read the scenario %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    return parse(path, file.readAll(), error);
}
