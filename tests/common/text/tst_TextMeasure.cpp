#include "common/text/TextMeasure.h"

#include <QtTest>

class tst_TextMeasure : public QObject
{
    Q_OBJECT

private slots:
    void chineseTakesTwoColumns_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("columns");
        QTest::newRow("nothing") << QString() << 0;
        QTest::newRow("Latin") << "abc" << 3;
        QTest::newRow("Chinese") << "中文" << 4;
        QTest::newRow("mixed") << "a中b文c" << 7;
        QTest::newRow("below the first") << QString(QChar(0x4DFF)) << 1;
        QTest::newRow("the first") << QString(QChar(0x4E00)) << 2;
        QTest::newRow("the last") << QString(QChar(0x9FA5)) << 2;
        QTest::newRow("above the last") << QString(QChar(0x9FA6)) << 1;
        QTest::newRow("full-width punctuation") << "，。！" << 3;
        QTest::newRow("kana") << "かな" << 2;
        QTest::newRow("a surrogate pair is two units") << QString::fromUcs4(U"\U0001F600") << 2;
        QTest::newRow("a rare character is a pair as well") << QString::fromUcs4(U"\U00020000") << 2;
        QTest::newRow("a combining mark") << QString("e") + QChar(0x0301) << 2;
        QTest::newRow("a null character") << QString(QChar(0)) << 1;
    }
    void chineseTakesTwoColumns()
    {
        QFETCH(QString, text);
        QTEST(TextMeasure::getStrCounnt(text), "columns");
    }

    void theLimitsPosition_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("limit");
        QTest::addColumn<int>("position");
        QTest::newRow("reached exactly") << "abcdef" << 3 << 3;
        QTest::newRow("reached by the first") << "abc" << 1 << 1;
        QTest::newRow("reached by the last") << "abc" << 3 << 3;
        QTest::newRow("Chinese reached exactly") << "中文字" << 4 << 2;
        QTest::newRow("Chinese jumps over") << "中文字" << 3 << 1;
        QTest::newRow("the first jumps over") << "中文" << 1 << 0;
        QTest::newRow("mixed, exactly") << "a中b" << 3 << 2;
        QTest::newRow("mixed, over") << "a中b" << 2 << 1;
        QTest::newRow("the text ends first: its columns") << "中文" << 10 << 4;
        QTest::newRow("Latin ends first") << "abc" << 10 << 3;
        QTest::newRow("an empty text") << "" << 5 << 0;
        QTest::newRow("an empty text without limit") << "" << 0 << 0;
        QTest::newRow("no column, one is over") << "abc" << 0 << 0;
        QTest::newRow("no column, two are never met") << "中文" << 0 << 4;
        QTest::newRow("a negative limit is never met") << "abc" << -5 << 3;
        QTest::newRow("the greatest limit") << "abc" << 2147483647 << 3;
        QTest::newRow("the smallest limit") << "abc" << -2147483647 - 1 << 3;
        QTest::newRow("in a surrogate pair") << QString::fromUcs4(U"\U0001F600") << 1 << 1;
    }
    void theLimitsPosition()
    {
        QFETCH(QString, text);
        QFETCH(int, limit);
        QTEST(TextMeasure::getLimitPosition(text, limit), "position");
    }

    void theLongestBeginningThatFits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("limit");
        QTest::addColumn<QString>("beginning");
        QTest::newRow("fits") << "abc" << 10 << "abc";
        QTest::newRow("fits exactly") << "abc" << 3 << "abc";
        QTest::newRow("cut") << "abc" << 2 << "ab";
        QTest::newRow("Chinese fits exactly") << "中文" << 4 << "中文";
        QTest::newRow("Chinese is not halved") << "中文" << 3 << "中";
        QTest::newRow("not even the first") << "中文" << 1 << "";
        QTest::newRow("mixed") << "a中b文" << 4 << "a中b";
        QTest::newRow("no column") << "abc" << 0 << "";
        QTest::newRow("a negative limit") << "abc" << -1 << "";
        QTest::newRow("an empty text") << "" << 3 << "";
        QTest::newRow("a pair that fits") << QString::fromUcs4(U"\U0001F600") << 2 << QString::fromUcs4(U"\U0001F600");
        QTest::newRow("a pair is cut between its units")
            << QString::fromUcs4(U"\U0001F600") << 1 << QString(QChar(0xD83D));
    }
    void theLongestBeginningThatFits()
    {
        QFETCH(QString, text);
        QFETCH(int, limit);
        QTEST(TextMeasure::getStringByLen(text, limit), "beginning");
    }

    void theBeginningNeverExceedsItsLimitAndCannotBeLonger()
    {
        const QString strText = "a中文bc字d，e漢fg";
        for (int iLimit = 0; iLimit <= TextMeasure::getStrCounnt(strText) + 1; ++iLimit) {
            const QString strBeginning = TextMeasure::getStringByLen(strText, iLimit);
            QVERIFY(strText.startsWith(strBeginning));
            QVERIFY(TextMeasure::getStrCounnt(strBeginning) <= iLimit);
            if (strBeginning != strText) {
                QVERIFY(TextMeasure::getStrCounnt(strText.left(strBeginning.size() + 1)) > iLimit);
            }
        }
    }

    void longTextsAreMeasured()
    {
        const QString strText = QString("中a").repeated(5000000);
        QCOMPARE(TextMeasure::getStrCounnt(strText), 15000000);
        QCOMPARE(TextMeasure::getLimitPosition(strText, 14999999), 9999999);
        QCOMPARE(TextMeasure::getStringByLen(strText, 14999999).size(), 9999999);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TextMeasure, Guiless)
#include "tst_TextMeasure.moc"
