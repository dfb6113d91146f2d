#include "common/ChineseSpell.h"

#include <QTest>

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
                              "顾侯邵孟龙万段雷钱汤尹黎易常武乔贺赖龚文庞樊兰殷施陶洪安颜倪严牛温";
        const QString initials = "LWZLCYZHZWXSHZGLHGMLLSZXHTFYDXCCYDXFSPLS"
                                 "LJCJDWXYYYPDDXZWTRJFFSYTLZXJLHKBCKMQQJS"
                                 "GHSMLWDLQTYLYCWQHLGWPFLYSTHAYNYNW";
        QVERIFY(names.size() >= 100);
        QCOMPARE(ChineseSpell::toChineseSpell(names), initials);
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

QTEST_GUILESS_MAIN(tst_ChineseSpell)
#include "tst_ChineseSpell.moc"
