#include "common/text/ChineseSpell.h"

namespace {

constexpr ushort FIRST_CHARACTER = 0x4E00;

} // namespace

QString ChineseSpell::toChineseSpell(QString strText)
{
    if (strText.isEmpty()) {
        return strText;
    }
    QString strResult(strText.size(), Qt::Uninitialized);
    QChar *pNext = strResult.data();
    for (const QChar character : qAsConst(strText)) {
        const ushort code = character.unicode();
        const bool bLetter = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
        if (bLetter) {
            *pNext++ = character.toUpper();
        } else if (code >= '0' && code <= '9') {
            *pNext++ = character;
        } else if (code >= FIRST_CHARACTER && code - FIRST_CHARACTER < strChineseFirstPY.size()) {
            *pNext++ = strChineseFirstPY.at(code - FIRST_CHARACTER);
        }
    }
    strResult.truncate(static_cast<int>(pNext - strResult.constData()));
    return strResult;
}
