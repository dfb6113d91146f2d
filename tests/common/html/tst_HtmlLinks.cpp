#include "common/html/HtmlLinks.h"
#include "common/html/RandomMessage.h"
#include "common/html/WebLink.h"

#include <QRegExp>
#include <QTest>

namespace {

QString converted(QString strText, const QString &strStyle = {})
{
    HtmlLinks::convertWebLink(strText, strStyle);
    return strText;
}

// One match after the other, each cut from a copy.
QString convertedStepByStep(const QString &strText, const QString &strStyle)
{
    QString strCopy = strText;
    strCopy.replace("&nbsp;&nbsp;", "  ");
    QString strOutput;
    QRegExp pattern("((http|https|ftp)://|(www)\\.)(\\w+)(\\.?[\\.a-z0-9/:?%&=\\-_+#;]*)", Qt::CaseInsensitive);
    while (pattern.indexIn(strCopy) >= 0) {
        const QString strMatch = pattern.cap(0);
        const int iFirst = strCopy.indexOf(strMatch);
        QString strLink = "<a onfocus='this.blur()' href='web://urllink//@URL@' target='_blank' @STYLE@>@URL@</a>";
        strLink.replace("@URL@", strMatch).replace("@STYLE@", strStyle);
        strOutput += strCopy.left(iFirst) + strLink;
        strCopy.remove(0, iFirst + strMatch.size());
    }
    strOutput += strCopy;
    return strOutput.replace("  ", "&nbsp;&nbsp;");
}

} // namespace

class tst_HtmlLinks : public QObject
{
    Q_OBJECT

private slots:
    void addressesBecomeLinks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *pName, const QString &strText, const QString &strExpected) {
            QTest::newRow(pName) << strText << strExpected;
        };
        row("empty", "", "");
        row("no address", "hello", "hello");
        row("www shows and leads to the same", "www.a.com", link("www.a.com"));
        row("http", "http://a.com", link("http://a.com"));
        row("https", "https://a.com", link("https://a.com"));
        row("ftp", "ftp://a.com", link("ftp://a.com"));
        row("any case", "WwW.A.Com", link("WwW.A.Com"));
        row("text around", "see http://a.com now", "see " + link("http://a.com") + " now");
        row("two equal ones", "www.a.com www.a.com", link("www.a.com") + " " + link("www.a.com"));
        row("several", "www.a http://b, ftp://c", link("www.a") + " " + link("http://b") + ", " + link("ftp://c"));
        row("all that an address may hold", "http://a.b/c:d?e%f&g=h-i_j+k#l;m!",
            link("http://a.b/c:d?e%f&g=h-i_j+k#l;m") + "!");
        row("Chinese host", "www.中文.com。", link("www.中文.com") + "。");
        row("Chinese ends a path", "www.a.com/中", link("www.a.com/") + "中");
        row("no host", "www. http:// x", "www. http:// x");
        row("www without a dot", "wwwx.a wwwab", "wwwx.a wwwab");
        row("another scheme", "mailto:a@b file:///c", "mailto:a@b file:///c");
        row("within a word", "xwww.a", "x" + link("www.a"));
        row("an entity belongs to it", "www.a&amp;b=c d", link("www.a&amp;b=c") + " d");
        row("one nbsp belongs to it", "www.a&nbsp;b", link("www.a&nbsp;b"));
        row("two nbsp end it", "www.a&nbsp;&nbsp;b", link("www.a") + "&nbsp;&nbsp;b");
        row("an address to the next angle", "<p>www.a</p>", "<p>" + link("www.a") + "</p>");
        row("in an attribute", "<a href=\"http://a\">b</a>", "<a href=\"" + link("http://a") + "\">b</a>");
        row("spaces are kept", "a   b  ", "a&nbsp;&nbsp; b&nbsp;&nbsp;");
    }
    void addressesBecomeLinks()
    {
        QFETCH(QString, text);
        QTEST(converted(text), "expected");
    }

    void styleStandsInEachLink()
    {
        QCOMPARE(converted("www.a www.b", "style=\"x\""),
                 link("www.a", "style=\"x\"") + " " + link("www.b", "style=\"x\""));
        QCOMPARE(converted("www.a", "s  t"), link("www.a", "s&nbsp;&nbsp;t"));
        QCOMPARE(converted("www.a", "@URL@"), link("www.a", "@URL@"));
        QCOMPARE(converted("", "style=\"x\""), QString());
    }

    void isWhatOneStepAfterTheOtherGives()
    {
        for (quint32 iSeed = 0; iSeed < 2000; ++iSeed) {
            RandomMessage message(iSeed);
            const QString strText = iSeed % 2 ? message.document() : message.scraps();
            QCOMPARE(converted(strText, "style=\"x\""), convertedStepByStep(strText, "style=\"x\""));
        }
    }

    void tensOfThousandsOfLinksAreConverted()
    {
        constexpr int links = 100000;
        const QString strText = converted(QString("http://a.bc ").repeated(links));
        QCOMPARE(strText.count("</a>"), links);
    }

    void oneAddressOfAMillionCharacters()
    {
        const QString strUrl = "www." + QString("a.").repeated(500000);
        QCOMPARE(converted(strUrl), link(strUrl));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HtmlLinks, Guiless)
#include "tst_HtmlLinks.moc"
