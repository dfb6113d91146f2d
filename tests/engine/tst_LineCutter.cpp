// The cutting of one read into lines: held against the plain rule on random texts, and on large hostile ones.

#include "ProcessorClock.h"

#include "engine/LineCutter.h"

#include <QRandomGenerator>
#include <QTest>

class tst_LineCutter : public QObject
{
    Q_OBJECT

private slots:
    void cutsAsTheRuleTells_data()
    {
        QTest::addColumn<QString>("read");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("nothing") << QString() << QStringList();
        QTest::newRow("half a line is dropped") << "abc" << QStringList();
        QTest::newRow("one line") << "abc\n" << QStringList{"abc\n"};
        QTest::newRow("two lines keep their order") << "b\na\n" << QStringList{"b\n", "a\n"};
        QTest::newRow("one and a half lines") << "one\ntw" << QStringList{"one\n"};
        QTest::newRow("equal lines are delivered once") << "x\nx\nx\n" << QStringList{"x\n"};
        QTest::newRow("equal lines apart are delivered once") << "x\ny\nx\n" << QStringList{"x\n", "y\n"};
        QTest::newRow("a line that ends another one is cut off there") << "a\nba\nc\n" << QStringList{"a\n", "bc\n"};
        QTest::newRow("the longer line first leaves the shorter one alone") << "ba\na\nc\n"
                                                                            << QStringList{"ba\n", "a\n", "c\n"};
        QTest::newRow("what is glued at the end is dropped") << "a\nba\n" << QStringList{"a\n"};
        QTest::newRow("a glued line that equals another goes with it") << "a\nbc\nba\nc\n"
                                                                       << QStringList{"a\n", "bc\n"};
        QTest::newRow("case counts") << "a\nA\n" << QStringList{"a\n", "A\n"};
        QTest::newRow("a leading empty line loses the rest") << "\na\nb\n" << QStringList{"\n"};
        QTest::newRow("an empty line between loses the rest") << "a\n\nb\nc\n" << QStringList{"a\n", "\n"};
        QTest::newRow("empty lines only") << "\n\n\n" << QStringList{"\n"};
        QTest::newRow("a carriage return belongs to the line") << "a\r\nb\n" << QStringList{"a\r\n", "b\n"};
        QTest::newRow("text outside ASCII")
            << QStringLiteral("呼叫\n再呼叫\n完\n") << QStringList{QStringLiteral("呼叫\n"), QStringLiteral("再完\n")};
    }

    void cutsAsTheRuleTells()
    {
        QFETCH(QString, read);
        QFETCH(QStringList, lines);
        QCOMPARE(plainRule(read), lines);
        QCOMPARE(cutLines(read), lines);
    }

    void agreesWithThePlainRuleOnRandomTexts_data()
    {
        QTest::addColumn<QString>("alphabet");

        QTest::newRow("two letters") << "ab\n";
        QTest::newRow("one letter") << "a\n";
        QTest::newRow("three letters") << "abc\n";
        QTest::newRow("many empty lines") << "ab\n\n\n";
        QTest::newRow("long lines of one letter") << "aaaaaaa\n";
        QTest::newRow("long lines of two letters") << "aaaaab\n";
        QTest::newRow("letters of JSON") << "{\"}:1,\n";
    }

    void agreesWithThePlainRuleOnRandomTexts()
    {
        QFETCH(QString, alphabet);
        QRandomGenerator random(20150707);
        for (int round = 0; round < 30000; ++round) {
            QString read;
            const int length = random.bounded(61);
            for (int i = 0; i < length; ++i) {
                read += alphabet.at(random.bounded(alphabet.size()));
            }
            if (cutLines(read) != plainRule(read)) {
                QCOMPARE(shown(read) + " -> " + shown(cutLines(read).join(' ')),
                         shown(read) + " -> " + shown(plainRule(read).join(' ')));
            }
        }
    }

    void agreesWithThePlainRuleOnRandomLines_data()
    {
        QTest::addColumn<QStringList>("pieces");

        QTest::newRow("documents and parts of them") << QStringList{R"({"resultCode":12,"content":"x"})",
                                                                    R"({"resultCode":2,"content":"x"})",
                                                                    R"("content":"x"})",
                                                                    "}",
                                                                    "x\"}",
                                                                    R"({"resultCode":18})",
                                                                    R"({"resultCode":1)",
                                                                    "8}",
                                                                    R"({})"};
        QTest::newRow("documents that begin alike") << QStringList{R"({"content":"a"})",
                                                                   R"({"content":"b"})",
                                                                   "{\"content\":\"{\\\"content\\\":{}}\"}",
                                                                   R"({"content":{"content":"a"}})",
                                                                   R"({"content":1})",
                                                                   R"({"content":11})",
                                                                   "{\"cont"};
    }

