#include "common/html/HtmlText.h"

#include <QTest>

namespace {

using InPlace = void (*)(QString &);

QString changed(InPlace pFunction, QString strText)
{
    pFunction(strText);
    return strText;
}

} // namespace

class tst_HtmlText : public QObject
{
    Q_OBJECT

private slots:
    void eachTwoSpacesAreKept_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const char *pText, const char *pExpected) {
            QTest::newRow(pName) << QString(pText) << QString(pExpected);
        };
        row("empty", "", "");
        row("a single space stays", "a b", "a b");
        row("two", "a  b", "a&nbsp;&nbsp;b");
        row("three leave one", "a   b", "a&nbsp;&nbsp; b");
        row("four", "a    b", "a&nbsp;&nbsp;&nbsp;&nbsp;b");
        row("several places", "  a b  ", "&nbsp;&nbsp;a b&nbsp;&nbsp;");
        row("tabs are none", "a\t\tb", "a\t\tb");
    }
    void eachTwoSpacesAreKept()
    {
        QFETCH(QString, text);
        QTEST(changed(HtmlText::replaceSpace, text), "expected");
    }

    void lineFeedsBecomeBreaks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("breaks");
        QTest::addColumn<QString>("paragraphs");
        const auto row = [](const char *pName, const char *pText, const char *pBreaks, const char *pParagraphs) {
            QTest::newRow(pName) << QString(pText) << QString(pBreaks) << QString(pParagraphs);
        };
        row("an empty text is one empty paragraph", "", "", "<p><br/></p>\n");
        row("one line", "a", "a", "<p>a</p>\n");
        row("two lines", "a\nb", "a<br/>b", "<p>a</p>\n<p>b</p>\n");
        row("an empty line between", "a\n\nb", "a<br/><br/>b", "<p>a</p>\n<p><br/></p>\n<p>b</p>\n");
        row("a line feed alone", "\n", "<br/>", "<p><br/></p>\n<p><br/></p>\n");
        row("a place mark is text", "%1\n%2", "%1<br/>%2", "<p>%1</p>\n<p>%2</p>\n");
    }
    void lineFeedsBecomeBreaks()
    {
        QFETCH(QString, text);
        QTEST(changed(HtmlText::replaceLineBreak, text), "breaks");
        QTEST(changed(HtmlText::replaceLineBreakToParagraph, text), "paragraphs");
    }

    void threeEntitiesAreUndone_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const char *pText, const char *pExpected) {
            QTest::newRow(pName) << QString(pText) << QString(pExpected);
        };
        row("empty", "", "");
        row("all three", "&lt;a b=&quot;c&quot;&gt;", "<a b=\"c\">");
        row("others stay", "&amp;&nbsp;&apos;", "&amp;&nbsp;&apos;");
        row("once only", "&amp;lt;", "&amp;lt;");
        row("what one leaves the next may take", "&&lt;gt;", "&<gt;");
        row("upper case stays", "&LT;", "&LT;");
    }
    void threeEntitiesAreUndone()
    {
        QFETCH(QString, text);
        QTEST(HtmlText::regainHtmlText(text), "expected");
    }

    void onlyTheOpeningAngleIsMadeSafe()
    {
        QCOMPARE(HtmlText::getDealWithHtmlText("<a> & <b>"), QString("&lt;a> & &lt;b>"));
        QCOMPARE(HtmlText::getDealWithHtmlText("&lt;"), QString("&lt;"));
        QCOMPARE(HtmlText::getDealWithHtmlText(""), QString());
    }

    void addressesAreEscaped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const char *pText, const char *pExpected) {
            QTest::newRow(pName) << QString(pText) << QString(pExpected);
        };
        row("empty", "", "");
        row("all eight", "%&+ /?#=", "%25%26%2B%20%2F%3F%23%3D");
        row("an escaped text is escaped again", "%20", "%2520");
        row("others stay", "a-b_c.d:e;f@g", "a-b_c.d:e;f@g");
        row("all occurrences", "a=b&c=d", "a%3Db%26c%3Dd");
    }
    void addressesAreEscaped()
    {
        QFETCH(QString, text);
        QTEST(changed(HtmlText::escapeURLChar, text), "expected");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HtmlText, Guiless)
#include "tst_HtmlText.moc"
