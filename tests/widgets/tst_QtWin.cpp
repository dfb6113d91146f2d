#include "widgets/QtWin.h"

#include <QTest>
#include <QWidget>

class tst_QtWin : public QObject
{
    Q_OBJECT

private slots:
    void desktopHasNoGlassEffect() { QVERIFY(!QtWin::isCompositionEnabled()); }

    void windowStaysAsItIs()
    {
        QWidget window;
        window.resize(30, 20);
        const QImage before = window.grab().toImage();
        QtWin::addAeroWindow(&window, 1, 2, 3, 4);
        QtWin::removeAeroWindow(&window);
        QtWin::addAeroWindow(nullptr, 1, 2, 3, 4);
        QtWin::removeAeroWindow(nullptr);
        QCOMPARE(window.grab().toImage(), before);
        QCOMPARE(window.contentsMargins(), QMargins());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_QtWin, Widgets)

#include "tst_QtWin.moc"
