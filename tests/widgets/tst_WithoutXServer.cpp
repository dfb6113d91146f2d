// Windows of a platform that is no X server, where what is transparent shows what lies below.

#include "widgets/Compositor.h"
#include "widgets/MyRubberBand.h"

#include <QGuiApplication>
#include <QTest>

class tst_WithoutXServer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCOMPARE(QGuiApplication::platformName(), QStringLiteral("offscreen")); }
    void transparentIsTransparent() { QVERIFY(Compositor::isRunning()); }

    void bandIsCutToItsBars()
    {
        MyRubberBand band(QRubberBand::Rectangle);
        band.setGeometry(10, 10, 60, 40);
        band.show();
        QCOMPARE(band.mask(), QRegion(0, 0, 60, 40) - QRect(5, 5, 50, 30));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WithoutXServer, Widgets)

#include "tst_WithoutXServer.moc"
