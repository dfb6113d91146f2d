#include "common/text/ReplaceAll.h"

#include <QTest>

class tst_ReplaceAll : public QObject
{
    Q_OBJECT

private slots:
    void doesWhatTheTextsOwnReplaceDoes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *pName, const char *pText, const char *pBefore, const char *pAfter) {
            QTest::newRow(pName) << QString(pText) << QString(pBefore) << QString(pAfter);
        };
        row("empty text", "", "a", "b");
        row("none", "xyz", "a", "b");
        row("longer", "a-a-a", "a", "bcd");
        row("shorter", "abc-abc", "abc", "d");
        row("by nothing", "aba", "a", "");
        row("the whole", "abc", "abc", "d");
        row("without overlaps from the left", "aaaaa", "aa", "b");
        row("what comes in is not looked at", "aab", "ab", "b");
        row("by itself and more", "aa", "a", "aa");
        row("case counts", "Aa", "a", "b");
    }
    void doesWhatTheTextsOwnReplaceDoes()
    {
        QFETCH(QString, text);
        QFETCH(QString, before);
        QFETCH(QString, after);
        QString strReplaced = text;
        replaceAll(strReplaced, before, after);
        QCOMPARE(strReplaced, text.replace(before, after));
    }

    void nothingIsNotReplaced()
    {
        QString strText = "ab";
        replaceAll(strText, "", "c");
        QCOMPARE(strText, QString("ab"));
    }

    void tenMillionMatchesAreReplaced()
    {
        constexpr int matches = 10000000;
        QString strText = QString(matches, 'a');
        replaceAll(strText, "a", "&nbsp;");
        QCOMPARE(strText.size(), matches * 6);
        replaceAll(strText, "&nbsp;", "b");
        QCOMPARE(strText, QString(matches, 'b'));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ReplaceAll, Guiless)
#include "tst_ReplaceAll.moc"
