#include "common/html/HtmlLinks.h"
#include "common/html/HtmlText.h"
#include "common/html/MessageHtml.h"
#include "common/html/RandomMessage.h"
#include "common/html/WebLink.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SysUIData.h"

#include <QDomDocument>
#include <QTest>

namespace {

const QString cGreen = "#33af56";

QString inDocument(const QString &strParagraphs)
{
    return "<html><body>" + strParagraphs + "</body></html>";
}

QString styled(const QString &strStyle)
{
    return "style=\"" + strStyle + "\" class=\"UNITECLASS\"";
}

QString convertedStepByStep(const QString &strBody, bool bReplace)
{
    QString strResult = strBody;
    if (bReplace) {
        HtmlText::replaceSpace(strResult);
    }
    const int iFirst = strBody.indexOf("<p");
    const int iLast = strBody.lastIndexOf("</p>");
    if (iFirst >= 0 && iLast > iFirst) {
        strResult = strBody.mid(iFirst, iLast + 4 - iFirst);
    }
    QDomDocument document;
    if (!document.setContent(strBody)) {
        document.clear();
    }
    QString strStyle;
    QDomNode p = document.firstChildElement("html").firstChildElement("body").firstChildElement("p");
    for (; !p.isNull(); p = p.nextSiblingElement("p")) {
        for (QDomNode node = p.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (node.nodeName() != "span") {
                continue;
            }
            const QString strOwn = node.toElement().attribute("style");
            if (strStyle.isEmpty() && !strOwn.isEmpty()) {
                strStyle = styled(QString(strOwn + "color: @UINT_COLOR@;").replace("@UINT_COLOR@", cGreen));
            }
            const QDomNode first = node.firstChild();
            const QString strText = first.isElement() ? first.toElement().text() : first.nodeValue();
            QString strCopy = strText;
            HtmlText::replaceSpace(strCopy);
            if (strCopy != strText) {
                strResult.replace(strText, strCopy);
            }
        }
    }
    HtmlLinks::convertWebLink(strResult, strStyle);
    return strResult;
}

} // namespace

