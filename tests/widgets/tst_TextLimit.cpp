#include "common/text/TextMeasure.h"
#include "widgets/TextLimit.h"

#include <QTest>

namespace {
const QString cPair = QString::fromUcs4(U"\U0001F600", 1);
} // namespace

class tst_TextLimit : public QObject
{
    Q_OBJECT

private slots:
    void unitsOfCharacters()
    {
        const QString strText = QStringLiteral("a") + cPair + QChar(0x4E2D) + cPair.at(0);
        QCOMPARE(TextLimit::unitsAt(strText, 0), 1);
        QCOMPARE(TextLimit::unitsAt(strText, 1), 2);
        QCOMPARE(TextLimit::unitsAt(strText, 3), 1);
        QCOMPARE(TextLimit::unitsAt(strText, 4), 1);
        QCOMPARE(TextLimit::unitsAt(strText, 5), 0);
        QCOMPARE(TextLimit::unitsAt(QString(), 0), 0);
    }

    void cutTextMeasuresTheLimitOrOneLess()
    {
        const QString strText = QStringLiteral("a中b文") + cPair + QStringLiteral("字c") + cPair + QStringLiteral("d");
        const int iWidth = TextMeasure::getStrCounnt(strText);
        for (int iCursor = 0; iCursor <= strText.size(); ++iCursor) {
            for (int iLimit = 0; iLimit < iWidth; ++iLimit) {
                QString strCut = strText;
                const int iPosition = TextLimit::cutBackwards(strCut, iCursor, iLimit);
                const int iLeft = TextMeasure::getStrCounnt(strCut);
                QVERIFY(iLeft == iLimit || iLeft == iLimit - 1);
                QVERIFY(iPosition >= 0 && iPosition <= strCut.size());
                QVERIFY(!strCut.remove(cPair).contains(cPair.at(0)));
            }
        }
    }

    void halfAPairIsOneCharacter()
    {
        QString strText = QString(3, cPair.at(1));
        QCOMPARE(TextLimit::cutBackwards(strText, 3, 2), 2);
        QCOMPARE(strText, QString(2, cPair.at(1)));
    }

    void cursorOutsideTheTextIsItsNearestEnd()
    {
        QString strText = QStringLiteral("abcdef");
        QCOMPARE(TextLimit::cutBackwards(strText, 99, 4), 4);
        QCOMPARE(strText, QStringLiteral("abcd"));
        QCOMPARE(TextLimit::cutBackwards(strText, -5, 2), 2);
        QCOMPARE(strText, QStringLiteral("ab"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TextLimit, Widgets)

#include "tst_TextLimit.moc"
