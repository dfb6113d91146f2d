#include "calls/agent/FarText.h"

#include "calls/agent/CallEnd.h"

#include "conference/UserId.h"

#include <algorithm>

QString farText(const std::string &bytes, int limit)
{
    // A character has at most four bytes: no more than these can be within the limit.
    const auto bounded = static_cast<int>(std::min(bytes.size(), static_cast<std::size_t>(limit) * 4));
    QString text = QString::fromUtf8(bytes.data(), bounded).left(limit);
    for (QChar &character : text) {
        if (isControl(character) || character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph) {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

QString nothingInCommon()
{
    return QStringLiteral("no common encryption or codec");
}

QString whyRefused(int status, const std::string &phrase)
{
    const QString why = status == SipStatus::cNothingInCommon ? nothingInCommon() : farText(phrase, cRemarkLimit);
    return QStringLiteral("%1 (%2)").arg(why, QString::number(status));
}
