#include "common/pictures/NinePatch.h"
#include "fakes/PaintedPicture.h"

#include <QPainter>
#include <QtTest>

namespace {

// The nine parts in nine colours, three parts a row.
const QColor cParts[3][3] = {{QColor(1, 0, 0), QColor(2, 0, 0), QColor(3, 0, 0)},
                             {QColor(4, 0, 0), QColor(5, 0, 0), QColor(6, 0, 0)},
                             {QColor(7, 0, 0), QColor(8, 0, 0), QColor(9, 0, 0)}};

int partOf(int iPixel, int iFirst, int iSecond)
{
    return iPixel < iFirst ? 0 : iPixel < iSecond ? 1 : 2;
}

QImage expectedFrame(const QSize &size, int iColumnEnd, int iRowEnd)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixelColor(x, y, cParts[partOf(y, 10, iRowEnd)][partOf(x, 10, iColumnEnd)]);
        }
    }
    return image;
}

QPixmap source(const QSize &size)
{
    return QPixmap::fromImage(expectedFrame(size, 19, 19));
}

QImage drawn(const QSize &size, const QPixmap &picture)
{
    return NinePatch::drawNinePatch(size, picture).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Nothing of that size, but for one colour in a part of it.
QImage onlyWith(const QSize &size, const QRect &part, const QColor &color)
{
    return paintedOnNothing(size, [&](QPainter &painter) { painter.fillRect(part, color); });
}

} // namespace

class tst_NinePatch : public QObject
{
    Q_OBJECT

private slots:
    void cornersStayAndTheMiddleStretches_data()
    {
        QTest::addColumn<QSize>("target");
        QTest::addColumn<QSize>("picture");
        QTest::newRow("wider and higher") << QSize(200, 120) << QSize(29, 31);
        QTest::newRow("same size") << QSize(29, 31) << QSize(29, 31);
        QTest::newRow("narrower by less than the middle") << QSize(24, 30) << QSize(29, 31);
        QTest::newRow("uneven corners") << QSize(101, 77) << QSize(60, 22);
        QTest::newRow("one pixel of a right column") << QSize(50, 50) << QSize(20, 20);
        QTest::newRow("no right column and no bottom row") << QSize(50, 50) << QSize(19, 19);
    }
    void cornersStayAndTheMiddleStretches()
    {
        QFETCH(QSize, target);
        QFETCH(QSize, picture);
        const QImage frame = drawn(target, source(picture));
        QCOMPARE(frame, expectedFrame(target, target.width() - (picture.width() - 19),
                                      target.height() - (picture.height() - 19)));
    }

    void cornerPixelsAreThoseOfThePicture()
    {
        // A picture with one odd pixel at each outer corner and at each inner edge of a corner part.
        QImage image = source(QSize(30, 30)).toImage();
        const QList<QPoint> spots = {{0, 0}, {29, 0}, {0, 29}, {29, 29}, {9, 9}, {19, 9}, {9, 19}, {19, 19}};
        for (const QPoint &spot : spots) {
            image.setPixelColor(spot, Qt::green);
        }
        QImage expected = expectedFrame(QSize(100, 80), 89, 69);
        for (const QPoint &spot : spots) {
            expected.setPixelColor(spot.x() < 10 ? spot.x() : spot.x() + 70, spot.y() < 10 ? spot.y() : spot.y() + 50,
                                   Qt::green);
        }
        QCOMPARE(drawn(QSize(100, 80), QPixmap::fromImage(image)), expected);
    }

    void lastPixelBeforeTheCornerIsStretched()
    {
        QImage image = source(QSize(30, 30)).toImage();
        QImage expected = expectedFrame(QSize(48, 48), 37, 37);
        QPainter(&image).fillRect(18, 18, 1, 1, Qt::green);
        QPainter(&expected).fillRect(34, 34, 3, 3, Qt::green);
        QCOMPARE(drawn(QSize(48, 48), QPixmap::fromImage(image)), expected);
    }

    void transparentPartsStayTransparent()
    {
        QImage image = source(QSize(30, 30)).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QImage expected = expectedFrame(QSize(100, 80), 89, 69);
        const QRgb half = qPremultiply(qRgba(0, 0, 255, 128));
        image.setPixel(0, 0, 0);
        expected.setPixel(0, 0, 0);
        image.setPixel(29, 29, half);
        expected.setPixel(99, 79, half);
        QCOMPARE(drawn(QSize(100, 80), QPixmap::fromImage(image)), expected);
    }

    void pictureSmallerThanTheCutsHasNoFarParts()
    {
        const QRect corner(0, 0, 10, 10);
        QCOMPARE(drawn(QSize(60, 60), source(QSize(15, 15))).copy(corner),
                 onlyWith(corner.size(), corner, cParts[0][0]));
    }

    void targetSmallerThanTheCornersShowsTheLastOfThem()
    {
        const QRect all(0, 0, 12, 12);
        QCOMPARE(drawn(all.size(), source(QSize(40, 40))), onlyWith(all.size(), all, cParts[2][2]));
    }

    void stretchWithoutRoomIsNotPainted()
    {
        QImage image = source(QSize(40, 40)).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x) {
                if (x >= 19 || y >= 19) {
                    image.setPixel(x, y, 0);
                }
            }
        }
        QCOMPARE(drawn(QSize(20, 20), QPixmap::fromImage(image)),
                 onlyWith(QSize(20, 20), QRect(0, 0, 10, 10), cParts[0][0]));
    }

    void noPictureGivesATransparentFrame()
    {
        QCOMPARE(drawn(QSize(40, 30), QPixmap()), onlyWith(QSize(40, 30), QRect(), {}));
    }

    void emptySizeGivesANullPixmap_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("none") << QSize();
        QTest::newRow("zero") << QSize(0, 20);
        QTest::newRow("negative") << QSize(20, -1);
    }
    void emptySizeGivesANullPixmap()
    {
        QFETCH(QSize, size);
        QVERIFY(NinePatch::drawNinePatch(size, source(QSize(30, 30))).isNull());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_NinePatch, Widgets)
#include "tst_NinePatch.moc"
