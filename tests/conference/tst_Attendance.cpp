#include "conference/Attendance.h"
#include "conference/Documents.h"
#include "wire/Notifications.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

using Talk::Word;

namespace {

Talk::Message membersOf(const QString &id, const QStringList &connected, const QStringList &joined,
                        const QStringList &left = {})
{
    Talk::Message message;
    message.saying = Word::Members;
    message.id = id;
    message.creator = QStringLiteral("anna");
    message.createTime = 1700000000000;
    message.members = QStringList{"anna", "bert", "carl"};
    message.connected = connected;
    message.muted = QStringList{"carl"};
    message.joined = joined;
    message.left = left;
    return message;
}

QByteArray invitation(const QString &id)
{
    Talk::Message message = membersOf(id, {"anna"}, {});
    message.saying = Word::Invite;
    return Talk::written(message);
}

/// The codes of lines, with who they are about.
QStringList said(const ConferenceLines &lines)
{
    QStringList texts;
    for (const ConferenceLine &line : lines) {
        const QJsonObject body =
            QJsonDocument::fromJson(line.content.toUtf8()).object().value(Wire::cKeyContent).toObject();
        const QString about = body.isEmpty() ? line.content : body.value(Wire::cKeyFrom).toString();
        texts << QStringLiteral("%1 %2").arg(static_cast<int>(line.code)).arg(about).trimmed();
    }
    return texts;
}

} // namespace

class tst_Attendance : public QObject
{
    Q_OBJECT

private:
    /// In a conference that this user has made, with the first news told.
    QString running(Attendance *attendance)
    {
        QString id = attendance->request("anna", {"bert", "carl"}, true, "title").id;
        attendance->takeAnswer();
        attendance->takeMedia();
        attendance->takeBody(Talk::written(membersOf(id, {"anna"}, {"anna"})));
        return id;
    }

private slots:
    void whatIsAskedForIsAWordWithAnIdOfItsOwn()
    {
        Attendance attendance;
        const Talk::Message first = attendance.request("anna", {"bert"}, true, "title");
        QVERIFY(attendance.isThere());
        QCOMPARE(attendance.id(), first.id);
        const Talk::Heard heard = Talk::read(Talk::written(first), Talk::Road::InviteUp);
        QVERIFY2(heard.message, qPrintable(heard.remark));
        QCOMPARE(heard.message->saying, Word::Create);
        QCOMPARE(heard.message->members, QStringList("bert"));
        QCOMPARE(heard.message->flag, true);
        QCOMPARE(heard.message->text, QStringLiteral("title"));
        QVERIFY(attendance.request("anna", {"bert"}, true, "title").id != first.id);
    }

    void theAnswerIsToldThenTheSoundThenWhoIsThere_data()
    {
        QTest::addColumn<bool>("wordFirst");
        QTest::newRow("the sound runs first") << false;
        QTest::newRow("the mixer's word comes first") << true;
    }

    void theAnswerIsToldThenTheSoundThenWhoIsThere()
    {
        QFETCH(const bool, wordFirst);
        Attendance attendance;
        const QString id = attendance.request("anna", {"bert"}, true, {}).id;
        const QByteArray word = Talk::written(membersOf(id, {"anna"}, {"anna"}));
        ConferenceLines lines = attendance.takeAnswer();
        lines += wordFirst ? attendance.takeBody(word) : attendance.takeMedia();
        lines += wordFirst ? attendance.takeMedia() : attendance.takeBody(word);
        QCOMPARE(said(lines), (QStringList{"20 " + creationDocument(id), "18", "12 anna"}));
        QCOMPARE(lines.last().content, conferenceDocument(id, "anna", {"anna"}, 1700000000000));
        QCOMPARE(said(attendance.takeAnswer() + attendance.takeMedia()), QStringList());
    }

    void soundBeforeTheAnswerIsAnAnswerToo()
    {
        Attendance attendance;
        const QString id = attendance.request("anna", {"bert"}, true, {}).id;
        QCOMPARE(said(attendance.takeMedia()), (QStringList{"20 " + creationDocument(id), "18"}));
        QCOMPARE(said(attendance.takeAnswer()), QStringList());
    }

