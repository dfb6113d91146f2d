#include "ProcessorClock.h"

#include "common/html/PlainText.h"
#include "common/html/RandomMessage.h"
#include "fakes/SanitizedBuild.h"

#include <QTest>
#include <QTextCursor>
#include <QTextDocument>

namespace {

QString plain(QString strText)
{
    PlainText::convertToPlaintText(strText);
    return strText;
}

QString plainStepByStep(QString strText)
{
    strText.replace("  ", "&nbsp;&nbsp;");
    QTextDocument document;
    document.setHtml(strText);
    return document.toPlainText().replace("\n\n", "\n");
}

/// `strPiece` as often, with its number for each "%1".
QString numbered(const QString &strPiece, int iTimes)
{
    QString strText;
    for (int i = 0; i < iTimes; ++i) {
        strText += strPiece.arg(i);
    }
    return strText;
}

/// What a rich-text editor makes of so many paragraphs.
QString editorHtml(int iParagraphs)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextCharFormat red;
    red.setForeground(Qt::red);
    for (int i = 0; i < iParagraphs; ++i) {
        cursor.insertText(" a   b & <c> ");
        cursor.insertText(i % 7 ? " d " : "", red);
        cursor.insertBlock();
    }
    return document.toHtml();
}

} // namespace

class tst_PlainText : public QObject
{
    Q_OBJECT

private slots:
    void htmlReadsWithoutMarkup_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const QString &strHtml, const QString &strExpected) {
            QTest::newRow(pName) << strHtml << strExpected;
        };
        row("empty", "", "");
        row("text", "hello", "hello");
        row("formats", "<b>a</b><i>b</i><span style=\"color:red\">c</span>", "abc");
        row("paragraphs", "<p>a</p><p>b</p>", "a\nb");
        row("a break", "a<br/>b", "a\nb");
        row("two line feeds become one", "<p>a</p><p></p><p>b</p>", "a\nb");
        row("in one pass: four become two", "a<br/><br/><br/><br/>b", "a\n\nb");
        row("entities", "&lt;&amp;&gt;&quot;", "<&>\"");
        row("double spaces are kept", "a  b", "a  b");
        row("single line feeds are spaces", "a\nb", "a b");
        row("an image", "a<img src=\"x.png\"/>b", QString("a") + QChar(0xFFFC) + "b");
        row("a link shows its text", "<a href=\"http://a\">b</a>", "b");
        row("broken markup", "<p>a<b>b</p>c</i>", "ab\nc");
        row("nested spans", "<p><span>a<span>b</span></span>c</p>", "abc");
        row("style and script are none of it", "<style>p{}</style><title>t</title>a", "a");
    }
    void htmlReadsWithoutMarkup()
    {
        QFETCH(QString, html);
        QTEST(plain(html), "expected");
    }

    void isWhatOneStepAfterTheOtherGives()
    {
        for (quint32 iSeed = 0; iSeed < 1000; ++iSeed) {
            RandomMessage message(iSeed);
            const QString strText = iSeed % 2 ? message.document() : message.scraps();
            QCOMPARE(plain(strText), plainStepByStep(strText));
        }
    }

    void whatEditorsAndWebPagesWriteReadsAsItIs_data()
    {
        QTest::addColumn<QString>("html");
        QTest::newRow("a long style sheet")
            << "<style>" + QString("p.a { margin: 0px }\n").repeated(500) + "</style><pre>a\n  b</pre><p>c</p>";
        QTest::newRow("words in a cell's tag") << "<table><tr><td class=\"span6\">a</td><td>b</td></tr></table>c";
        QTest::newRow("an address in a cell's tag") << "<table><tr><td x=\"a&amp;b\">a</td></tr></table>c";
        QTest::newRow("a share of a row") << "<table><tr><td colspan=\"100%\">a</td></tr></table>c";
        QTest::newRow("comparisons") << "<p>" + QString("< b >").repeated(100) + "</p><pre>a\nb</pre>c";
    }
    void whatEditorsAndWebPagesWriteReadsAsItIs()
    {
        QFETCH(QString, html);
        QCOMPARE(plain(html), plainStepByStep(html));
    }

    void longMessageReadsAsAShortOneDoes_data()
    {
        QTest::addColumn<QString>("html");
        const auto row = [](const char *pName, const QString &strHtml) { QTest::newRow(pName) << strHtml; };
        row("a coloured listing", "<pre>" + numbered("line %1\n<b>x</b>", 2500) + "</pre>");
        row("one with its style", "<div style=\"white-space:pre\">" + numbered("  <i>int</i> a%1;\n", 3000) + "</div>");
        row("the editor's own", editorHtml(1200));
        row("more of it", editorHtml(5000));
        row("a table", "<table>" + numbered("<tr><td>a%1</td><td>b</td></tr>", 900) + "</table>");
        row("a table with a head", "x<table border=1><thead><tr><th>A</th><th>B</th></tr></thead><tbody>" +
                                       numbered("<tr><td id=c%1>%1</td><td width=\"10%\"><p>b</p></td></tr>\n", 2500) +
                                       "</tbody></table>y");
        row("a cell over a hundred", "<table><tr><td colspan=\"100\">x</td></tr><tr><td>y</td></tr></table>");
        row("an image behind a block", "<div>a</div><b>b<img><i>c</i></b>");
        row("cells over others", "<table>" +
                                     numbered("<tr><td colspan=2>%1</td></tr><tr><td rowspan=2>a</td><td>b</td></tr>"
                                              "<tr><td>c</td></tr>",
                                              700) +
                                     "</table>");
        row("tables", numbered("<table><tr><td>a%1</td></tr></table>", 1500));
        row("a list", "<ul>" + numbered("<li>a%1</li>\n", 2500) + "</ul>z");
        row("a list without ends", "x<ol type=i>" + numbered("<li><p>a%1</p>  ", 2000) + "</ol> z");
        row("lists in a list", "<ul>" + numbered("<li>a%1<ol><li>b</li><li>c</ol></li>", 1200) + "</ul>");
        row("definitions", "<dl>" + numbered("<dt>a%1<dd>b", 2500) + "</dl>");
        row("a chat export",
            numbered("<div class=\"message\" id=\"m%1\"><a href=\"#m%1\" name=\"n%1\">10:%1</a> <b>Li  Wei</b>: "
                     "<span style=\"color:#123;margin:%1px\">so &amp; so</span><br/>ok <img src=\"Emotion/%1.gif\"/> "
                     "<img src=b></div>\n",
                     1500));
        row("lines with smilies", numbered("line %1 <img src=\"%1.gif\"><img><br>\n", 500));
        row("a mail of a word processor",
            "<html><head><style>" + numbered("p.c%1 { margin:0px; color:red }\n", 300) + "</style></head><body>" +
                numbered("<p class=c%1><font face=\"Song\"><span lang=en>a%1</span></font></p>\n", 2500));
        row("a web page's white space", "<style>.code span { white-space: pre }</style>" +
                                            numbered("<p class=code>a <span>  b%1\n c</span>  d</p>", 1000));
        row("headings and rules", numbered("<h1>a</h1><hr/><blockquote>b%1</blockquote><center>c</center>", 1200));
        row("breaks", numbered("a%1<br>", 5000));
        row("a fragment of a clipboard",
            "<html>x<!--StartFragment-->" + numbered("<p>a%1</p>", 2500) + "<!--EndFragment-->y");
        row("comments", numbered("<p>a<!-- %1 --> b</p><!x>", 2500));
        row("blocks in lines", QString("<div>a <b>b</b></div><ul><li>c<li>d</ul>e<h1>f</h1>").repeated(1000));
    }
    void longMessageReadsAsAShortOneDoes()
    {
        QFETCH(QString, html);
        QCOMPARE(plain(html), plainStepByStep(html));
    }

    void noTextTakesMoreThanItsTime_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("repeated");
        const auto row = [](const char *pStart, const QString &strRepeated) {
            QTest::addRow("%s + %s", pStart, qPrintable(strRepeated)) << QString(pStart) << strRepeated;
        };
        for (const char *pStart : {"<script>", "<title>", "<style>", "<b a=\"><script>\">", "<head>", "<link>"}) {
            row(pStart, "<b>");
            row(pStart, "<b></b>");
            row(pStart, "<p>");
        }
        for (const char *pRepeated : {"<script>",     "<title>",
                                      "<style>",      "<tt>",
                                      "<div>",        "<td>",
                                      "<ul><li>",     "<li><p>",
                                      "<dl><dt>",     "<table><tr><td>",
                                      "<b><img></b>", "<",
                                      "< >",          "<b ",
                                      "<!-",          "&#10;",
                                      "</b>",         "<style>b{}</style><b>",
                                      "<x a='",       "<a name=x>y",
                                      "<blockquote>"}) {
            row("", pRepeated);
        }
        row("", QString(QChar(0x2029)));
        row("", QString(QChar(0xFDD0)));
        row("<pre>", "\n");
        row("<p style=\"", "\\0 ");
        row("<ul>", "<li>x</li>");
        row("<table>", "<tr><td>x</td></tr>");
        row("<table><tr><td colspan=99>", "<tr><td rowspan=99>");
        row("<style>b+.c{white-space:pre}</style>", "<b class=c>x</b>");
        row("<style>.c{white-space:pre}</style>", "<b id=x class='c c c c c c c'></b>");
        row("<b a=\"<!--StartFragment-->", "<b>");
    }
    void noTextTakesMoreThanItsTime()
    {
        constexpr int units = 1000000;
        constexpr double mostSeconds = 1.0 * cSanitizerFactor;
        QFETCH(QString, start);
        QFETCH(QString, repeated);
        const QString strText = start + repeated.repeated((units - start.size()) / repeated.size());
        const ProcessorClock clock;
        plain(strText);
        const double dSeconds = clock.seconds();
        QVERIFY2(dSeconds < mostSeconds, qPrintable(QString::number(dSeconds)));
    }

    void filesThatAMessageNamesAreNotRead()
    {
        QTemporaryDir folder;
        const QString strSheet = folder.filePath("sheet.css");
        QFile file(strSheet);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("b { white-space: pre }");
        file.close();
        const QString strHtml = "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"" + strSheet +
                                "\"/></head><body><b>a\nb</b></body></html>";
        QCOMPARE(plainStepByStep(strHtml), QString("a\nb"));
        QCOMPARE(plain(strHtml), QString("a b"));
    }

    void hostileHtmlGivesItsText_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const QString &strHtml, const QString &strExpected) {
            QTest::newRow(pName) << strHtml << strExpected;
        };
        constexpr int many = 30000;
        row("nested", QString("<div>").repeated(many) + "x" + QString("</div>").repeated(many), "x");
        row("nested tables", QString("<table><tr><td>").repeated(many) + "x", "x");
        row("never closed", QString("<b><i>").repeated(many) + "x", "x");
        row("images", QString("<img src='a'/>").repeated(many), QString(many, QChar(0xFFFC)));
        row("style sheets", QString("<style>a{}</style>").repeated(many) + "x", "x");
        row("a long style sheet", "<style>" + QString("a{").repeated(many) + "</style>x", "x");
        row("a wide table", "<table><tr>" + QString("<td>").repeated(2000) + QString("<tr><td>").repeated(2000) + "x",
            "x");
        row("cells over many", QString("<tr><td colspan=\"&#50;0000\">").repeated(100) + "x", "x");
        row("bare angles", QString("<").repeated(many), "");
        row("image beginnings", QString("<img ").repeated(16000), QString(QChar(0xFFFC)));
        row("paragraphs stay", QString("<p>a<br>b</p>").repeated(many), QString("a\nb\n").repeated(many).chopped(1));
        row("entities stay", QString("<p>&lt;</p>").repeated(many), QString("<\n").repeated(many).chopped(1));
    }
    void hostileHtmlGivesItsText()
    {
        QFETCH(QString, html);
        QTEST(plain(html), "expected");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PlainText, Widgets)
#include "tst_PlainText.moc"
