#include "common/text/ChineseSpell.h"

namespace {

constexpr ushort cFirstCharacter = 0x4E00;

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
        } else if (code >= cFirstCharacter && code - cFirstCharacter < strChineseFirstPY.size()) {
            *pNext++ = strChineseFirstPY.at(code - cFirstCharacter);
        }
    }
    strResult.truncate(static_cast<int>(pNext - strResult.constData()));
    return strResult;
}
