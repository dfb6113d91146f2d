#include "fakes/Patience.h"
#include "widgets/ElidedLabel.h"

#include <QBoxLayout>
#include <QTest>

class tst_ElidedLabel : public QObject
{
    Q_OBJECT

private slots:
    void shortTextIsShownWhole()
    {
        ElidedLabel label;
        label.setText(QStringLiteral("Ann"));
        label.resize(label.sizeHint());
        QCOMPARE(label.shownText(), QStringLiteral("Ann"));
    }

    void longTextEndsInAnEllipsisAndStaysReadable()
    {
        const QString strLong(500, QLatin1Char('m'));
        ElidedLabel label;
        label.setText(strLong);
        label.resize(100, 20);
        QVERIFY(label.shownText().endsWith(QChar(0x2026)));
        QVERIFY(label.fontMetrics().horizontalAdvance(label.shownText()) <= 100);
        QCOMPARE(label.text(), strLong);
    }

    void lineBreaksAreShownAsBlanks()
    {
        ElidedLabel label;
        label.setText(QStringLiteral("a\nb"));
        label.resize(100, 20);
        QCOMPARE(label.shownText(), QStringLiteral("a b"));
    }

    void markupIsShownAsItIs()
    {
        ElidedLabel label;
        label.setText(QStringLiteral("<b>a</b>"));
        label.resize(200, 20);
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QCOMPARE(label.shownText(), QStringLiteral("<b>a</b>"));
    }

    void longTextAsksForNoWidth()
    {
        ElidedLabel label;
        label.setText(QString(500, QLatin1Char('m')));
        QCOMPARE(label.minimumSizeHint().width(), 0);
        QVERIFY(label.minimumSizeHint().height() > 0);
    }

    void textIsPainted()
    {
        ElidedLabel label;
        label.resize(60, 20);
        const QImage empty = label.grab().toImage();
        label.setText(QStringLiteral("Ann"));
        QVERIFY(label.grab().toImage() != empty);
    }

    void nameOfSeveralLinesIsWholeWhereThereIsRoom()
    {
        QWidget window;
        auto *pLayout = new QHBoxLayout(&window);
        auto *pLabel = new ElidedLabel;
        pLabel->setText(QStringLiteral("Ann\nof the house\r\nby the sea"));
        pLayout->addStretch();
        pLayout->addWidget(pLabel);
        pLayout->addStretch();
        window.resize(400, 60);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        QCOMPARE(pLabel->shownText(), QStringLiteral("Ann of the house by the sea"));
        QCOMPARE(pLabel->sizeHint().height(), ElidedLabel().sizeHint().height());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ElidedLabel, Widgets)

#include "tst_ElidedLabel.moc"
