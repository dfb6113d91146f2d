#include "widgets/MyRubberBand.h"

#include <QPaintEvent>
#include <QtTest>

namespace {

class Band : public MyRubberBand
{
public:
    using MyRubberBand::MyRubberBand;
    QRect m_rect;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPaintEvent event(m_rect);
        MyRubberBand::paintEvent(&event);
    }
};

// Whether a pixel of the band was painted, over a white ground.
QImage painted(const QSize &size, const QRect &rect)
{
    Band band(QRubberBand::Rectangle);
    band.resize(size);
    band.m_rect = rect;
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    band.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

int inkIn(const QImage &image, const QRect &rect)
{
    int iInk = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            iInk += image.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
        }
    }
    return iInk;
}

} // namespace

class tst_MyRubberBand : public QObject
{
    Q_OBJECT

private slots:
    void framesTheEventsRectangle_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("whole band") << QRect(0, 0, 60, 40);
        QTest::newRow("a part") << QRect(8, 4, 32, 30);
    }
    void framesTheEventsRectangle()
    {
        QFETCH(QRect, rect);
        const QImage image = painted(QSize(60, 40), rect);
        const QRect inside = rect.adjusted(5, 5, -5, -5);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (!rect.contains(x, y) || inside.contains(x, y)) {
                    QCOMPARE(image.pixelColor(x, y), QColor(Qt::white));
                }
            }
        }
        // The pattern paints every other pixel.
        for (const QRect &bar :
             {QRect(rect.left(), rect.top(), rect.width(), 5), QRect(rect.left(), rect.top(), 5, rect.height()),
              QRect(rect.left(), rect.bottom() - 4, rect.width(), 5),
              QRect(rect.right() - 4, rect.top(), 5, rect.height())}) {
            const int iArea = bar.width() * bar.height();
            QVERIFY(qAbs(inkIn(image, bar) - iArea / 2) <= 4);
        }
    }

    void barsMeetInTheCorners()
    {
        const QImage image = painted(QSize(60, 40), QRect(0, 0, 60, 40));
        for (const QPoint &corner : {QPoint(0, 0), QPoint(55, 0), QPoint(0, 35), QPoint(55, 35)}) {
            const int iInk = inkIn(image, QRect(corner, QSize(5, 5)));
            QVERIFY2(iInk == 12 || iInk == 13, qPrintable(QString::number(iInk)));
        }
    }

    void bandKeepsShapeAndParent()
    {
        QWidget parent;
        auto *pBand = new MyRubberBand(QRubberBand::Line, &parent);
        QCOMPARE(pBand->shape(), QRubberBand::Line);
        QCOMPARE(pBand->parentWidget(), &parent);
        QVERIFY(pBand->isHidden());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MyRubberBand, Widgets)
#include "tst_MyRubberBand.moc"
