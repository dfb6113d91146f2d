#include "common/text/TextCompare.h"

#include <QtTest>

#include <algorithm>

class tst_TextCompare : public QObject
{
    Q_OBJECT

private slots:
    void versionsCompareByNumbers_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("older");
        QTest::newRow("equal") << "1.2.3"
                               << "1.2.3" << false;
        QTest::newRow("older") << "1.2.3"
                               << "1.2.4" << true;
        QTest::newRow("newer") << "1.2.4"
                               << "1.2.3" << false;
        QTest::newRow("the first part decides") << "1.9.9"
                                                << "2.0.0" << true;
        QTest::newRow("a newer first part decides") << "2.0.0"
                                                    << "1.9.9" << false;
        QTest::newRow("9 before 10") << "1.9"
                                     << "1.10" << true;
        QTest::newRow("10 behind 9") << "1.10"
                                     << "1.9" << false;
        QTest::newRow("a beginning is not older") << "1.2"
                                                  << "1.2.3" << false;
        QTest::newRow("nor the longer one") << "1.2.3"
                                            << "1.2" << false;
        QTest::newRow("different before the end") << "1.1"
                                                  << "1.2.3" << true;
        QTest::newRow("leading zeros") << "1.02"
                                       << "1.2" << false;
        QTest::newRow("both empty") << ""
                                    << "" << false;
        QTest::newRow("empty counts 0") << ""
                                        << "1" << true;
        QTest::newRow("words count 0") << "a.b"
                                       << "0.1" << true;
        QTest::newRow("a part missing between") << "1..3"
                                                << "1.1.0" << true;
    }
    void versionsCompareByNumbers()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QTEST(TextCompare::compareVersion(a, b), "older");
    }

    void aJoinedListContainsItsParts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("separator");
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("contained");
        QTest::newRow("first") << "a,b,c"
                               << ","
                               << "a" << true;
        QTest::newRow("last") << "a,b,c"
                              << ","
                              << "c" << true;
        QTest::newRow("only one") << "abc"
                                  << ","
                                  << "abc" << true;
        QTest::newRow("not there") << "a,b,c"
                                   << ","
                                   << "d" << false;
        QTest::newRow("a piece of a part") << "abc,def"
                                           << ","
                                           << "ab" << false;
        QTest::newRow("another case") << "a,b"
                                      << ","
                                      << "A" << false;
        QTest::newRow("blanks around both") << "  a,b "
                                            << ","
                                            << " b " << true;
        QTest::newRow("a blank inside stays") << "a, b"
                                              << ","
                                              << "b" << false;
        QTest::newRow("an empty text") << ""
                                       << ","
                                       << "a" << false;
        QTest::newRow("a blank text") << "  "
                                      << ","
                                      << "a" << false;
        QTest::newRow("an empty target") << "a,,b"
                                         << ","
                                         << "" << false;
        QTest::newRow("a blank target") << "a, ,b"
                                        << ","
                                        << " " << false;
        QTest::newRow("a long separator") << "a#@#b"
                                          << "#@#"
                                          << "b" << true;
        QTest::newRow("no separator: the characters") << "abc"
                                                      << ""
                                                      << "b" << true;
        QTest::newRow("a separator as target") << "a,b"
                                               << ","
                                               << "," << false;
    }
    void aJoinedListContainsItsParts()
    {
        QFETCH(QString, text);
        QFETCH(QString, separator);
        QFETCH(QString, target);
        QTEST(TextCompare::combareString(text, separator, target), "contained");
    }

    void sortKeysOfCharacters_data()
    {
        QTest::addColumn<int>("unit");
        QTest::addColumn<int>("key");
        const auto row = [](const char *pName, int iUnit, int iKey) { QTest::newRow(pName) << iUnit << iKey; };
        row("the null character", 0, 0);
        row("blank", 0x20, 0x20);
        row("/", '/', '/');
        row("0", '0', 66);
        row("9", '9', 75);
        row(":", ':', 48);
        row("@", '@', 54);
        row("A", 'A', 77);
        row("Z", 'Z', 127);
        row("[", '[', 55);
        row("`", '`', 60);
        row("a", 'a', 76);
        row("z", 'z', 126);
        row("{", '{', 61);
        row("127", 127, 65);
        row("128", 128, 128);
        row("Chinese", 0x4E2D, 0x4E2D);
        row("the last", 0xFFFF, 0xFFFF);
    }
    void sortKeysOfCharacters()
    {
        QFETCH(int, unit);
        QFETCH(int, key);
        QCOMPARE(TextCompare::getSortText(QString(QChar(unit))), QString(QChar(key)));
    }

    void everyCharacterHasAKeyOfItsOwn()
    {
        QSet<QString> keys;
        for (int iUnit = 0; iUnit <= 0xFFFF; ++iUnit) {
            keys.insert(TextCompare::getSortText(QString(QChar(iUnit))));
        }
        QCOMPARE(keys.size(), 0x10000);
    }

    void keysSortPunctuationThenDigitsThenLettersSmallBeforeCapital()
    {
        QStringList listName = {"B", "中", "b", "_", "A", "a", "9", "0", "{", "~", "-", "Z", "z", "@"};
        std::sort(listName.begin(), listName.end(), [](const QString &strA, const QString &strB) {
            return TextCompare::getSortText(strA) < TextCompare::getSortText(strB);
        });
        QCOMPARE(listName, QStringList({"-", "@", "_", "{", "~", "0", "9", "a", "A", "b", "B", "z", "Z", "中"}));
    }

    void aTextIsMappedUnitByUnit()
    {
        QCOMPARE(TextCompare::getSortText("aA0"), QString("LMB"));
        QCOMPARE(TextCompare::getSortText(QString()), QString());
        const QString strPair = QString::fromUcs4(U"\U0001F600");
        QCOMPARE(TextCompare::getSortText(strPair), strPair);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TextCompare, Guiless)
#include "tst_TextCompare.moc"
