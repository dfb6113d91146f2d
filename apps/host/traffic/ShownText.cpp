#include "traffic/ShownText.h"

#include "traffic/WireTrace.h"

#include "wire/Commands.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

constexpr int cShortestSecret = 4;
// A program that registers under ever new values does not make every line slower.
constexpr int cMostSecrets = 16;

QString mark()
{
    return QString(6, QChar(0x2022));
}

bool isShownAsCode(const QChar &character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

int backslashesBefore(const QString &strText, int iPlace)
{
    int count = 0;
    while (count < iPlace && strText.at(iPlace - 1 - count) == QLatin1Char('\\')) {
        ++count;
    }
    return count;
}

/// Where the quoted value ends that begins at `iBegin`; `iDepth` backslashes stand before the quotes around it, as JSON
/// within JSON has them.
int endOfQuoted(const QString &strText, int iBegin, int iDepth)
{
    for (int end = strText.indexOf(QLatin1Char('"'), iBegin); end >= 0;
         end = strText.indexOf(QLatin1Char('"'), end + 1)) {
        const int before = qMin(backslashesBefore(strText, end), end - iBegin);
        if (iDepth == 0 ? before % 2 == 0 : before == iDepth) {
            return end - iDepth;
        }
    }
    return strText.size();
}

/// The value that begins at `iBegin`, without its quotes.
void findValue(const QString &strText, int *iBegin, int *iEnd)
{
    int place = *iBegin;
    while (place < strText.size() && strText.at(place) == QLatin1Char('\\')) {
        ++place;
    }
    const int depth = place - *iBegin;
    const QChar first = place < strText.size() ? strText.at(place) : QChar();
    if (first == QLatin1Char('"')) {
        *iBegin = place + 1;
        *iEnd = endOfQuoted(strText, *iBegin, depth);
    } else if (first == QLatin1Char('[') || first == QLatin1Char('{')) {
        *iEnd = strText.size();
    } else {
        *iEnd = place;
        while (*iEnd < strText.size() && strText.at(*iEnd) != QLatin1Char('"') &&
               strText.at(*iEnd) != cLineFeedPicture) {
            ++*iEnd;
        }
    }
}

QString maskedValues(const QString &strText, const QRegularExpression &keys)
{
    QString result;
    int done = 0;
    for (QRegularExpressionMatch match = keys.match(strText); match.hasMatch(); match = keys.match(strText, done)) {
        int begin = match.capturedEnd();
        int end = begin;
        findValue(strText, &begin, &end);
        result += strText.midRef(done, begin - done);
        if (end > begin) {
            result += mark();
        }
        done = end;
    }
    return result + strText.midRef(done);
}

} // namespace

QString ShownText::plain(const QString &strText, int iLimit)
{
    return plain(strText, iLimit, strText.size());
}

QString ShownText::plain(const QString &strText, int iLimit, qint64 iLength)
{
    QString result;
    for (const QChar &character : strText.leftRef(iLimit)) {
        if (isShownAsCode(character)) {
            result += QStringLiteral("\\u%1").arg(uint(character.unicode()), 4, 16, QLatin1Char('0'));
        } else {
            result += character;
        }
    }
    if (iLength <= iLimit) {
        return result;
    }
    if (!result.isEmpty() && result.at(result.size() - 1).isHighSurrogate()) {
        result.chop(1);
    }
    return result + QChar(0x2026) + QLatin1Char(' ') +
           QCoreApplication::translate("ShownText", "(%1 in all)").arg(iLength);
}

void SecretMask::learn(const QString &strSecret)
{
    if (strSecret.size() < cShortestSecret || m_secrets.contains(strSecret)) {
        return;
    }
    m_secrets.append(strSecret);
    while (m_secrets.size() > cMostSecrets) {
        m_secrets.removeFirst();
    }
}

QString SecretMask::masked(const QString &strText) const
{
    static const QString form = QStringLiteral("(?:%1)[A-Za-z0-9_-]{0,64}\\\\{0,8}\"?\\s{0,8}[:=]\\s{0,8}");
    static const QString names =
        QStringLiteral("cookie|passw(?:or)?d|passphrase|pwd|token|secret|credential|authori[sz]ation|regvalue");
    static const QRegularExpression keys(form.arg(names), QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression keysOfRegistration(
        form.arg(names + QLatin1Char('|') + QLatin1String(Wire::cKeyRegistrationValue)),
        QRegularExpression::CaseInsensitiveOption);
    QString text = strText;
    for (const QString &secret : m_secrets) {
        text.replace(secret, mark());
    }
    const bool registration = text.contains(QLatin1String(Wire::nameOf(Wire::Command::RegeditUser)));
    return maskedValues(text, registration ? keysOfRegistration : keys);
}
