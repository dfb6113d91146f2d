// The sums behind a window without a system frame: edges under the cursor, dragged rectangles, their limits.

#include "ui/EdgeDrag.h"

#include <QTest>

namespace {

// A window of the call window's size, and a work area that does not begin at the origin.
const QRect cWindow(300, 200, 523, 403); // right 822, bottom 602
const QRect cWorkArea(10, 30, 1580, 1100);
const QRect cPrevious(1, 2, 600, 500);

QRect corners(int iLeft, int iTop, int iRight, int iBottom)
{
    return {QPoint(iLeft, iTop), QPoint(iRight, iBottom)};
}

} // namespace

class tst_EdgeDrag : public QObject
{
    Q_OBJECT

private slots:
    void edgesUnderTheCursor_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("edges");
        const QSize size = cWindow.size();
        QTest::newRow("middle") << QPoint(260, 200) << size << 0;
        QTest::newRow("left, outermost pixel") << QPoint(0, 200) << size << 1;
        QTest::newRow("left, last pixel of the band") << QPoint(4, 200) << size << 1;
        QTest::newRow("left, first pixel beyond") << QPoint(5, 200) << size << 0;
        QTest::newRow("left, four pixels outside") << QPoint(-4, 200) << size << 1;
        QTest::newRow("left, five pixels outside") << QPoint(-5, 200) << size << 0;
        QTest::newRow("top, last pixel of the band") << QPoint(260, 4) << size << 2;
        QTest::newRow("top, first pixel beyond") << QPoint(260, 5) << size << 0;
        QTest::newRow("right, last pixel of the band") << QPoint(518, 200) << size << 4;
        QTest::newRow("right, first pixel beyond") << QPoint(517, 200) << size << 0;
        QTest::newRow("right, four pixels outside") << QPoint(526, 200) << size << 4;
        QTest::newRow("bottom, last pixel of the band") << QPoint(260, 398) << size << 8;
        QTest::newRow("bottom, first pixel beyond") << QPoint(260, 397) << size << 0;
        QTest::newRow("top left") << QPoint(4, 4) << size << 3;
        QTest::newRow("top right") << QPoint(518, 4) << size << 6;
        QTest::newRow("bottom left") << QPoint(4, 398) << size << 9;
        QTest::newRow("bottom right") << QPoint(518, 398) << size << 12;
        QTest::newRow("all edges of a tiny window") << QPoint(2, 2) << QSize(4, 4) << 15;
    }

    void edgesUnderTheCursor()
    {
        QFETCH(QPoint, position);
        QFETCH(QSize, size);
        QTEST(EdgeDrag::edgesAt(position, size), "edges");
    }

    void dragGivesTheRectangle_data()
    {
        QTest::addColumn<int>("edges");
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QRect>("dragged");
        const QRect w = cWindow;
        const int iRight = w.right();
        const int iBottom = w.bottom();

        QTest::newRow("left outwards") << 1 << QPoint(200, 999) << corners(200, 200, iRight, iBottom);
        QTest::newRow("left in place") << 1 << QPoint(300, 999) << w;
        QTest::newRow("left inwards stops at the smallest width") << 1 << QPoint(500, 999) << w;
        QTest::newRow("left inwards by one pixel") << 1 << QPoint(301, 999) << w;
        QTest::newRow("left as wide as the work area")
            << 1 << QPoint(iRight + 1 - 1580, 0) << corners(iRight + 1 - 1580, 200, iRight, iBottom);
        QTest::newRow("left wider than the work area")
            << 1 << QPoint(iRight - 1580, 0) << corners(iRight + 1 - 1580, 200, iRight, iBottom);

        QTest::newRow("top outwards") << 2 << QPoint(999, 100) << corners(300, 100, iRight, iBottom);
        QTest::newRow("top inwards stops at the smallest height") << 2 << QPoint(999, 400) << w;
        QTest::newRow("top one pixel less than the work area")
            << 2 << QPoint(0, iBottom + 2 - 1100) << corners(300, iBottom + 2 - 1100, iRight, iBottom);
        QTest::newRow("top as high as the work area")
            << 2 << QPoint(0, iBottom + 1 - 1100) << corners(300, iBottom + 1 - 1100, iRight, iBottom);
        QTest::newRow("top higher than the work area")
            << 2 << QPoint(0, -900) << corners(300, iBottom + 1 - 1100, iRight, iBottom);

        QTest::newRow("top left outwards") << 3 << QPoint(200, 100) << corners(200, 100, iRight, iBottom);
        QTest::newRow("top left inwards") << 3 << QPoint(400, 300) << w;
        QTest::newRow("top left beyond the work area keeps its own corner")
            << 3 << QPoint(-1000, -900) << QRect(-1000, -900, 1580, 1100);

        QTest::newRow("right outwards: the pixel before the cursor")
            << 4 << QPoint(900, 0) << corners(300, 200, 899, iBottom);
        QTest::newRow("right inwards stops at the smallest width") << 4 << QPoint(700, 0) << w;
        QTest::newRow("right wider than the work area") << 4 << QPoint(2500, 0) << QRect(300, 200, 1580, 403);

        QTest::newRow("top right outwards") << 6 << QPoint(900, 100) << corners(300, 100, 899, iBottom);
        QTest::newRow("top right inwards") << 6 << QPoint(700, 300) << w;

        QTest::newRow("bottom outwards: the pixel before the cursor")
            << 8 << QPoint(0, 700) << corners(300, 200, iRight, 699);
        QTest::newRow("bottom inwards stops at the smallest height") << 8 << QPoint(0, 500) << w;
        QTest::newRow("bottom higher than the work area") << 8 << QPoint(0, 1900) << QRect(300, 200, 523, 1100);

        QTest::newRow("bottom left outwards") << 9 << QPoint(200, 700) << corners(200, 200, iRight, 699);
        QTest::newRow("bottom left inwards") << 9 << QPoint(400, 500) << w;

        QTest::newRow("bottom right outwards: the cursor's own pixel")
            << 12 << QPoint(900, 700) << corners(300, 200, 900, 700);
        QTest::newRow("bottom right inwards") << 12 << QPoint(700, 500) << w;
        QTest::newRow("bottom right beyond the work area") << 12 << QPoint(2500, 1900) << QRect(300, 200, 1580, 1100);

        for (int iEdges : {0, 5, 7, 10, 11, 13, 14, 15}) {
            QTest::addRow("no edge or corner: %d", iEdges) << iEdges << QPoint(900, 700) << cPrevious;
        }
    }

    void dragGivesTheRectangle()
    {
        QFETCH(int, edges);
        QFETCH(QPoint, cursor);
        QTEST(EdgeDrag::resized(edges, cWindow, cursor, cWorkArea, cPrevious), "dragged");
    }

    void movedWindowStaysReachable_data()
    {
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("anywhere") << QPoint(500, 400) << QPoint(400, 380);
        QTest::newRow("beyond the left and the top") << QPoint(-900, -700) << QPoint(-1000, -720);
        QTest::newRow("beyond the right") << QPoint(3000, 400) << QPoint(2900, 380);
        QTest::newRow("last place at the bottom") << QPoint(500, 1110) << QPoint(400, 1090);
        QTest::newRow("beyond the bottom") << QPoint(500, 1111) << QPoint(400, 1090);
    }

    void movedWindowStaysReachable()
    {
        QFETCH(QPoint, cursor);
        // The work area's height counts, wherever its top is.
        QTEST(EdgeDrag::moved(cursor, QPoint(100, 20), cWorkArea), "position");
    }

    void fullScreenOvershootsTheWorkArea()
    {
        // By 4 pixels at the left and the top, by 8 at the right and the bottom.
        QCOMPARE(EdgeDrag::overWorkArea(cWorkArea), cWorkArea.adjusted(-4, -4, 8, 8));
        QCOMPARE(EdgeDrag::overWorkArea(QRect(0, 0, 1600, 1200)), QRect(QPoint(-4, -4), QPoint(1607, 1207)));
    }

    void smallestSizeIsThatOfTheWindow()
    {
        QCOMPARE(EdgeDrag::minimumSize(), QSize(523, 403));
        const QRect narrow(0, 0, 400, 300);
        // The smallest height goes before a low work area; a narrow one goes before the smallest width.
        QCOMPARE(EdgeDrag::resized(EdgeDrag::Right, QRect(0, 0, 100, 100), QPoint(50, 50), narrow, QRect()),
                 QRect(0, 0, 400, 403));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EdgeDrag, Appless)

#include "tst_EdgeDrag.moc"
