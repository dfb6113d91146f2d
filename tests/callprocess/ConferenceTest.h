#pragma once

// What the tests of the exchange's conferences share. Derive the test class from it.

#include "callprocess/CallProcessTest.h"

#include <QJsonArray>

class ConferenceTest : public CallProcessTest
{
    Q_OBJECT

protected:
    /// A conference of the user 100 with Li Lei, who has joined.
    static bool joinConference(CallProcess &peer)
    {
        peer.command(QStringLiteral("RequestConference"),
                     {QStringLiteral("100"), QJsonArray{QStringLiteral("30010001")}, true, QStringLiteral("text")});
        return peer.nextNotification().startsWith(QLatin1String("20 ")) &&
               peer.nextNotification() == QLatin1String("18") &&
               peer.nextNotification().startsWith(QLatin1String("12 ")) &&
               peer.nextNotification().startsWith(QLatin1String("12 "));
    }

    /// A conference of the user 100 with these members; the lines up to their own are taken.
    static bool requestConference(CallProcess &peer, const QJsonArray &members)
    {
        peer.command(QStringLiteral("RequestConference"), {QStringLiteral("100"), members, false, QString()});
        return peer.nextNotification().startsWith(QLatin1String("20 ")) &&
               peer.nextNotification() == QLatin1String("18") &&
               peer.nextNotification().startsWith(QLatin1String("12 "));
    }

    /// The line by which a conference of the two is to have these users too.
    static QByteArray addLine(const QJsonValue &users)
    {
        return CallProcess::line(QStringLiteral("Add2Conference"),
                                 {users, QStringLiteral("100"), QStringLiteral("100"), false, QString(),
                                  QJsonArray{QStringLiteral("100"), QStringLiteral("30010001")}});
    }

    /// The word of the conference's creator about that user.
    static void control(CallProcess &peer, const char *operation, const char *user)
    {
        peer.command(QStringLiteral("ControlConf"), {QString::fromLatin1(operation), QString::fromLatin1(user)});
    }
};
