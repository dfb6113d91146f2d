#include "conference/UserId.h"

#include <algorithm>

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
}

bool isUserId(const QString &id)
{
    return !id.isEmpty() && id.size() <= cUserIdLimit && id.isValidUtf16() &&
           std::none_of(id.begin(), id.end(), isControl);
}
