// docs/conferences.md beside the tables of the words and what the focus is set to.

#include "mixer/focus/Conference.h"
#include "mixer/focus/Limits.h"

#include "conference/Talk.h"

#include <QFile>
#include <QtTest>

namespace {

QString document()
{
    QFile file(QStringLiteral(VOIP_CONFERENCES_DOCUMENT));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The rows of the table under this head.
QStringList tableUnder(const QString &head)
{
    const QString text = document();
    const int start = text.indexOf("| " + head);
    return start < 0 ? QStringList() : text.mid(start).section("\n\n", 0, 0).split('\n').mid(2);
}

QString row(const QStringList &cells)
{
    return "| " + cells.join(" | ") + " |";
}

QString marked(const char *name)
{
    return QStringLiteral("`%1`").arg(QLatin1String(name));
}

QString roadOf(Talk::Road road)
{
    static const QMap<Talk::Road, QString> words{{Talk::Road::InviteUp, "INVITE to the mixer"},
                                                 {Talk::Road::InviteDown, "INVITE from the mixer"},
                                                 {Talk::Road::InfoUp, "INFO to the mixer"},
                                                 {Talk::Road::InfoDown, "INFO from the mixer"}};
    return words.value(road);
}

QString speakerOf(Talk::Who who)
{
    static const QMap<Talk::Who, QString> words{{Talk::Who::Anybody, "anybody"},
                                                {Talk::Who::Member, "a member"},
                                                {Talk::Who::Creator, "the creator"},
                                                {Talk::Who::Mixer, "the mixer"}};
    return words.value(who);
}

QString kindOf(Talk::Type type)
{
    static const QMap<Talk::Type, QString> words{
        {Talk::Type::Flag, "a bool"}, {Talk::Type::Id, "a conference's id"}, {Talk::Type::Text, "a text"},
        {Talk::Type::Time, "a time"}, {Talk::Type::User, "a user's id"},     {Talk::Type::Users, "users' ids"}};
    return words.value(type);
}

/// A number as documents write it: 16,000.
QString spelled(int number)
{
    return QLocale(QLocale::English).toString(number);
}

} // namespace

class tst_ConferencesDocument : public QObject
{
    Q_OBJECT

private slots:
    void eachWordIsToldInItsOrder()
    {
        QStringList rows;
        for (const Talk::WordRow &word : Talk::cWords) {
            const QString fields = '`' + QString::fromLatin1(word.fields).replace(' ', "` `") + '`';
            rows << row({marked(word.name), roadOf(word.road), speakerOf(word.who), fields, word.meaning});
        }
        QCOMPARE(tableUnder("word |"), rows);
    }

    void eachFieldIsToldInItsOrder()
    {
        QStringList rows;
        for (const Talk::FieldRow &field : Talk::cFields) {
            rows << row({marked(field.name), kindOf(field.type), field.meaning});
        }
        QCOMPARE(tableUnder("field |"), rows);
    }

    void theExamplesAreWords()
    {
        const QStringList lines = document().section("```json\n", 1, 1).section("```", 0, 0).trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        for (const QString &line : lines) {
            const auto road = line.contains("create") ? Talk::Road::InviteUp : Talk::Road::InfoUp;
            const Talk::Heard heard = Talk::read(line.toUtf8(), road);
            QVERIFY2(heard.message && heard.remark.isEmpty(), qPrintable(heard.remark));
        }
    }

    void boundsAreTold()
    {
        const QString text = document().replace('\n', ' ');
        QVERIFY(text.contains(QStringLiteral("A header has at most %1 bytes, a body %2, a list %3 users")
                                  .arg(spelled(Talk::cLongestHeader), spelled(Talk::cLongestBody))
                                  .arg(Talk::cMostUsers)));
        QVERIFY(
            text.contains(QStringLiteral("1 to %1 letters, digits and hyphens of ASCII, a text %2 characters at most")
                              .arg(Talk::cLongestId)
                              .arg(spelled(Talk::cLongestText))));
        QVERIFY(text.contains(QStringLiteral("gathered for %1 ms").arg(Focus::cGatherMs)));
        QVERIFY(text.contains(QStringLiteral("awaited for %1 s").arg(Focus::cAwaitMs / 1000)));
        QVERIFY(text.contains(QStringLiteral("calls `%1` and the id").arg(Talk::cUserPrefix)));
        QVERIFY(text.contains(QStringLiteral("the header `%1`").arg(Talk::cHeader)));
    }

    void limitsAreTold()
    {
        const Focus::Limits limits;
        const QList<QPair<QString, int>> known{{"`conferences`", limits.conferences},
                                               {"`members`", limits.members},
                                               {"`legs`", limits.legs},
                                               {"`lifetime`", limits.lifetime}};
        QList<QPair<QString, int>> told;
        for (const QString &line : tableUnder("limit |")) {
            const QStringList cells = line.mid(2).split(" | ");
            told.append({cells.at(0).section(' ', 0, 0), cells.at(1).toInt()});
        }
        QCOMPARE(told, known);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferencesDocument, Appless)
#include "tst_ConferencesDocument.moc"
