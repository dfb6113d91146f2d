#include "common/BoundedHtml.h"
#include "common/PlainText.h"

#include "RandomMessage.h"

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
            // Of scraps some hold more bare "<" than a message does.
            QString strText = iSeed % 2 ? message.document() : message.scraps().replace("<<", "");
            if (BoundedHtml::isModest(strText))
                QCOMPARE(plain(strText), plainStepByStep(strText));
            else
                QVERIFY(iSeed % 2 == 0);
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

    void longMessageReadsAsAShortOneDoes()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        QTextCharFormat red;
        red.setForeground(Qt::red);
        for (int i = 0; i < BoundedHtml::MOST_TAGS; ++i) {
            cursor.insertText(" a   b & <c> ");
            cursor.insertText(" d ", red);
            cursor.insertBlock();
        }
        const QString strHtml = document.toHtml();
        QVERIFY(!BoundedHtml::isModest(strHtml));
        QCOMPARE(plain(strHtml), plainStepByStep(strHtml));
        const QString strFragment = QString("<div>a <b>b</b></div><ul><li>c<li>d</ul>e<h1>f</h1>").repeated(1000);
        QVERIFY(!BoundedHtml::isModest(strFragment));
        QCOMPARE(plain(strFragment), plainStepByStep(strFragment));
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
        constexpr int MANY = 30000;
        row("nested", QString("<div>").repeated(MANY) + "x" + QString("</div>").repeated(MANY), "x");
        row("nested tables", QString("<table><tr><td>").repeated(MANY) + "x", "x");
        row("never closed", QString("<b><i>").repeated(MANY) + "x", "x");
        row("images", QString("<img src='a'/>").repeated(MANY), QString(MANY, QChar(0xFFFC)));
        row("style sheets", QString("<style>a{}</style>").repeated(MANY) + "x", "x");
        row("a long style sheet", "<style>" + QString("a{").repeated(MANY) + "</style>x", "x");
        row("a wide table", "<table><tr>" + QString("<td>").repeated(2000) + QString("<tr><td>").repeated(2000) + "x",
            "x");
        row("a cell over many", "<table><tr><td colspan=\"&#50;0000\">x</td></tr></table>", "x");
        row("bare angles", QString("<").repeated(MANY), "");
        row("image beginnings", QString("<img ").repeated(16000), QString(QChar(0xFFFC)));
        row("paragraphs stay", QString("<p>a<br>b</p>").repeated(MANY), QString("a\nb\n").repeated(MANY).chopped(1));
        row("entities stay", QString("<p>&lt;</p>").repeated(MANY), QString("<\n").repeated(MANY).chopped(1));
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
