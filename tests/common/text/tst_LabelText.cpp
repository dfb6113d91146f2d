#include "common/text/LabelText.h"

#include <QFontMetrics>
#include <QLabel>
#include <QTest>

namespace {

// Every character of the text has the width of an "m".
QFont evenFont()
{
    QFont font("DejaVu Sans Mono");
    font.setPixelSize(14);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

} // namespace

class tst_LabelText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QFontMetrics metrics(evenFont());
        m_iEm = metrics.horizontalAdvance(QLatin1Char('m'));
        QVERIFY(m_iEm > 2);
        QCOMPARE(metrics.horizontalAdvance("iiii"), 4 * m_iEm);
    }

    void textIsWrappedBeforeTheCharacterThatOverflows_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLines");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const QString &strText, int iMaxLines, const QString &strExpected) {
            QTest::newRow(pName) << strText << iMaxLines << strExpected;
        };
        row("empty", "", 2, "");
        row("fits", "abcd", 1, "abcd");
        row("one too many", "abcde", 0, "abcd\ne");
        row("three lines", "abcdefghij", 0, "abcd\nefgh\nij");
        row("a line feed starts anew", "ab\ncdefg", 0, "ab\ncdef\ng");
        row("a line feed at the end of a full line", "abcd\nef", 0, "abcd\nef");
        row("empty lines", "a\n\nb", 0, "a\n\nb");
        row("the limit cuts one character before", "abcde", 1, "abc...");
        row("the second line cut", "abcdefghi", 2, "abcd\nefg...");
        row("below the limit", "abcdefgh", 2, "abcd\nefgh");
        row("a line feed counts for the limit", "ab\ncd", 1, "a...");
        row("the last line feed as well", "ab\n", 1, "a...");
        row("nothing to cut", "a\n\n", 2, "a...");
        row("no limit below zero", "abcde", -1, "abcd\ne");
    }
    void textIsWrappedBeforeTheCharacterThatOverflows()
    {
        QFETCH(QString, text);
        QFETCH(int, maxLines);
        QTEST(LabelText::getLineWrapText(4 * m_iEm, text, QFontMetrics(evenFont()), maxLines), "expected");
    }

    void textThatCannotBeWrappedStays()
    {
        const QFontMetrics metrics(evenFont());
        QCOMPARE(LabelText::getLineWrapText(m_iEm - 1, "abc\nd", metrics, 1), QString("abc\nd"));
        QCOMPARE(LabelText::getLineWrapText(-5, "abc", metrics, 1), QString("abc"));
        QCOMPARE(LabelText::getLineWrapText(m_iEm, "abc", metrics, 0), QString("a\nb\nc"));
    }

    void characterWiderThanALineStandsAlone()
    {
        const QFontMetrics metrics(evenFont());
        const QString strWide(QChar(0x4E2D));
        QVERIFY(metrics.horizontalAdvance(strWide) > m_iEm);
        QCOMPARE(LabelText::getLineWrapText(m_iEm, "a" + strWide + "b", metrics, 0), "a\n" + strWide + "\nb");
    }

    void pairIsNotTorn()
    {
        const QFontMetrics metrics(evenFont());
        const QString strPair = QString::fromUtf8("\U0001F600");
        const int iWidth = metrics.horizontalAdvance(strPair) + m_iEm;
        QCOMPARE(LabelText::getLineWrapText(iWidth, "a" + strPair + strPair, metrics, 0),
                 "a" + strPair + "\n" + strPair);
        QCOMPARE(LabelText::getLineWrapText(iWidth, "a" + strPair + strPair, metrics, 1), QString("a..."));
    }

    void paragraphsGetTheirHeight_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("paragraphs");
        QTest::addColumn<int>("gap");
        QTest::newRow("one") << "<p style=\"margin:6px\">a</p>" << 1 << 6;
        QTest::newRow("three") << "<p style=\"margin:6px\">a</p><p>b</p><p>c</p>" << 3 << 6;
        QTest::newRow("the first margin counts")
            << "<p style=\"margin: 6px\">a</p><p style=\"margin:9px\">b</p>" << 2 << 6;
        QTest::newRow("no margin") << "<p>a</p><p>b</p>" << 2 << 0;
        QTest::newRow("no px") << "<p style=\"margin:6\">a</p><p>b</p>" << 2 << 0;
        QTest::newRow("no number") << "<p style=\"margin:xpx\">a</p><p>b</p>" << 2 << 0;
    }
    void paragraphsGetTheirHeight()
    {
        QFETCH(QString, text);
        QFETCH(int, paragraphs);
        QFETCH(int, gap);
        QLabel label;
        label.setFont(evenFont());
        QString strOut;
        QVERIFY(LabelText::stringFormatWithControl(text, &label, strOut, 1));
        QCOMPARE(strOut, text);
        QCOMPARE(label.minimumHeight(), (paragraphs - 1) * gap + paragraphs * label.fontMetrics().height());
        QCOMPARE(label.maximumHeight(), label.minimumHeight());
    }

    void heightStaysWithinWhatAWidgetCanHave()
    {
        QLabel label;
        QString strOut;
        QVERIFY(LabelText::stringFormatWithControl("<p style=\"margin:2000000000px\">" + QString("</p>").repeated(9),
                                                   &label, strOut, 0));
        QCOMPARE(label.maximumHeight(), QWIDGETSIZE_MAX);
        QVERIFY(LabelText::stringFormatWithControl("<p style=\"margin:2000000000px\">", &label, strOut, 0));
        QCOMPARE(label.maximumHeight(), 0);
    }

    void textIsFittedIntoItsLabel_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLines");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("broken");
        const auto row = [](const char *pName, const char *pText, int iMaxLines, const char *pExpected, bool bBroken) {
            QTest::newRow(pName) << QString(pText) << iMaxLines << QString(pExpected) << bBroken;
        };
        // The label takes six characters, a line of a broken text five.
        row("empty", "", 1, "", false);
        row("fits exactly", "abcdef", 1, "abcdef", false);
        row("line feeds are taken out", "ab\nc\nd", 1, "abcd", false);
        row("one too many", "abcdefg", 0, "abcde\nfg", true);
        row("line feeds go first", "abcde\nfg", 0, "abcde\nfg", true);
        row("three lines", "abcdefghijkl", 0, "abcde\nfghij\nkl", true);
        row("one line at most", "abcdefg", 1, "abc...", true);
        row("two lines at most", "abcdefghijkl", 2, "abcde\nfgh...", true);
        row("the limit reached is the limit", "abcdefghij", 2, "abcde\nfgh...", true);
        row("a short last line", "abcdef g", 2, "abcde\nf...", true);
        row("below the limit", "abcdefg", 3, "abcde\nfg", true);
        row("no limit below zero", "abcdefg", -1, "abcde\nfg", true);
    }
    void textIsFittedIntoItsLabel()
    {
        QFETCH(QString, text);
        QFETCH(int, maxLines);
        QLabel label;
        label.setFont(evenFont());
        label.resize(6 * m_iEm, 10);
        QString strOut;
        QTEST(LabelText::stringFormatWithControl(text, &label, strOut, maxLines), "broken");
        QTEST(strOut, "expected");
        const int iLines = strOut.count('\n') + 1;
        QCOMPARE(label.minimumHeight(), iLines * label.fontMetrics().height() + 2);
        QCOMPARE(label.maximumHeight(), label.minimumHeight());
    }

    void linesAreFivePixelsNarrowerThanTheLabel()
    {
        QLabel label;
        label.setFont(evenFont());
        QString strOut;
        label.resize(4 * m_iEm + 5, 10);
        QVERIFY(LabelText::stringFormatWithControl("abcdefg", &label, strOut, 0));
        QCOMPARE(strOut, QString("abcd\nefg"));
        label.resize(4 * m_iEm + 4, 10);
        QVERIFY(LabelText::stringFormatWithControl("abcdefg", &label, strOut, 0));
        QCOMPARE(strOut, QString("abc\ndef\ng"));
    }

    void labelWithoutWidthGetsACharacterALine()
    {
        QLabel label;
        label.resize(0, 0);
        QString strOut;
        QVERIFY(LabelText::stringFormatWithControl(QString::fromUtf8("a\U0001F600b"), &label, strOut, 0));
        QCOMPARE(strOut, QString::fromUtf8("a\n\U0001F600\nb"));
    }

    void textWithoutALabelStays()
    {
        QString strOut;
        QVERIFY(!LabelText::stringFormatWithControl("a\nb", nullptr, strOut, 1));
        QCOMPARE(strOut, QString("a\nb"));
    }

    void longTextKeepsEveryCharacter()
    {
        constexpr int length = 200000;
        QLabel label;
        label.setFont(evenFont());
        label.resize(50 * m_iEm + 5, 10);
        QString strOut;
        QVERIFY(LabelText::stringFormatWithControl(QString(length, 'x'), &label, strOut, 0));
        QCOMPARE(strOut.count('x'), length);
        QCOMPARE(strOut.count('\n'), length / 50 - 1);
        const QString strWrapped =
            LabelText::getLineWrapText(50 * m_iEm, QString(length, 'x'), QFontMetrics(evenFont()), 0);
        QCOMPARE(strWrapped, strOut);
    }

    void textWiderThanANumberOfPixelsIsBroken()
    {
        // Its width has more than 31 bits in the 64ths of a pixel that fonts reckon with, and would read as negative.
        const QString strText(40000000 / m_iEm, 'x');
        QLabel label;
        label.setFont(evenFont());
        label.resize(6 * m_iEm, 10);
        QString strOut;
        QVERIFY(LabelText::stringFormatWithControl(strText, &label, strOut, 1));
        QCOMPARE(strOut, QString("xxx..."));
    }

private:
    int m_iEm = 0;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LabelText, Widgets)
#include "tst_LabelText.moc"
