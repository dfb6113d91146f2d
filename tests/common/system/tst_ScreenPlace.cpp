#include "common/system/ScreenPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace {

// Asked before main, when no application has found its screens yet.
const QRect cAreaWithoutScreen = ScreenPlace::workArea();
const QPoint cPlaceWithoutScreen = ScreenPlace::getAvailableMovePos({-99999, 99999}, QRect(0, 0, 300, 200));

} // namespace

class tst_ScreenPlace : public QObject
{
    Q_OBJECT

private slots:
    void theWorkAreaIsThePrimaryScreens()
    {
        QCOMPARE(ScreenPlace::workArea(), QGuiApplication::primaryScreen()->availableGeometry());
    }

    void withoutAScreenNothingIsLimited()
    {
        QVERIFY(cAreaWithoutScreen.isNull());
        QCOMPARE(cPlaceWithoutScreen, QPoint(-99999, 99999));
    }

    void tenPixelsStayOnTheScreen()
    {
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect window(0, 0, 300, 200);
        const auto moved = [&](int x, int y) { return ScreenPlace::getAvailableMovePos({x, y}, window); };
        QCOMPARE(moved(area.left() + 50, area.top() + 60), QPoint(area.left() + 50, area.top() + 60));
        QCOMPARE(moved(-99999, 99999), QPoint(area.left() - 290, area.bottom() + 1 - 10));
        QCOMPARE(moved(99999, -99999), QPoint(area.right() + 1 - 10, area.top() - 190));
    }

    void theRectanglesPlaceDoesNotCount()
    {
        QCOMPARE(ScreenPlace::getAvailableMovePos({-99999, 0}, QRect(1000, 1000, 20, 20)),
                 ScreenPlace::getAvailableMovePos({-99999, 0}, QRect(0, 0, 20, 20)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ScreenPlace, Widgets)
#include "tst_ScreenPlace.moc"
