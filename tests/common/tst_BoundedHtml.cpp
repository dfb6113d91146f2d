#include "common/BoundedHtml.h"

#include <QTest>

using namespace BoundedHtml;

namespace {

QString many(const char *pText, int iTimes)
{
    return QString(pText).repeated(iTimes);
}

QString row(int iCells)
{
    return "<tr>" + many("<td>x</td>", iCells) + "</tr>";
}

} // namespace

class tst_BoundedHtml : public QObject
{
    Q_OBJECT

private slots:
    void modestHtmlStaysAsItIs_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<bool>("modest");
        const auto row = [](const char *pName, const QString &strHtml, bool bModest) {
            QTest::newRow(pName) << strHtml << bModest;
        };
        row("empty", "", true);
        row("text", "a", true);
        row("most tags", many("<br>", MOST_TAGS), true);
        row("a tag more", many("<br>", MOST_TAGS + 1), false);
        row("deepest", many("<b>", MOST_DEPTH), true);
        row("one deeper", many("<b>", MOST_DEPTH + 1), false);
        row("closed ones do not add up", many("<b></b>", MOST_DEPTH + 1), true);
        row("nor do empty ones", many("<b/>", MOST_DEPTH + 1), true);
        row("nor those that end each other", many("<p>", MOST_DEPTH + 1), true);
        row("closing another does not help", many("<b></i>", MOST_DEPTH + 1), false);
        row("most images", many("<img>", MOST_IMAGES), true);
        row("an image more", many("<IMG>", MOST_IMAGES + 1), false);
        row("longest style sheet", "<style>" + many("a", MOST_STYLE_UNITS) + "</style>", true);
        row("a longer one", "<style>" + many("a", MOST_STYLE_UNITS + 1) + "</style>", false);
        row("one without an end", "<STYLE>" + many("a", MOST_STYLE_UNITS + 1), false);
        row("most style sheets", many("<style></style>", MOST_STYLES), true);
        row("one more", many("<style></style>", MOST_STYLES + 1), false);
        row("a sheet of a word processor", "<style>" + many("p.a{margin:0px}", 2000) + "</style>" + many("<p>x", 200),
            true);
        row("a long one for many tags", "<style>" + many("p.a{margin:0px}", 2000) + "</style>" + many("<p>x", 400),
            false);
        row("most table places", ::row(256) + ::row(0).repeated(255), true);
        row("one more row", ::row(256) + ::row(0).repeated(256), false);
        row("a cell over 99", "<table><tr><td colspan=\"99\">x</td></tr></table>", true);
        row("a cell over 100", "<table><tr><td colspan=\"100\">x</td></tr></table>", false);
        row("a cell over as many rows", "<table><tr><th ROWSPAN = 100>x</td></tr></table>", false);
        row("a cell over a hundred per cent", "<table><tr><td colspan=\"100%\">x</td></tr></table>", true);
        row("another word with span", "<table><tr><td class=\"span600\">x</td></tr></table>", true);
        row("an address in a cell's tag", "<table><tr><td background=\"a?b=1&amp;c=2\">x</td></tr></table>", true);
        row("a name in disguise", "<table><tr><td &#99;olspan=999>x</td></tr></table>", false);
        row("blanks before the number", "<table><tr><td colspan=\" 999\">x</td></tr></table>", false);
        row("a span in disguise", "<table><tr><td colspan=\"&#57;9\">x</td></tr></table>", false);
        row("cells over others count as many", ("<tr>" + many("<td colspan=99>", 10)).repeated(8), true);
        row("too many of them", ("<tr>" + many("<td colspan=99>", 10)).repeated(9), false);
        row("most bare angles", many("< >", MOST_NAMELESS), true);
        row("one more bare angle", many("< >", MOST_NAMELESS + 1), false);
        row("comments are passed over", "<!--" + many("<b>", MOST_DEPTH + 1) + "-->", true);
        row("declarations have no name", many("<!x>", MOST_NAMELESS + 1), true);
        row("raw text is passed over", "<title>" + many("<b>", MOST_DEPTH + 1) + "</title>", true);
    }
    void modestHtmlStaysAsItIs()
    {
        QFETCH(QString, html);
        QFETCH(bool, modest);
        QCOMPARE(isModest(html), modest);
        QCOMPARE(BoundedHtml::modest(html) == html, modest);
    }

    void otherHtmlIsReducedToItsText()
    {
        const QString strDeep = many("<b>", MOST_DEPTH + 1);
        const QString strHtml =
            strDeep +
            "a<div class=\"x\">b</DIV>c<br>d<!-- e<p> -->f<img src=\"g\">h<style>i{}</style>j<style>k</style>";
        QCOMPARE(modest(strHtml), QString("<style>i{}</style>a<p>b</p>c<br/>df") + QChar(0xFFFC) + "hj");
        const QString strLong = "<style>" + many("a", MOST_KEPT_STYLE_UNITS + 1) + "</style>";
        QCOMPARE(modest(strLong + strDeep + "b"), QString("b"));
        QCOMPARE(modest(strDeep + "&lt;b&gt; <b"), QString("&lt;b&gt; "));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_BoundedHtml, Guiless)
#include "tst_BoundedHtml.moc"
