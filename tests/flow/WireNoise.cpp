#include "flow/WireNoise.h"

#include "wire/Notifications.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using Wire::Code;

namespace {

QString compact(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

QString WireNoise::uid()
{
    static const QStringList s_usual{"me", "anna", "bert", "carl", "30010001"};
    static const QStringList s_odd{"", "kv6005626532", "李雷", "a@b/c", "non_moderator", " ", "\"\\\n", "me@kelvar.im"};
    return chance(6) ? s_odd.at(below(s_odd.size())) : s_usual.at(below(s_usual.size()));
}

QStringList WireNoise::uids()
{
    QStringList list;
    for (int count = below(6); count > 0; --count) {
        list.append(uid());
    }
    return list;
}

QString WireNoise::text()
{
    QString text;
    for (int length = below(40); length > 0; --length) {
        text.append(QChar(static_cast<ushort>(chance(3) ? below(0x10000) : 0x20 + below(0x60))));
    }
    return text;
}

QString WireNoise::conferenceDocument()
{
    static const QStringList s_ids{"", "c1", "c1", "c1", "c2"};
    const QList<QJsonValue> times{1700000000000.0, 1700000060000.0, 0, -5, 8.9, 1e30, "soon", QJsonValue()};
    QJsonObject body{{"from", uid()},
                     {"conventioneer", QJsonArray::fromStringList(uids())},
                     {"confId", s_ids.at(below(s_ids.size()))}};
    if (!chance(3)) {
        body.insert("createTime", times.at(below(times.size())));
    }
    if (chance(6)) {
        body.remove(body.keys().at(below(body.size())));
    }
    if (chance(6)) {
        body.insert(body.isEmpty() ? "from" : body.keys().at(below(body.size())), QJsonArray{1, "x", QJsonObject()});
    }
    return compact({{"content", chance(12) ? QJsonValue(text()) : QJsonValue(body)}});
}

QString WireNoise::content(int code)
{
    if (chance(12)) {
        return text();
    }
    switch (Code{code}) {
    case Code::IncomingConf:
    case Code::ConfUpdate:
    case Code::ConfMemberLeft:
        return conferenceDocument();
    case Code::ConfCreated:
        return chance(3) ? QString() : compact({{"result", QJsonObject{{"confId", chance(3) ? "c2" : "c1"}}}});
    case Code::ConfAddResult:
        return compact({{"status", 0}, {"result", QJsonObject{{"failedNums", QJsonArray::fromStringList(uids())}}}});
    case Code::SdkFlag:
        return chance(2) ? "true" : "false";
    default:
        return uid();
    }
}

int WireNoise::code()
{
    if (chance(20)) {
        return chance(2) ? int(Code::SdkLog) : below(100000) - 1000;
    }
    // The ends are many among the codes; the rest has to come more often, or no call would last.
    static const QList<Code> s_lasting{Code::IncomingCall, Code::IncomingCallAlt, Code::IncomingConf,
                                       Code::ConfUpdate,   Code::ConfUpdate,      Code::ConfMemberLeft,
                                       Code::SdkFlag,      Code::CallConnected,   Code::CallConnected,
                                       Code::ConfCreated,  Code::ConfAddResult,   Code::ConfMemberRejected};
    return chance(4) ? below(27) : int(s_lasting.at(below(s_lasting.size())));
}

QString WireNoise::line()
{
    const int number = code();
    const QString whole = compact({{"resultCode", number}, {"content", content(number)}}) + '\n';
    return chance(8) ? broken(whole) : whole;
}

QString WireNoise::broken(QString line)
{
    switch (below(6)) {
    case 0:
        return line.left(below(line.size()));
    case 1:
        return line.mid(below(line.size()));
    case 2:
        return text() + '\n';
    case 3:
        return QString(2000, '[') + '\n';
    case 4: {
        static const QStringList s_noObjects{"\n",
                                             "5\n",
                                             "[1,2]\n",
                                             "\"x\"\n",
                                             "null\n",
                                             "{\"resultCode\":{}}\n",
                                             "{\"resultCode\":1e300}\n",
                                             "{\"resultCode\":4,\"content\":[]}\n"};
        return s_noObjects.at(below(s_noObjects.size()));
    }
    default:
        line[below(line.size())] = QChar(static_cast<ushort>(below(0x100)));
        return line;
    }
}
