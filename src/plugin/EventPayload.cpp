#include "plugin/EventPayload.h"

QStringList PayloadReader::takeTexts()
{
    QStringList texts;
    const auto count = take<qint32>();
    for (qint32 i = 0; i < count; ++i) {
        const auto text = take<QString>();
        if (!isComplete()) {
            break;
        }
        texts.append(text);
    }
    return texts;
}
