#include "common/text/ChineseSpell.h"

#include <QTest>
#include <QTextCodec>

class tst_ChineseSpell : public QObject
{
    Q_OBJECT

private slots:
    void theTableCoversItsRangeWithUpperCaseLetters()
    {
        QCOMPARE(strChineseFirstPY.size(), 20902);
        QCOMPARE(strChineseFirstPY.size(), 0x9FA5 - 0x4E00 + 1);
        for (const QChar letter : strChineseFirstPY) {
            QVERIFY(letter >= 'A' && letter <= 'Z');
        }
    }

    void wellKnownSurnames()
    {
        const QString names = "李王张刘陈杨赵黄周吴徐孙胡朱高林何郭马罗梁宋郑谢韩唐冯于董萧程曹袁邓许傅沈彭吕苏"
                              "卢蒋蔡贾丁魏薛叶阎余潘杜戴夏钟汪田任姜范方石姚谭廖邹熊金陆郝孔白崔康毛邱秦江史"
                              "顾侯邵孟龙万段雷钱汤尹黎易常武乔贺赖龚文庞樊兰殷施陶洪安颜倪严牛温曾";
        const QString initials = "LWZLCYZHZWXSHZGLHGMLLSZXHTFYDXCCYDXFSPLS"
                                 "LJCJDWXYYYPDDXZWTRJFFSYTLZXJLHKBCKMQQJS"
                                 "GHSMLWDLQTYLYCWQHLGWPFLYSTHAYNYNWZ";
        QVERIFY(names.size() >= 100);
        QCOMPARE(ChineseSpell::toChineseSpell(names), initials);
    }

    void ofSeveralReadingsTheUsualOneCounts()
    {
        QCOMPARE(ChineseSpell::toChineseSpell("长厦茄咳蛤泊埔畜"), QString("CXQKGBPX"));
    }

    void commonCharactersStandInTheOrderOfTheirStandard()
    {
        // The first level of GB 2312 is sorted by readings: a letter begins at each of these and holds up to the next.
        const QString firsts = "啊芭擦搭蛾发噶哈击喀垃妈拿哦啪期然撒塌挖昔压匝";
        const QString letters = "ABCDEFGHJKLMNOPQRSTWXYZ";
        const QTextCodec *codec = QTextCodec::codecForName("GB18030");
        QVERIFY(codec);
        int letter = -1;
        int count = 0;
        for (int row = 0xB0; row <= 0xD7; ++row) {
            const int last = row == 0xD7 ? 0xF9 : 0xFE;
            for (int cell = 0xA1; cell <= last; ++cell, ++count) {
                const QString character = codec->toUnicode(QByteArray(1, char(row)) + char(cell));
                letter += firsts.midRef(letter + 1, 1) == character ? 1 : 0;
                QCOMPARE(character + ChineseSpell::toChineseSpell(character), character + letters.at(letter));
            }
        }
        QCOMPARE(letter, letters.size() - 1);
        QCOMPARE(count, 3755);
    }

    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("initials");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("letters, digits") << "aZ09"
                                         << "AZ09";
        QTest::newRow("character, blank, digit, letter") << "张 3a"
                                                         << "Z3A";
        QTest::newRow("first of the table") << QString(QChar(0x4E00)) << "Y";
        QTest::newRow("last of the table") << QString(QChar(0x9FA5)) << "Y";
        QTest::newRow("below the table") << QString(QChar(0x4DFF)) << QString();
        QTest::newRow("above the table") << QString(QChar(0x9FA6)) << QString();
        QTest::newRow("other alphabets") << "éßЖ" << QString();
        QTest::newRow("other digits") << "٣３²" << QString();
        QTest::newRow("punctuation, line feed") << "a-b\n，c"
                                                << "ABC";
        QTest::newRow("outside the plane") << QString::fromUcs4(U"\U00020000") + "b"
                                           << "B";
        QTest::newRow("without a reading") << "兙"
                                           << "S";
    }

    void texts()
    {
        QFETCH(QString, text);
        QTEST(ChineseSpell::toChineseSpell(text), "initials");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ChineseSpell, Guiless)
#include "tst_ChineseSpell.moc"
