#include "common/text/DigitText.h"

#include <QtTest>

class tst_DigitText : public QObject
{
    Q_OBJECT

private slots:
    void aNumberIsFilledUpToFour_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0 << "0000";
        QTest::newRow("one character") << 9 << "0009";
        QTest::newRow("two") << 10 << "0010";
        QTest::newRow("the last of two") << 99 << "0099";
        QTest::newRow("three") << 100 << "0100";
        QTest::newRow("the last of three") << 999 << "0999";
        QTest::newRow("four") << 1000 << "1000";
        QTest::newRow("five stay") << 12345 << "12345";
        QTest::newRow("a sign counts") << -5 << "00-5";
        QTest::newRow("a sign and three digits") << -123 << "-123";
        QTest::newRow("the smallest") << -2147483647 - 1 << "-2147483648";
    }
    void aNumberIsFilledUpToFour()
    {
        QFETCH(int, number);
        QTEST(DigitText::addZroeSort(number), "text");
    }

    void telephoneNumbersLoseSymbolsAndDialOutPrefix_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("withoutSymbols");
        QTest::addColumn<QString>("withoutPrefix");
        QTest::newRow("plain") << "13800001111"
                               << "13800001111"
                               << "13800001111";
        QTest::newRow("all symbols") << "+86-138:0000.1111"
                                     << "8613800001111"
                                     << "8613800001111";
        QTest::newRow("symbols only") << "+-:."
                                      << ""
                                      << "";
        QTest::newRow("nothing") << ""
                                 << ""
                                 << "";
        QTest::newRow("nine") << "913800001111"
                              << "913800001111"
                              << "13800001111";
        QTest::newRow("nine zero") << "9013800001111"
                                   << "9013800001111"
                                   << "13800001111";
        QTest::newRow("a symbol in the prefix") << "9-0138"
                                                << "90138"
                                                << "138";
        QTest::newRow("the prefix behind a symbol") << "+9-138"
                                                    << "9138"
                                                    << "138";
        QTest::newRow("symbols go before the prefix is looked for") << "90-25"
                                                                    << "9025"
                                                                    << "25";
        QTest::newRow("only one prefix goes") << "9090"
                                              << "9090"
                                              << "90";
        QTest::newRow("two nines") << "99"
                                   << "99"
                                   << "9";
        QTest::newRow("nine alone") << "9"
                                    << "9"
                                    << "";
        QTest::newRow("nine zero alone") << "90"
                                         << "90"
                                         << "";
        QTest::newRow("zero nine stays") << "0912"
                                         << "0912"
                                         << "0912";
        QTest::newRow("other characters stay") << "(010) 62#"
                                               << "(010) 62#"
                                               << "(010) 62#";
    }
    void telephoneNumbersLoseSymbolsAndDialOutPrefix()
    {
        QFETCH(QString, number);
        QTEST(DigitText::removeSymbolPrefix(number), "withoutSymbols");
        QTEST(DigitText::removePrefix(number), "withoutPrefix");
    }

    void onlyZeroToNineAreDigits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("digits");
        QTest::newRow("nothing") << "" << true;
        QTest::newRow("all ten") << "0123456789" << true;
        QTest::newRow("below zero") << "1/2" << false;
        QTest::newRow("above nine") << "1:2" << false;
        QTest::newRow("a letter at the end") << "123a" << false;
        QTest::newRow("a sign") << "-1" << false;
        QTest::newRow("a blank") << " 1" << false;
        QTest::newRow("full-width") << "１２" << false;
        QTest::newRow("Arabic-Indic") << QString(QChar(0x0661)) << false;
        QTest::newRow("Chinese") << "一" << false;
        QTest::newRow("a null character") << QString("1") + QChar(0) << false;
        QTest::newRow("low byte like a digit") << QString(QChar(0x0131)) << false;
    }
    void onlyZeroToNineAreDigits()
    {
        QFETCH(QString, text);
        QTEST(DigitText::isDigitalString(text), "digits");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DigitText, Guiless)
#include "tst_DigitText.moc"
