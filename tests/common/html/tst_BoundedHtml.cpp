#include "common/html/BoundedHtml.h"
#include "common/html/HtmlCost.h"

#include <QTest>

using namespace BoundedHtml;

namespace {

QString many(const char *pText, int iTimes)
{
    return QString(pText).repeated(iTimes);
}

} // namespace

class tst_BoundedHtml : public QObject
{
    Q_OBJECT

private slots:
    void onlyWhatCanChangeTheTextIsKept_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("kept");
        const auto row = [](const char *pName, const QString &strHtml, const QString &strKept) {
            QTest::newRow(pName) << strHtml << strKept;
        };
        row("empty", "", "");
        row("text", "a &lt; b\n", "a &lt; b\n");
        row("tags", "<P>a<Br/>b</p >", "<P>a<Br />b</p>");
        row("attributes", "<p id=a style=\"color:red\" class='b'>c", "<p>c");
        row("white space", "<p id=a style=\"white-space:pre\">", "<p style=\"white-space:pre\">");
        row("in disguise", "<p STYLE = 'white-\\73pace:pre'>", "<p STYLE = 'white-\\73pace:pre'>");
        row("behind an entity", "<p style=\"white-s&#112;ace:pre\">", "<p style=\"white-s&#112;ace:pre\">");
        row("an empty paragraph", "<p style=-qt-paragraph-type:empty>", "<p style=-qt-paragraph-type:empty>");
        row("spans of a cell", "<td width=1 colspan=2 rowspan=3>", "<td colspan=2 rowspan=3>");
        row("spans of nothing else", "<p colspan=2>", "<p>");
        row("the old editor's mark", "<meta name=\"qrichtext\" content=\"1\" />",
            "<meta name=\"qrichtext\" content=\"1\" />");
        row("a sheet of colours", "<style>p{color:red}</style>", "<style></style>");
        row("a sheet of white space", "<style>p{white-space:pre}</style><p id=a>",
            "<style>p{white-space:pre}</style><p>");
        row("one by class needs the classes", "<b class=a><style>.a{white-space:pre}</style>",
            "<b class=a><style>.a{white-space:pre}</style>");
        row("remarks", "a<!-- <b> -->b<!c>d<!- e --> f", "a<!>b<!>d<!> f");
        row("what closes nothing", "a</b>c<i></b></i>", "ac<i></i>");
        row("a quoted bracket", "<b a=\"><script>\">c", "<b>c");
        row("a blank before the name", "< b>c< /b>", "<b>c</b>");
        row("a name of entities", "<&#98;>a</b>", "<&#98;>a</b>");
        row("a last slash", "<b/", "<b/ >");
        row("no name", "<>a<=b/>", "<=>a<= />");
        row("an image in a line", "a<img src=b>c<br><img>", QString("a") + QChar(0xFFFC) + "c<br>" + QChar(0xFFFC));
        row("one behind a list", "<ul><li>a</ul><img src=b>", "<ul><li>a</ul><img>");
        row("fixed fonts", "<code>a<tt>b</code>c", "<var>a<var>b</var></var>c");
        row("a listing", "<pre id=a>b</pre>", "<center style=white-space:pre>b</center>");
        row("rules for listings", "<pre>a</pre><style>pre{white-space:normal}</style>",
            "<pre>a</pre><style>pre{white-space:normal}</style>");
        row("a fragment", "a<!--StartFragment-->b<!--EndFragment-->c", "<!>b");
    }
    void onlyWhatCanChangeTheTextIsKept()
    {
        QFETCH(QString, html);
        QTEST(lean(html), "kept");
        QVERIFY(!lean(html).isNull());
    }

    void longListsAreCut()
    {
        const int iItems = 2 * HtmlCost::cMostItems + 1;
        const QString strLean = lean("<ul>" + many("<li>a</li>", iItems) + "</ul>");
        QCOMPARE(strLean.count("<ul>"), 3);
        QCOMPARE(strLean.count("<li>"), iItems);
    }

    void whatTakesTooLongHasNoLeanForm_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<bool>("lean");
        const auto row = [](const char *pName, const QString &strHtml, bool bLean) {
            QTest::newRow(pName) << strHtml << bLean;
        };
        const int iDeepest = HtmlCost::cMostDepth - 1;
        row("deepest", many("<b>", iDeepest), true);
        row("one deeper", many("<b>", iDeepest + 1), false);
        row("closed ones do not add up", many("<b></b>", 10000), true);
        row("nor do empty ones", many("<b/>", 10000), true);
        row("nor those that end each other", many("<p>", 10000), true);
        row("closing another does not help", many("<b></i>", iDeepest + 1), false);
        row("in a script", "<script>" + many("<b>", iDeepest), false);
        row("in a title", "<title>" + many("<b>", iDeepest), false);
        row("in a sheet", "<style>" + many("<b>", iDeepest), false);
        row("in a comment", "<!--" + many("<b>", iDeepest + 1) + "-->", true);
        row("in an attribute", "<b a=\"" + many("<b>", iDeepest + 1) + "\">", true);
        row("in a fragment that begins in one", "<b a=\"<!--StartFragment-->" + many("<b>", iDeepest + 1), false);
        row("wide and long", "<table><tr>" + many("<td>", 1000) + many("<tr><td>", 1000), false);
        row("long", "<table>" + many("<tr><td>", 8000), true);
        row("a cell over many", many("<tr><td colspan=9999>", 100), false);
        row("in disguise", many("<tr><td colspan=&#57;999>", 100), false);
        row("rows over rows", "<table>" + many("<tr><td rowspan=9999 colspan=99>", 100), false);
        row("lines of a listing", "<pre>" + many("a\n", 50000), true);
        row("too many of them", "<pre>" + many("\n", 100000), false);
        row("paragraph separators", QString(100000, QChar(0x2029)), false);
        row("fixed fonts", many("<tt>a</tt>", 2000), true);
        row("fixed fonts by rules", "<style>b{white-space:pre}</style>" + many("<tt>a</tt>", 2000), false);
        row("images in one block", many("<b><img></b>", 3000), false);
        row("images in many", many("<p><b><img></b>", 3000), true);
        row("rules for many", "<style>" + many("*{white-space:pre}", 1000) + "</style>" + many("<b></b>", 1000), false);
        row("colours for many", "<style>" + many("*{color:red}", 1000) + "</style>" + many("<b></b>", 1000), true);
    }
    void whatTakesTooLongHasNoLeanForm()
    {
        QFETCH(QString, html);
        QFETCH(bool, lean);
        QCOMPARE(!BoundedHtml::lean(html).isNull(), lean);
        QCOMPARE(modest(html), lean ? BoundedHtml::lean(html) : bare(html));
        QVERIFY(!BoundedHtml::lean(bare(html)).isNull());
    }

    void bareHtmlIsTheText_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *pName, const QString &strHtml, const QString &strText) {
            QTest::newRow(pName) << strHtml << strText;
        };
        row("blocks and breaks", "<b>a<div class=\"x\">b</DIV>c<br>d<!-- e<p> -->f", "a|b|c|df");
        row("blocks in each other", "<p><div><p>a</p></div></p><p>b", "a|b");
        row("an image", "a<img src=\"g\">h", QString("a") + QChar(0xFFFC) + "h");
        row("style, script and title", "<style>i{}</style>a<title><b>c</title><script>d</b>", "a");
        row("white space", " a \n b<p> c <br> d", "a b|c |d");
        row("entities", "&lt;b&gt;&#65;&#10;&#32;c&#8233;d", "&lt;b&gt;&#65; c d");
        row("an entity at the end", "a&#10", "a ");
        row("pre", "a<pre>b\n\n  c</pre> d", "a|b||  c|d");
        row("what begins blocks", QString("a") + QChar(0x2029) + "b" + QChar(0xFDD0) + "c", "a b c");
        row("an open tag", "a <b", "a ");
    }
    void bareHtmlIsTheText()
    {
        QFETCH(QString, html);
        QFETCH(QString, text);
        QCOMPARE(bare(html).replace(QChar(QChar::LineSeparator), "|"), "<pre>" + text);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_BoundedHtml, Guiless)
#include "tst_BoundedHtml.moc"
