#include "common/text/ShortText.h"

#include <QTest>

class tst_ShortText : public QObject
{
    Q_OBJECT

private slots:
    void tipIsBrokenAtItsWidth_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &text, int columns, const QString &expected) {
            QTest::newRow(name) << text << columns << expected;
        };
        row("empty", {}, 4, {});
        row("narrower", QStringLiteral("abc"), 4, QStringLiteral("abc"));
        row("exactly as wide has no line feed", QStringLiteral("abcd"), 4, QStringLiteral("abcd"));
        row("one more", QStringLiteral("abcde"), 4, QStringLiteral("abcd\ne"));
        row("two lines exactly", QStringLiteral("abcdefgh"), 4, QStringLiteral("abcd\nefgh"));
        row("three lines", QStringLiteral("abcdefghi"), 4, QStringLiteral("abcd\nefgh\ni"));
        row("wide ones", QStringLiteral("移出会议"), 4, QStringLiteral("移出\n会议"));
        row("a wide one crosses the end", QStringLiteral("a移出会"), 4, QStringLiteral("a移出\n会"));
        row("button's tip", QStringLiteral("移出会议"), 40, QStringLiteral("移出会议"));
        row("forty narrow ones", QString(41, QLatin1Char('x')), 40, QString(40, QLatin1Char('x')) + "\nx");
        row("a pair is not torn", QStringLiteral("abc\U0001F600d"), 4, QStringLiteral("abc\U0001F600\nd"));
        row("no width", QStringLiteral("abc"), 0, QStringLiteral("abc"));
        row("negative width", QStringLiteral("abc"), -3, QStringLiteral("abc"));
    }
    void tipIsBrokenAtItsWidth()
    {
        QFETCH(QString, text);
        QFETCH(int, columns);
        QTEST(ShortText::getShortString(text, columns), "expected");
    }

    void tipIsSafeAsRichText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("tags") << "<b>a</b>"
                              << "&lt;b&gt;a&lt;/b&gt;";
        QTest::newRow("ampersand") << "a&b"
                                   << "a&amp;b";
        QTest::newRow("quote") << "\"a\""
                               << "&quot;a&quot;";
        QTest::newRow("apostrophe stays") << "it's"
                                          << "it's";
    }
    void tipIsSafeAsRichText()
    {
        QFETCH(QString, text);
        QTEST(ShortText::getShortString(text, 40), "expected");
    }

    void tipIsBrokenBeforeItIsEscaped()
    {
        QCOMPARE(ShortText::getShortString(QStringLiteral("<<<<"), 2), QStringLiteral("&lt;&lt;\n&lt;&lt;"));
    }

    void veryLongTipKeepsEveryCharacter()
    {
        const QString strLines = ShortText::getShortString(QString(100000, QLatin1Char('x')), 40);
        QCOMPARE(strLines.count(QLatin1Char('x')), 100000);
        QCOMPARE(strLines.count(QLatin1Char('\n')), 2499);
    }

    void shortTextStaysBelowNineColumns_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("eight half-width stay whole") << "abcdefgh"
                                                     << "abcdefgh";
        QTest::newRow("nine half-width") << "abcdefghi"
                                         << "abcdefgh...";
        QTest::newRow("four Chinese stay whole") << QStringLiteral("移出会议") << QStringLiteral("移出会议");
        QTest::newRow("Chinese shows four") << QStringLiteral("移出会议室") << QStringLiteral("移出会议...");
        QTest::newRow("seven and a wide one") << QStringLiteral("abcdefg移") << "abcdefg...";
        QTest::newRow("a pair is not torn") << QStringLiteral("abcdefg\U0001F600") << "abcdefg...";
    }
    void shortTextStaysBelowNineColumns()
    {
        QFETCH(QString, text);
        QTEST(ShortText::getElidedText(text), "expected");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ShortText, Guiless)

#include "tst_ShortText.moc"
