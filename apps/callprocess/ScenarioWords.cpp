#include "callprocess/ScenarioWords.h"

#include <algorithm>

namespace {

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\r';
}

bool isHexDigit(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

class LineReader
{
public:
    LineReader(const QByteArray &line, QString *error) : m_line(line), m_error(error) {}

    QVector<ScenarioWord> read()
    {
        QVector<ScenarioWord> words;
        while (skipBlanks() && m_error->isEmpty()) {
            ScenarioWord word;
            readWord(word);
            if (m_error->isEmpty()) {
                words.append(word);
            }
        }
        return words;
    }

private:
    bool atEnd() const { return m_position >= m_line.size(); }
    char peek() const { return m_line.at(m_position); }
    char take() { return m_line.at(m_position++); }

    bool skipBlanks()
    {
        while (!atEnd() && isBlank(peek())) {
            ++m_position;
        }
        return !atEnd() && peek() != '#';
    }

    void readWord(ScenarioWord &word)
    {
        bool mayQuote = true;
        while (!atEnd() && !isBlank(peek())) {
            if (mayQuote && (peek() == '"' || peek() == '\'')) {
                readQuoted(word);
                return;
            }
            const char character = take();
            mayQuote = character == '=' && word.text.indexOf('=') < 0;
            word.text += character;
        }
    }

    void readQuoted(ScenarioWord &word)
    {
        word.quotedFrom = word.text.size();
        const char quote = take();
        while (!atEnd() && peek() != quote) {
            const char character = take();
            word.text += character == '\\' && quote == '"' ? readEscape() : character;
        }
        if (atEnd()) {
            fail(QStringLiteral("a quote is not closed"));
            return;
        }
        ++m_position;
        if (!atEnd() && !isBlank(peek())) {
            fail(QStringLiteral("text right behind a closing quote"));
        }
    }

    char readEscape()
    {
        const char character = atEnd() ? '\0' : take();
        switch (character) {
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        case '0':
            return '\0';
        case '\\':
        case '"':
            return character;
        case 'x':
            return readHexByte();
        default:
            fail(QStringLiteral("unknown escape in a quoted text"));
            return '\0';
        }
    }

    char readHexByte()
    {
        const QByteArray digits = m_line.mid(m_position, 2);
        if (digits.size() != 2 || !std::all_of(digits.begin(), digits.end(), isHexDigit)) {
            fail(QStringLiteral("\\x needs two hexadecimal digits"));
            return '\0';
        }
        m_position += 2;
        return QByteArray::fromHex(digits).at(0);
    }

    void fail(const QString &text)
    {
        if (m_error->isEmpty()) {
            *m_error = text;
        }
    }

    const QByteArray &m_line;
    QString *m_error;
    int m_position = 0;
};

} // namespace

QVector<ScenarioWord> scenarioWords(const QByteArray &line, QString *error)
{
    error->clear();
    return LineReader(line, error).read();
}