class tst_MessageHtml : public QObject
{
    Q_OBJECT

private slots:
    void bodyBecomesWhatTheViewShows_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const QString &strBody, const QString &strExpected) {
            QTest::newRow(pName) << strBody << strExpected;
        };
        const QString strBlue = styled("color:blue;color: " + cGreen + ";");
        row("empty", "", "");
        row("text", "hello", "hello");
        row("a link in a fragment has no style", "www.a", link("www.a"));
        row("text outside the paragraphs is dropped", "a<p>b</p>c", "<p>b</p>");
        row("from the first to the last", "a<p>b</p>c<p>d</p>e", "<p>b</p>c<p>d</p>");
        row("no end", "a<p>b", "a<p>b");
        row("no start", "a</p>b", "a</p>b");
        row("the end before the start", "a</p>b<p>c", "a</p>b<p>c");
        row("a span's style", inDocument("<p><span style=\"color:blue;\">www.a</span></p>"),
            "<p><span style=\"color:blue;\">" + link("www.a", strBlue) + "</span></p>");
        row("the first style holds for all",
            inDocument("<p><span>x</span><span style=\"color:blue;\">y</span></p><p><span "
                       "style=\"z\">www.a</span></p>"),
            "<p><span>x</span><span style=\"color:blue;\">y</span></p><p><span style=\"z\">" + link("www.a", strBlue) +
                "</span></p>");
        row("a style of a later paragraph",
            inDocument("<p>www.a</p>\n<div/><p><span style=\"color:blue;\">b</span></p>"),
            "<p>" + link("www.a", strBlue) + "</p>\n<div/><p><span style=\"color:blue;\">b</span></p>");
        row("a nested span has no say", inDocument("<p><span><span style=\"x\">www.a</span></span></p>"),
            "<p><span><span style=\"x\">" + link("www.a") + "</span></span></p>");
        row("nor has a span outside a paragraph", inDocument("<span style=\"x\">b</span><p>www.a</p>"),
            "<p>" + link("www.a") + "</p>");
        row("nor any other element", inDocument("<p><b style=\"x\">www.a</b></p>"),
            "<p><b style=\"x\">" + link("www.a") + "</b></p>");
        row("nor a fragment's span", "<p><span style=\"x\">www.a</span></p>",
            "<p><span style=\"x\">" + link("www.a") + "</span></p>");
        row("broken markup goes without the colour", inDocument("<p><span style=\"x\">www.a</p>"),
            "<p><span style=\"x\">" + link("www.a") + "</p>");
        row("the mark within the style", inDocument("<p><span style=\"@UINT_COLOR@;\">www.a</span></p>"),
            "<p><span style=\"@UINT_COLOR@;\">" + link("www.a", styled(cGreen + ";color: " + cGreen + ";")) +
                "</span></p>");
        row("a document as Qt writes it",
            "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" \"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
            "<html><head><meta name=\"qrichtext\" content=\"1\" /></head><body style=\" font-size:9pt;\">\n"
            "<p style=\" margin:0px;\"><span style=\" color:blue;\">www.a</span></p></body></html>",
            "<p style=\" margin:0px;\"><span style=\" color:blue;\">" +
                link("www.a", styled(" color:blue;color: " + cGreen + ";")) + "</span></p>");
        row("spaces are kept", inDocument("<p><span>a  b   c</span></p>"),
            "<p><span>a&nbsp;&nbsp;b&nbsp;&nbsp; c</span></p>");
        row("an entity beside a span's spaces", inDocument("<p><span>  x</span>www.a&nbsp;  x</p>"),
            "<p><span>&nbsp;&nbsp;x</span>" + link("www.a") + "&nbsp;&nbsp;&nbsp;x</p>");
        row("an entity beside the spaces of an element that a span begins with",
            inDocument("<p><span><b>  x</b></span>www.a&nbsp;  x</p>"),
            "<p><span><b>&nbsp;&nbsp;x</b></span>" + link("www.a") + "&nbsp;&nbsp;&nbsp;x</p>");
        row("spaces behind a span's first child", inDocument("<p><span>y<b>  x</b></span>www.a&nbsp;  x</p>"),
            "<p><span>y<b>&nbsp;&nbsp;x</b></span>" + link("www.a&nbsp;") + "&nbsp;&nbsp;x</p>");
    }
    void bodyBecomesWhatTheViewShows()
    {
        QFETCH(QString, body);
        QFETCH(QString, expected);
        QCOMPARE(MessageHtml::convertMessageBody(body, false), expected);
        QCOMPARE(MessageHtml::convertMessageBody(body, true), expected);
    }

    void keptSpacesAreLostWhereParagraphsAre()
    {
        // Before the address is looked for, a kept pair is taken for two spaces again: only an entity tells.
        QCOMPARE(MessageHtml::convertMessageBody("www.a&nbsp;  b", true), link("www.a") + "&nbsp;&nbsp;&nbsp;b");
        QCOMPARE(MessageHtml::convertMessageBody("www.a&nbsp;  b", false), link("www.a&nbsp;") + "&nbsp;&nbsp;b");
        QCOMPARE(MessageHtml::convertMessageBody("<p>www.a&nbsp;  b</p>", true),
                 "<p>" + link("www.a&nbsp;") + "&nbsp;&nbsp;b</p>");
    }

    void linkColourIsTheSkins_data()
    {
        QTest::addColumn<QString>("skin");
        QTest::addColumn<QString>("colour");
        QTest::newRow("green") << "ThemeGreen" << cGreen;
        QTest::newRow("grey") << "ThemeGrey" << cGreen;
        QTest::newRow("another") << "ThemeBlue"
                                 << "#123456";
        QTest::newRow("no name") << ""
                                 << "#123456";
    }
    void linkColourIsTheSkins()
    {
        QFETCH(QString, skin);
        QFETCH(QString, colour);
        SysUIData data;
        data.m_strSkinName = skin;
        data.m_strMainColor = "#123456";
        CommonData context;
        context.setSkinData(&data);
        const GivenContext given(context);
        QVERIFY(MessageHtml::convertMessageBody(inDocument("<p><span style=\"x;\">www.a</span></p>"), false)
                    .contains(link("www.a", styled("x;color: " + colour + ";"))));
    }

    void isWhatOneStepAfterTheOtherGives()
    {
        for (quint32 iSeed = 0; iSeed < 2000; ++iSeed) {
            RandomMessage message(iSeed);
            const QString strBody = iSeed % 4 ? message.document() : message.scraps();
            for (const bool bReplace : {false, true}) {
                QCOMPARE(MessageHtml::convertMessageBody(strBody, bReplace), convertedStepByStep(strBody, bReplace));
            }
        }
    }

    void bottomlessMessageGoesWithoutTheColour()
    {
        const QString strDeep =
            QString("<span style=\"x\">").repeated(30000) + "www.a" + QString("</span>").repeated(30000);
        QVERIFY(MessageHtml::convertMessageBody(inDocument("<p>" + strDeep + "</p>"), true).contains(link("www.a")));
    }

    void everySpanOfALongMessageCounts()
    {
        QString strSpans;
        for (int i = 0; i < 500; ++i) {
            strSpans += QString("<span>www.a%1&nbsp;</span><span>  %1</span>").arg(i);
        }
        strSpans += "<span>  z</span>www.a&nbsp;  z";
        QVERIFY(MessageHtml::convertMessageBody(inDocument("<p>" + strSpans + "</p>"), false)
                    .endsWith(link("www.a") + "&nbsp;&nbsp;&nbsp;z</p>"));
    }

    void tenMillionSpacesAreKept()
    {
        constexpr int spaces = 10000000;
        const QString strShown = MessageHtml::convertMessageBody(QString(spaces, ' '), true);
        QCOMPARE(strShown, QString("&nbsp;").repeated(spaces));
    }

    void thousandsOfSpansWithSpacesOfTheirOwn()
    {
        constexpr int spans = 20000;
        QString strSpans;
        for (int i = 0; i < spans; ++i) {
            strSpans += QString("<span style=\"x\">%1  www.a</span>").arg(i);
        }
        const QString strShown = MessageHtml::convertMessageBody(inDocument("<p>" + strSpans + "</p>"), true);
        QCOMPARE(strShown.count(link("www.a", styled("xcolor: " + cGreen + ";"))), spans);
        QCOMPARE(strShown.count("&nbsp;&nbsp;"), spans);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MessageHtml, Guiless)
#include "tst_MessageHtml.moc"
