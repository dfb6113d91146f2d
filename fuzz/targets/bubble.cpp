#include "FuzzTargets.h"

#include "common/text/DigitText.h"
#include "common/text/StyleText.h"
#include "common/text/TextCompare.h"
#include "model/SysUIData.h"

#include <QStringList>

void FuzzTargets::bubble(const QByteArray &input)
{
    const QStringList parts = QString::fromUtf8(input).split(QLatin1Char('\n'));
    const QString first = parts.value(0);
    const QString second = parts.value(1);

    SysUIData skin;
    skin.setLeftChatBubble(first);
    skin.setRightChatBubble(second);
    skin.setLeftBubbleMargin(second);
    skin.setRightBubbleMargin(parts.value(2));
    SysUIData copy;
    copy.resetData(skin);
    SysUIData::transformToRGBA(first);
    SysUIData::transformToRGBStr(second);

    const bool older = TextCompare::compareVersion(first, second);
    requirePromise(!(older && TextCompare::compareVersion(second, first)), "of two versions one at most is older");
    requirePromise(!TextCompare::compareVersion(first, first), "no version is older than itself");
    TextCompare::combareString(first, second, parts.value(2));
    requirePromise(TextCompare::getSortText(first).size() == first.size(), "a sort key is as long as its text");
    DigitText::removePrefix(first);
    requirePromise(!DigitText::isDigitalString(first) || DigitText::removeSymbolPrefix(first) == first,
                   "digits lose nothing");
}
