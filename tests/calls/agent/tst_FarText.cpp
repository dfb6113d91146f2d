#include "calls/agent/FarText.h"

#include <QtTest>

class tst_FarText : public QObject
{
    Q_OBJECT

private slots:
    void refusalIsToldInWords()
    {
        QCOMPARE(whyRefused(488, "Not Acceptable Here"), QStringLiteral("no common encryption or codec (488)"));
        QCOMPARE(whyRefused(415, "Unsupported\r\nMedia"), QStringLiteral("Unsupported  Media (415)"));
        QCOMPARE(whyRefused(503, ""), QStringLiteral(" (503)"));
        QCOMPARE(whyRefused(500, std::string(1000, 'x')).size(), cRemarkLimit + int(qstrlen(" (500)")));
        // What stands for a place in the text is text too.
        QCOMPARE(whyRefused(500, "%1 %2 %3"), QStringLiteral("%1 %2 %3 (500)"));
    }

    void textIsBoundedAndOnOneLine()
    {
        QCOMPARE(farText("a\r\nb\tc\x01", 10), QStringLiteral("a  b c "));
        QCOMPARE(farText("\xE6\x9D\x8E\xE9\x9B\xB7", 1), QStringLiteral("李"));
        QCOMPARE(farText(std::string(1000000, 'x'), 5), QStringLiteral("xxxxx"));
        QCOMPARE(farText("\xFF", 5), QString(QChar(QChar::ReplacementCharacter)));
        QCOMPARE(farText("a\xE2\x80\xA8"
                         "b",
                         5),
                 QStringLiteral("a b"));
        // Turns round what follows.
        QCOMPARE(farText("a\xE2\x80\xAEtxt.exe", 10), QStringLiteral("a txt.exe"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FarText, Appless)
#include "tst_FarText.moc"
