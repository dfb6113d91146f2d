#pragma once

// What the engine has read from the call process, as the lines that it writes to the debug channel tell it.

#include "fakes/QtMessages.h"

#include <QStringList>

#include <algorithm>

/// How many reads the engine has taken.
inline int readCount(const QtMessages &messages)
{
    const auto isRead = [](const QString &text) { return text.startsWith(QStringLiteral("Voip返回数据")); };
    return static_cast<int>(std::count_if(messages.debugLines.cbegin(), messages.debugLines.cend(), isRead));
}

/// The payloads of the delivered 999 lines.
inline QStringList deliveredPayloads(const QtMessages &messages)
{
    QStringList payloads;
    for (const QString &text : messages.debugLines) {
        if (text.startsWith("voipsdk:")) {
            payloads.append(text.mid(8));
        }
    }
    return payloads;
}