    void whatComesBeforeTheSoundIsToldBehindIt()
    {
        Attendance attendance;
        const QString id = attendance.request("anna", {"bert"}, true, {}).id;
        attendance.takeAnswer();
        Talk::Message outcome;
        outcome.saying = Word::Outcome;
        outcome.busy = QStringList("dora");
        QCOMPARE(attendance.takeBody(Talk::written(membersOf(id, {"anna", "bert"}, {"anna", "bert"}))).size(), 0);
        QCOMPARE(attendance.takeBody(Talk::written(outcome)).size(), 0);
        QCOMPARE(attendance.takeBody(Talk::written(membersOf(id, {"anna"}, {}, {"bert"}))).size(), 0);
        for (int i = 0; i < 200; ++i) {
            attendance.takeBody(Talk::written(outcome));
        }
        const ConferenceLines lines = attendance.takeMedia();
        QCOMPARE(said(lines.mid(0, 3)), (QStringList{"18", "12 bert", "5 dora"}));
        QCOMPARE(lines.at(1).content, conferenceDocument(id, "bert", {"anna"}, 1700000000000));
        QCOMPARE(lines.size(), 102);
    }

    void whoFailsBeforeTheSoundIsToldHoweverManyAreBusy()
    {
        Attendance attendance;
        attendance.request("anna", {"bert"}, true, {});
        Talk::Message outcome;
        outcome.saying = Word::Outcome;
        for (int i = 0; i < 99; ++i) {
            outcome.busy << QString::number(i);
        }
        outcome.refused = QStringList{"dora", "emil"};
        outcome.failed = QStringList{"fred"};
        attendance.takeBody(Talk::written(outcome));
        outcome.failed << "gerd";
        attendance.takeBody(Talk::written(outcome));
        const QStringList lines = said(attendance.takeMedia());
        QCOMPARE(lines.size(), 103);
        QCOMPARE(lines.at(101), QStringLiteral("25 dora"));
        QCOMPARE(lines.last(), QStringLiteral(R"(21 {"result":{"failedNums":["fred","gerd"]},"status":0})"));
        attendance.leave();
        attendance.request("anna", {"bert"}, true, {});
        QCOMPARE(said(attendance.takeMedia()).size(), 2);
    }

    void anInvitationIsTakenThenHeard()
    {
        Attendance attendance;
        const ConferenceLines lines = attendance.takeInvitation(invitation("7"));
        QCOMPARE(said(lines), QStringList("2 anna"));
        QCOMPARE(lines.first().content, conferenceDocument("7", "anna", {"anna"}, 1700000000000));
        QCOMPARE(said(attendance.takeMedia()), QStringList("18"));
        const ConferenceLines news = attendance.takeBody(Talk::written(membersOf("7", {"anna", "bert"}, {"bert"})));
        QCOMPARE(said(news), QStringList("12 bert"));
    }

    void whatIsNoInvitationHasNoEffect()
    {
        Attendance attendance;
        for (const QByteArray &header : {QByteArray(), QByteArray("\xff"), QByteArray(20000, '['),
                                         Talk::written(membersOf("7", {}, {})), QByteArray(R"({"say":"invite"})")}) {
            QCOMPARE(said(attendance.takeInvitation(header)), QStringList());
            QVERIFY(!attendance.isThere());
        }
        attendance.takeInvitation(invitation("7"));
        QCOMPARE(said(attendance.takeInvitation(invitation("8"))), QStringList());
        QCOMPARE(attendance.id(), QStringLiteral("7"));
    }

    void whoGoesIsToldBeforeWhoComes()
    {
        Attendance attendance;
        const QString id = running(&attendance);
        const QStringList connected{"anna", "dora", "carl"};
        const ConferenceLines lines =
            attendance.takeBody(Talk::written(membersOf(id, connected, {"dora", "carl"}, {"bert", "carl"})));
        QCOMPARE(said(lines), (QStringList{"13 bert", "13 carl", "12 carl"}));
        for (const ConferenceLine &line : lines) {
            QVERIFY(line.content.contains(R"("conventioneer":["anna","dora","carl"],"createTime":1700000000000)"));
        }
        QCOMPARE(said(attendance.takeBody(Talk::written(membersOf(id, connected, {})))), QStringList());
    }

