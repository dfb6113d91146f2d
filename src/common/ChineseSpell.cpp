#include "common/ChineseSpell.h"

namespace {

constexpr ushort FIRST_CHARACTER = 0x4E00;

} // namespace

QString ChineseSpell::toChineseSpell(QString strText)
{
    QString strResult;
    strResult.reserve(strText.size());
    for (const QChar character : qAsConst(strText)) {
        const ushort code = character.unicode();
        const bool bLetter = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
        if (bLetter) {
            strResult += character.toUpper();
        } else if (code >= '0' && code <= '9') {
            strResult += character;
        } else if (code >= FIRST_CHARACTER && code - FIRST_CHARACTER < strChineseFirstPY.size()) {
            strResult += strChineseFirstPY.at(code - FIRST_CHARACTER);
        }
    }
    return strResult;
}
