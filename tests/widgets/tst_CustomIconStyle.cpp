#include "widgets/CustomIconStyle.h"

#include <QTest>

class tst_CustomIconStyle : public QObject
{
    Q_OBJECT

private slots:
    void smallIconsAreTwentyPixelsAtFirst()
    {
        const CustomIconStyle style;
        QCOMPARE(style.pixelMetric(QStyle::PM_SmallIconSize), 20);
    }

    void smallIconsTakeTheSizeThatIsSet()
    {
        CustomIconStyle style;
        style.SetCustomSize(33);
        QCOMPARE(style.pixelMetric(QStyle::PM_SmallIconSize), 33);
        style.SetCustomSize(0);
        QCOMPARE(style.pixelMetric(QStyle::PM_SmallIconSize), 0);
    }

    void otherMetricsAreTheCommonStyles_data()
    {
        QTest::addColumn<int>("metric");
        QTest::newRow("large icon") << int(QStyle::PM_LargeIconSize);
        QTest::newRow("tool bar icon") << int(QStyle::PM_ToolBarIconSize);
        QTest::newRow("button margin") << int(QStyle::PM_ButtonMargin);
        QTest::newRow("scroll bar") << int(QStyle::PM_ScrollBarExtent);
        QTest::newRow("menu margin") << int(QStyle::PM_MenuHMargin);
    }

    void otherMetricsAreTheCommonStyles()
    {
        QFETCH(int, metric);
        CustomIconStyle style;
        style.SetCustomSize(77);
        const QCommonStyle common;
        QCOMPARE(style.pixelMetric(QStyle::PixelMetric(metric)), common.pixelMetric(QStyle::PixelMetric(metric)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CustomIconStyle, Widgets)

#include "tst_CustomIconStyle.moc"