    void agreesWithThePlainRuleOnRandomLines()
    {
        QFETCH(QStringList, pieces);
        QRandomGenerator random(42);
        for (int round = 0; round < 20000; ++round) {
            QString read;
            const int count = random.bounded(12);
            for (int i = 0; i < count; ++i) {
                read += pieces.at(random.bounded(pieces.size()));
                if (random.bounded(3) != 0) {
                    read += QLatin1Char('\n');
                }
            }
            if (cutLines(read) != plainRule(read)) {
                QCOMPARE(shown(read) + " -> " + shown(cutLines(read).join(' ')),
                         shown(read) + " -> " + shown(plainRule(read).join(' ')));
            }
        }
    }

    void largeReadsAreCutInTime_data()
    {
        QTest::addColumn<QString>("read");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("last");

        QString different;
        for (int i = 0; i < 80000; ++i) {
            different += QStringLiteral("{\"resultCode\":999,\"content\":\"record %1 of many\"}\n").arg(i, 6);
        }
        QTest::newRow("4 MB of different lines")
            << different << 80000 << "{\"resultCode\":999,\"content\":\"record  79999 of many\"}\n";

        QTest::newRow("each line is glued to the next") << "a\n" + QStringLiteral("ba\n").repeated(300000) + "c\n"
                                                        << 2 << QString(300000, 'b') + "c\n";

        QString suffixed = QStringLiteral("a\n");
        QString glued;
        for (int i = 0; i < 200000; ++i) {
            suffixed += QString::number(i) + "a\n";
            glued += QString::number(i);
        }
        QTest::newRow("different lines are glued to the next") << suffixed + "c\n" << 2 << glued + "c\n";

        const QString remainder(500000, 'b');
        QTest::newRow("equal lines behind a long remainder")
            << "a\n" + remainder + "a\n" + QStringLiteral("c\n").repeated(250000) << 3 << "c\n";
        QTest::newRow("equal lines behind a long line")
            << remainder + "\n" + QStringLiteral("c\n").repeated(250000) << 2 << "c\n";
        QTest::newRow("empty lines only") << QString(4000000, '\n') << 1 << "\n";

        QString growing;
        for (int i = 1; i <= 2000; ++i) {
            growing += QString(i, 'a') + "\n";
        }
        QTest::newRow("each line ends the next one") << growing << 1 << "a\n";

        QString shrinking;
        for (int i = 2000; i > 0; --i) {
            shrinking += QString(i, 'a') + "\n";
        }
        QTest::newRow("each line ends the one before") << shrinking << 2000 << "a\n";
    }

    /// A cut that moves the whole rest for each line that it removes runs into the time limit of this program.
    void largeReadsAreCutInTime()
    {
        QFETCH(QString, read);
        QFETCH(int, count);
        QFETCH(QString, last);
        const QStringList lines = cutLines(read);
        QCOMPARE(lines.size(), count);
        QVERIFY(lines.constLast() == last);
    }

    void manyShortLinesTakeLessThanHalfASecond_data()
    {
        QTest::addColumn<QString>("first");
        QTest::newRow("no line is the end of another") << QString();
        QTest::newRow("the first is cut off the second, and is twice there") << QStringLiteral("x\n0x\nx\n");
    }

    /// Such lines do not begin alike, so each is looked for in all later ones.
    void manyShortLinesTakeLessThanHalfASecond()
    {
        QFETCH(QString, first);
        QString read = first;
        QStringList expected = plainRule(first);
        for (int i = 0; i < 10000; ++i) {
            expected.append(QStringLiteral("%1\n").arg(i, 5, 10, QLatin1Char('0')));
            read += expected.constLast();
        }
        if (!first.isEmpty()) {
            expected[1].prepend(QLatin1Char('0'));
        }
        const ProcessorClock clock;
        const QStringList lines = cutLines(read);
        const double dSeconds = clock.seconds();
        QVERIFY(lines == expected);
        QVERIFY2(dSeconds < 0.5 * VOIP_TIMES_SLOWER, qPrintable(QString::number(dSeconds)));
    }

private:
    /// The rule word by word; too slow for large reads.
    static QStringList plainRule(QString text)
    {
        QStringList lines;
        while (text.contains(QLatin1Char('\n'))) {
            const QString line = text.left(text.indexOf(QLatin1Char('\n')) + 1);
            text.remove(line);
            lines.append(line);
        }
        return lines;
    }

    static QString shown(const QString &text) { return QString(text).replace(QLatin1Char('\n'), QLatin1Char('|')); }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LineCutter, Guiless)
#include "tst_LineCutter.moc"
