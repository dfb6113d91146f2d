#include "mixer/focus/Control.h"

#include <QtTest>

using Talk::Word;

class tst_Control : public QObject
{
    Q_OBJECT

private slots:
    void whoMayWhat_data()
    {
        QTest::addColumn<QString>("sender");
        QTest::addColumn<int>("word");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("users");
        QTest::addColumn<QString>("refusal");
        const QString creatorAlone = "the creator alone may do that";
        const auto row = [](const char *name, const char *sender, Word word, const char *user, const QStringList &users,
                            const QString &refusal = {}) {
            QTest::newRow(name) << QString(sender) << static_cast<int>(word) << QString(user) << users << refusal;
        };
        row("the creator kicks", "anna", Word::Kick, "bert", {"bert"});
        row("the creator mutes", "anna", Word::Mute, "bert", {"bert"});
        row("the creator unmutes", "anna", Word::Unmute, "bert", {"bert"});
        row("the creator kicks everybody", "anna", Word::Kick, "non_moderator", {"bert", "carl"});
        row("the creator mutes everybody", "anna", Word::Mute, "non_moderator", {"bert", "carl"});
        row("the creator mutes himself", "anna", Word::Mute, "anna", {"anna"});
        row("the creator kicks himself", "anna", Word::Kick, "anna", {}, "nobody removes the creator");
        row("the creator kicks a stranger", "anna", Word::Kick, "dora", {}, "dora does not belong to the conference");
        row("the creator mutes a stranger", "anna", Word::Mute, "dora", {}, "dora does not belong to the conference");
        row("a member kicks", "bert", Word::Kick, "carl", {}, creatorAlone);
        row("a member mutes", "bert", Word::Mute, "carl", {}, creatorAlone);
        row("a member unmutes", "bert", Word::Unmute, "carl", {}, creatorAlone);
        row("a member unmutes himself", "bert", Word::Unmute, "bert", {}, creatorAlone);
        row("a member mutes everybody", "bert", Word::Mute, "non_moderator", {}, creatorAlone);
        row("a member kicks the creator", "bert", Word::Kick, "anna", {}, creatorAlone);
    }

    void whoMayWhat()
    {
        QFETCH(const QString, sender);
        QFETCH(const int, word);
        QFETCH(const QString, user);
        QFETCH(const QStringList, users);
        QFETCH(const QString, refusal);
        Focus::Roster roster("anna");
        roster.take("bert");
        roster.take("carl");
        Talk::Message message;
        message.saying = static_cast<Word>(word);
        message.user = user;
        const Focus::Verdict verdict = Focus::judged(message, roster, sender);
        QCOMPARE(verdict.refusal, refusal);
        QCOMPARE(verdict.users, users);
    }

    void anybodyInsideAddsAnybodyButHimself_data()
    {
        QTest::addColumn<QString>("sender");
        QTest::newRow("the creator") << "anna";
        QTest::newRow("a member") << "bert";
    }

    void anybodyInsideAddsAnybodyButHimself()
    {
        QFETCH(const QString, sender);
        Focus::Roster roster("anna");
        roster.take("bert");
        Talk::Message message;
        message.saying = Word::Add;
        message.users = QStringList{"dora", sender, "emil"};
        const Focus::Verdict verdict = Focus::judged(message, roster, sender);
        QCOMPARE(verdict.refusal, QString());
        QCOMPARE(verdict.users, (QStringList{"dora", "emil"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Control, Appless)
#include "tst_Control.moc"
