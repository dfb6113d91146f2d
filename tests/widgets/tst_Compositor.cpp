// A compositor that comes and goes while windows stand, as the user starts and ends it: on a screen without one.

#include "fakes/Patience.h"
#include "widgets/Compositor.h"
#include "widgets/MyRubberBand.h"

#include <QProcess>
#include <QTest>

namespace {

constexpr QSize cSize(200, 150);

QRegion bars()
{
    return QRegion(QRect(QPoint(), cSize)) - QRect(QPoint(), cSize).adjusted(5, 5, -5, -5);
}

/// What is left of a band that is shown now.
QRegion shownMask(MyRubberBand &band)
{
    band.hide();
    band.resize(cSize);
    band.show();
    return band.mask();
}

/// Whether it is cut to the dots of its bars: to half of their pixels.
bool isDotted(const QRegion &mask)
{
    int iPixels = 0;
    for (const QRect &rect : mask) {
        iPixels += rect.width() * rect.height();
    }
    return mask.subtracted(bars()).isEmpty() && qAbs(2 * iPixels - (2 * 200 * 5 + 2 * 140 * 5)) <= 20;
}

} // namespace

class tst_Compositor : public QObject
{
    Q_OBJECT

private slots:
    void isSeenToComeAndGo()
    {
        MyRubberBand band(QRubberBand::Rectangle);
        QVERIFY(!Compositor::isRunning());
        QVERIFY(isDotted(shownMask(band)));

        QProcess compositor;
        compositor.start(QStringLiteral("picom"), {"--backend", "xrender", "--config", "/dev/null"});
        QVERIFY(compositor.waitForStarted(cPatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(Compositor::isRunning(), 20000);
        QCOMPARE(shownMask(band), bars());

        compositor.terminate();
        QVERIFY(compositor.waitForFinished(cPatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(!Compositor::isRunning(), 20000);
        QVERIFY(isDotted(shownMask(band)));
    }

    void applicationsOwnServerIsAsked()
    {
        QProcess compositor;
        compositor.start(QStringLiteral("picom"), {"--backend", "xrender", "--config", "/dev/null"});
        QVERIFY(compositor.waitForStarted(cPatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(Compositor::isRunning(), 20000);
        // What the environment says since the application began is about others.
        const QByteArray server = qgetenv("DISPLAY");
        qputenv("DISPLAY", ":none");
        const bool bRunning = Compositor::isRunning();
        qputenv("DISPLAY", server);
        compositor.terminate();
        QVERIFY(compositor.waitForFinished(cPatienceMs));
        QVERIFY(bRunning);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Compositor, Widgets)

#include "tst_Compositor.moc"
