// The edit field's limit: what typing, pasting and the limit itself leave of a text.

#include "widgets/LineEditTest.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

const QString cEmoji = QString::fromUcs4(U"\U0001F600", 1);

QString chinese(int iCount)
{
    return QString(iCount, QChar(0x4E2D));
}

QString latin(int iCount)
{
    return QString(iCount, QLatin1Char('x'));
}

void putOnClipboard(const QString &strText)
{
    QGuiApplication::clipboard()->setText(strText);
}

} // namespace

class tst_LineEditLimit : public LineEditTest
{
    Q_OBJECT

private slots:
    void limitTakesWhatFitsWhileTyping_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        QTest::newRow("fourteen Latin characters fit") << latin(14) << latin(14);
        QTest::newRow("the fifteenth is dropped") << latin(14) + QLatin1Char('y') << latin(14);
        QTest::newRow("seven Chinese characters fit") << chinese(7) << chinese(7);
        QTest::newRow("the eighth is dropped") << chinese(8) << chinese(7);
        QTest::newRow("a Chinese one does not fit into one column") << latin(13) + chinese(1) << latin(13);
        QTest::newRow("a Latin one still does")
            << latin(13) + chinese(1) + QLatin1Char('y') << latin(13) + QLatin1Char('y');
        QTest::newRow("first of the wide range") << QString(8, QChar(0x4E00)) << QString(7, QChar(0x4E00));
        QTest::newRow("last of the wide range") << QString(8, QChar(0x9FA5)) << QString(7, QChar(0x9FA5));
        QTest::newRow("before the wide range") << QString(15, QChar(0x4DFF)) << QString(14, QChar(0x4DFF));
        QTest::newRow("behind the wide range") << QString(15, QChar(0x9FA6)) << QString(14, QChar(0x9FA6));
        QTest::newRow("a pair takes two columns") << latin(12) + cEmoji << latin(12) + cEmoji;
        QTest::newRow("a pair is dropped whole") << latin(13) + cEmoji << latin(13);
    }

    void limitTakesWhatFitsWhileTyping()
    {
        QFETCH(QString, typed);
        show();
        m_pEdit->setMaxLength(14);
        for (int i = 0; i < typed.size(); ++i) {
            // One key event each, as an input method sends them: a pair comes in one.
            QString key(typed.at(i));
            if (typed.at(i).isHighSurrogate()) {
                key += typed.at(++i);
            }
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, key);
            QCoreApplication::sendEvent(inner(), &press);
        }
        QTEST(m_pEdit->text(), "kept");
        QCOMPARE(m_pEdit->cursorPosition(), m_pEdit->text().size());
    }

    void pasteIsCut_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("kept");
        QTest::newRow("fits") << QString() << QStringLiteral("abcdefghijklmn") << QStringLiteral("abcdefghijklmn");
        QTest::newRow("one too many goes at the old position")
            << QString() << QStringLiteral("abcdefghijklmno") << QStringLiteral("bcdefghijklmno");
        QTest::newRow("two too many go from the end")
            << QString() << QStringLiteral("abcdefghijklmnop") << QStringLiteral("abcdefghijklmn");
        QTest::newRow("one too many behind a text")
            << QStringLiteral("0123456789") << QStringLiteral("abcde") << QStringLiteral("0123456789bcde");
        QTest::newRow("two too many behind a text")
            << QStringLiteral("0123456789") << QStringLiteral("abcdef") << QStringLiteral("0123456789abcd");
        QTest::newRow("nothing fits") << latin(14) << QStringLiteral("abc") << latin(14);
        QTest::newRow("nine Chinese") << QString() << chinese(9) << chinese(7);
        QTest::newRow("two Chinese into three columns")
            << latin(11) << chinese(3) + QLatin1Char('b') << latin(11) + chinese(1);
        QTest::newRow("pairs stay whole") << latin(11) << cEmoji + cEmoji + cEmoji << latin(11) + cEmoji;
        QTest::newRow("one pair too many") << latin(12) << cEmoji + cEmoji << latin(12) + cEmoji;
    }

    void pasteIsCut()
    {
        QFETCH(QString, start);
        QFETCH(QString, pasted);
        show();
        m_pEdit->setMaxLength(14);
        m_pEdit->setText(start);
        putOnClipboard(pasted);
        paste();
        QTEST(m_pEdit->text(), "kept");
        QCOMPARE(m_pEdit->cursorPosition(), m_pEdit->text().size());
    }

    void pasteInTheMiddleKeepsWhatStandsBehind()
    {
        show();
        m_pEdit->setMaxLength(10);
        m_pEdit->setText(QStringLiteral("headtail"));
        m_pEdit->setCursorPosition(4);
        putOnClipboard(QStringLiteral("12345"));
        paste();
        QCOMPARE(m_pEdit->text(), QStringLiteral("head12tail"));
        QCOMPARE(m_pEdit->cursorPosition(), 6);
    }

    void pasteOverASelectionCountsWhatIsLeft()
    {
        show();
        m_pEdit->setMaxLength(6);
        m_pEdit->setText(QStringLiteral("abcdef"));
        m_pEdit->setCursorPosition(2);
        inner()->cursorForward(true, 2);
        putOnClipboard(QStringLiteral("123456"));
        paste();
        QCOMPARE(m_pEdit->text(), QStringLiteral("ab12ef"));
    }

    void wideLastCharacterStaysWhenOneIsTooMany()
    {
        // The one excess character goes at the old position even where the one that did not fit is the wider one.
        show();
        m_pEdit->setMaxLength(14);
        m_pEdit->setText(latin(13));
        putOnClipboard(QLatin1Char('a') + chinese(1));
        paste();
        QCOMPARE(m_pEdit->text(), latin(13) + chinese(1));
    }

    void setMaxLengthCutsBackwardsFromTheCursor_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<int>("limit");
        QTest::addColumn<QString>("kept");
        QTest::addColumn<int>("position");
        const QString digits = QStringLiteral("0123456789");
        QTest::newRow("a text that fits stays") << digits << 3 << 10 << digits << 3;
        QTest::newRow("from the end") << digits << 10 << 6 << QStringLiteral("012345") << 6;
        QTest::newRow("from the middle") << digits << 5 << 7 << QStringLiteral("0156789") << 2;
        QTest::newRow("all before the cursor, then the end") << digits << 2 << 5 << QStringLiteral("23456") << 5;
        QTest::newRow("nothing before the cursor") << digits << 0 << 4 << QStringLiteral("0123") << 4;
        QTest::newRow("a wide character may leave one column") << chinese(4) << 4 << 5 << chinese(2) << 2;
        QTest::newRow("a pair goes whole") << QStringLiteral("abc") + cEmoji << 5 << 4 << QStringLiteral("abc") << 3;
        QTest::newRow("a cursor inside a pair")
            << cEmoji + QStringLiteral("abc") << 1 << 3 << QStringLiteral("abc") << 0;
        QTest::newRow("no limit at all") << digits << 4 << 0 << QString() << 0;
        QTest::newRow("a negative limit") << digits << 4 << -3 << QString() << 0;
    }

    void setMaxLengthCutsBackwardsFromTheCursor()
    {
        QFETCH(QString, text);
        QFETCH(int, cursor);
        QFETCH(int, limit);
        m_pEdit->setText(text);
        m_pEdit->setCursorPosition(cursor);
        m_pEdit->setMaxLength(limit);
        QTEST(m_pEdit->text(), "kept");
        QTEST(m_pEdit->cursorPosition(), "position");
    }

    void setMaxLengthKeepsTheCursorsShape()
    {
        inner()->setCursor(Qt::CrossCursor);
        m_pEdit->setText(latin(20));
        m_pEdit->setMaxLength(5);
        QCOMPARE(inner()->cursor().shape(), Qt::CrossCursor);
    }

    void setMaxLengthKeepsTheWayOfCounting()
    {
        m_pEdit->setNewMaxLength(20);
        m_pEdit->setMaxLength(5);
        show();
        putOnClipboard(chinese(5));
        paste();
        QCOMPARE(m_pEdit->text(), chinese(5));
    }

    void setNewMaxLengthTestsByCountAndCutsByWidth()
    {
        m_pEdit->setText(chinese(6));
        m_pEdit->setNewMaxLength(6);
        QCOMPARE(m_pEdit->text(), chinese(6));
        m_pEdit->setNewMaxLength(5);
        QCOMPARE(m_pEdit->text(), chinese(2));
        QCOMPARE(m_pEdit->cursorPosition(), 2);
    }

    void setNewMaxLengthCountsEachCharacterAsOne()
    {
        show();
        m_pEdit->setNewMaxLength(5);
        putOnClipboard(chinese(9));
        paste();
        QCOMPARE(m_pEdit->text(), chinese(5));
    }

    void hugePasteIsCutToTheLimit_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("kept");
        constexpr int cSize = 10 * 1024 * 1024;
        QTest::newRow("Latin") << latin(cSize) << latin(14);
        QTest::newRow("Chinese") << chinese(cSize / 2) << chinese(7);
        QTest::newRow("pairs") << cEmoji.repeated(cSize / 4) << cEmoji.repeated(7);
    }

    void hugePasteIsCutToTheLimit()
    {
        QFETCH(QString, pasted);
        show();
        m_pEdit->setMaxLength(14);
        putOnClipboard(pasted);
        paste();
        QTEST(m_pEdit->text(), "kept");
        putOnClipboard(QString());
    }

    void hugePasteWithoutALimitEnds()
    {
        show();
        putOnClipboard(latin(10 * 1024 * 1024));
        paste();
        // Qt's own bound of a line is the only one here.
        QCOMPARE(m_pEdit->text().size(), inner()->maxLength());
        m_pEdit->setMaxLength(3);
        QCOMPARE(m_pEdit->text(), latin(3));
        putOnClipboard(QString());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LineEditLimit, Widgets)

#include "tst_LineEditLimit.moc"