    void outcomesAreOneLineForEach()
    {
        Attendance attendance;
        running(&attendance);
        Talk::Message outcome;
        outcome.saying = Word::Outcome;
        outcome.busy = QStringList{"bert", "carl"};
        outcome.refused = QStringList{"dora"};
        QCOMPARE(said(attendance.takeBody(Talk::written(outcome))), (QStringList{"5 bert", "5 carl", "25 dora"}));
        outcome = {};
        outcome.saying = Word::Outcome;
        outcome.failed = QStringList{"emil", "fred"};
        const ConferenceLines lines = attendance.takeBody(Talk::written(outcome));
        QCOMPARE(said(lines), QStringList(R"(21 {"result":{"failedNums":["emil","fred"]},"status":0})"));
    }

    void whatAnOperatorShouldKnowIsALogLine()
    {
        Attendance attendance;
        running(&attendance);
        Talk::Message message;
        message.saying = Word::Denied;
        message.word = QStringLiteral("kick");
        message.why = QStringLiteral("so");
        QCOMPARE(said(attendance.takeBody(Talk::written(message))), QStringList("999 the conference refuses kick: so"));
        message.saying = Word::Over;
        QCOMPARE(said(attendance.takeBody(Talk::written(message))), QStringList("999 the conference ends here: so"));
        QCOMPARE(said(attendance.takeBody("\xff")), QStringList("999 of the conference: no JSON object, at byte 1"));
        QCOMPARE(said(attendance.takeBody(Talk::written(membersOf("9", {"anna"}, {"anna"})))),
                 QStringList("999 of another conference: 9"));
        QCOMPARE(said(attendance.takeBody(R"({"say":"over","why":"so","colour":1})")),
                 (QStringList{"999 of the conference: over has no \"colour\"", "999 the conference ends here: so"}));
    }

    void aLogLineIsOneLine()
    {
        Attendance attendance;
        running(&attendance);
        Talk::Message message;
        message.saying = Word::Denied;
        message.word = QStringLiteral("ki\nck");
        message.why = QStringLiteral("a\r\nb\u202ec\u0085d");
        QCOMPARE(said(attendance.takeBody(Talk::written(message))),
                 QStringList("999 the conference refuses ki ck: a  b c d"));
        QCOMPARE(said(attendance.takeRefusal("so")), QStringList("7"));
        attendance.request("anna", {}, false, {});
        QCOMPARE(said(attendance.takeRefusal("a\nb")), (QStringList{"999 no conference: a b", "20"}));
    }

    void itsEndDependsOnHowFarItHasCome()
    {
        Attendance attendance;
        QCOMPARE(said(attendance.takeEnd()), QStringList());
        QCOMPARE(said(attendance.takeBody(Talk::written(membersOf("7", {}, {"anna"})))), QStringList());
        attendance.request("anna", {}, false, {});
        QCOMPARE(said(attendance.takeEnd()), QStringList("20"));
        attendance.request("anna", {}, false, {});
        QCOMPARE(said(attendance.takeRefusal("full")), (QStringList{"999 no conference: full", "20"}));
        attendance.takeInvitation(invitation("7"));
        QCOMPARE(said(attendance.takeEnd()), QStringList("4"));
        attendance.request("anna", {}, false, {});
        attendance.takeAnswer();
        QCOMPARE(said(attendance.takeEnd()), QStringList("7"));
        running(&attendance);
        QCOMPARE(said(attendance.takeEnd()), QStringList("7"));
        QVERIFY(!attendance.isThere());
        QCOMPARE(attendance.id(), QString());
        running(&attendance);
        attendance.leave();
        QCOMPARE(said(attendance.takeEnd() + attendance.takeMedia()), QStringList());
    }

