#include "common/system/DpiScale.h"

#include <QWidget>
#include <QtTest>

class tst_DpiScale : public QObject
{
    Q_OBJECT

private slots:
    void nothingNeedsScaling()
    {
        QVERIFY(!NEED_ADAPT_DPI());
        COMPUTE_DPI_MULTIPLE();
        QVERIFY(!NEED_ADAPT_DPI());
        QCOMPARE(GET_DPI_MULTIPLE(), 1.0);
    }

    void numbersComeBackUnchanged()
    {
        QCOMPARE(ADAPT_DPI_INT(7), 7);
        QCOMPARE(ADAPT_DPI_INT(-7), -7);
        QCOMPARE(ADAPT_DPI_DIVIDE(7), 7);
        QCOMPARE(ADAPT_DPI_DOUBLE(7.25), 7.25);
    }

    void shapesComeBackUnchanged()
    {
        QCOMPARE(ADAPT_DPI_SIZE(QSize(523, 403)), QSize(523, 403));
        QCOMPARE(ADAPT_DPI_SIZE(QSize()), QSize());
        QCOMPARE(ADAPT_DPI_RECT(QRect(1, 2, 3, 4)), QRect(1, 2, 3, 4));
        QCOMPARE(ADAPT_DPI_CONTANTMARGINS(QMargins(3, 4, 5, 6)), QMargins(3, 4, 5, 6));
        QCOMPARE(ADAPT_DPI_POINT(QPoint(-3, 9)), QPoint(-3, 9));
    }

    void styleSheetsComeBackUnchanged()
    {
        const QString sheet = QStringLiteral("QLabel{font-size:14px; color:#000000;}");
        QCOMPARE(ADAPT_DPI_STYLESHEET(sheet), sheet);
    }

    void widgetsStayAsTheyAre()
    {
        QWidget widget;
        widget.setGeometry(10, 20, 300, 200);
        widget.setStyleSheet(QStringLiteral("font-size:14px;"));
        ADAPT_DPI_WIDGET(&widget);
        QCOMPARE(widget.geometry(), QRect(10, 20, 300, 200));
        QCOMPARE(widget.styleSheet(), QStringLiteral("font-size:14px;"));
        ADAPT_DPI_WIDGET(nullptr);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DpiScale, Widgets)
#include "tst_DpiScale.moc"