    void aLostMixerIsCalledAgainWithoutAWord()
    {
        Attendance attendance;
        const QString id = running(&attendance);
        attendance.takeBody(Talk::written(membersOf(id, {"anna", "bert"}, {"bert"})));
        const Talk::Heard heard = Talk::read(Talk::written(attendance.resumption()), Talk::Road::InviteUp);
        QVERIFY(heard.message);
        QCOMPARE(heard.message->saying, Word::Resume);
        QCOMPARE(heard.message->id, id);
        QCOMPARE(heard.message->creator, QStringLiteral("anna"));
        QCOMPARE(heard.message->createTime, Q_INT64_C(1700000000000));
        QCOMPARE(heard.message->members, (QStringList{"anna", "bert", "carl"}));
        QCOMPARE(heard.message->connected, (QStringList{"anna", "bert"}));
        QCOMPARE(heard.message->muted, QStringList("carl"));
        QCOMPARE(said(attendance.takeAnswer() + attendance.takeMedia()), QStringList());
        QCOMPARE(said(attendance.takeBody(Talk::written(membersOf(id, {"anna"}, {"anna"})))), QStringList("12 anna"));
        QCOMPARE(said(attendance.takeRefusal("no mixer")), QStringList("7"));
    }

    void aLostMixerIsCalledAgainHoweverManyAreRemembered_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("allAreMuted");
        QTest::addColumn<int>("belong");
        QTest::addColumn<int>("muted");
        QTest::newRow("all fit") << 8 << true << 200 << 200;
        QTest::newRow("who is away is left out") << 60 << false << 101 << 1;
        QTest::newRow("who is away and muted is left out") << 36 << true << 100 << 100;
        QTest::newRow("half of those who are in it") << 100 << true << 50 << 50;
    }

    void aLostMixerIsCalledAgainHoweverManyAreRemembered()
    {
        QFETCH(const int, length);
        QFETCH(const bool, allAreMuted);
        QFETCH(const int, belong);
        QFETCH(const int, muted);
        Talk::Message last = membersOf("7", {}, {});
        last.members.clear();
        for (int i = 0; i < 200; ++i) {
            last.members << QString::number(i).rightJustified(length, '0');
        }
        last.creator = last.members.first();
        last.connected = last.members.mid(0, 100);
        last.muted = allAreMuted ? last.members : last.members.mid(199);
        Attendance attendance;
        attendance.takeInvitation(invitation("7"));
        QCOMPARE(said(attendance.takeBody(Talk::written(last))), QStringList());
        const Talk::Heard heard = Talk::read(Talk::written(attendance.resumption()), Talk::Road::InviteUp);
        QVERIFY2(heard.message, qPrintable(heard.remark));
        QCOMPARE(heard.message->members.size(), belong);
        QCOMPARE(heard.message->members.mid(0, 50), last.members.mid(0, 50));
        QCOMPARE(heard.message->connected, last.connected.mid(0, std::min(belong, 100)));
        QCOMPARE(heard.message->muted.size(), muted);
    }

    void whatWasNeverHeardOfIsAskedForAgain()
    {
        Attendance attendance;
        const Talk::Message first = attendance.request("anna", {"bert"}, true, "title");
        attendance.takeAnswer();
        attendance.takeMedia();
        QCOMPARE(Talk::written(attendance.resumption()), Talk::written(first));
    }

    void aTimeThatIsUnknownIsLeftOut()
    {
        QCOMPARE(conferenceDocument("7", "anna", {}, 0),
                 QStringLiteral(R"({"content":{"confId":"7","conventioneer":[],"from":"anna"}})"));
        QCOMPARE(conferenceDocument("7", "anna", {}, 1),
                 QStringLiteral(R"({"content":{"confId":"7","conventioneer":[],"createTime":1,"from":"anna"}})"));
    }

    void theDocumentTellsEachCode()
    {
        QFile file(QStringLiteral(VOIP_CONFERENCES_DOCUMENT));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString table =
            QString::fromUtf8(file.readAll()).section("| what comes | notification |", 1, 1).section("\n\n", 0, 0);
        QMap<int, bool> told;
        auto numbers = QRegularExpression("\\b\\d+\\b").globalMatch(table);
        while (numbers.hasNext()) {
            told.insert(numbers.next().captured().toInt(), true);
        }
        const QList<int> known{2, 4, 5, 7, 12, 13, 18, 20, 21, 25, 999};
        QCOMPARE(told.keys(), known);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Attendance, Appless)
#include "tst_Attendance.moc"
