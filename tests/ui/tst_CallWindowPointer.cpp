// The call window under the X server's own pointer, which reaches whichever part lies below it, and the band as the
// screen shows it.

#include "ContactFixture.h"
#include "screen/ScreenPointer.h"

#include "fakes/Patience.h"
#include "ui/VoipWidget.h"
#include "widgets/MyRubberBand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace {

const QPoint cHome(160, 120);
const QSize cSize(523, 403);
constexpr int cBar = 5;
constexpr QRgb cBackdrop = qRgb(0x5a, 0x78, 0x96);

/// Takes every mouse event for itself, as the pictures of a call may do.
class Surface : public QWidget
{
public:
    Surface() { setMouseTracking(true); }

protected:
    void mouseMoveEvent(QMouseEvent *event) override { event->accept(); }
};

QImage screenNow()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
}

bool isBlack(QRgb pixel)
{
    return (pixel & 0xffffff) == 0;
}

/// Whether all of the window and of the backdrop around it has come to the screen: a place of each that has one colour.
bool showsTheWindow(const QImage &screen, int iDensity)
{
    const QRect window(cHome, cSize);
    const std::pair<QPoint, QRgb> places[] = {
        {window.topLeft() - QPoint(10, 10), cBackdrop},
        {window.bottomRight() + QPoint(10, 10), cBackdrop},
        {QPoint(window.left() - 70, window.top() + 200), cBackdrop},
        {window.topLeft() + QPoint(250, 20), qRgb(0xf4, 0xf4, 0xf4)},
        {window.bottomLeft() + QPoint(20, -10), qRgb(0x4c, 0x4c, 0x4c)},
        {window.bottomRight() - QPoint(20, 10), qRgb(0x4c, 0x4c, 0x4c)},
    };
    return std::all_of(std::begin(places), std::end(places), [&](const std::pair<QPoint, QRgb> &place) {
        return (screen.pixel(place.first * iDensity) & 0xffffff) == (place.second & 0xffffff);
    });
}

/// What is wrong with the band that stands at `band` on the screen that looked like `before` without it; empty when all
/// is right. Every second pixel of the four bars is black, in steps of the density; all else is as it was.
QString complaint(const QImage &before, const QImage &now, const QRect &band, int iDensity)
{
    const QRect inside = band.adjusted(cBar, cBar, -cBar, -cBar);
    int iDots = 0;
    int iPixels = 0;
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x) {
            const QPoint place(x / iDensity, y / iDensity);
            const bool bChanged = now.pixel(x, y) != before.pixel(x, y);
            if (!band.contains(place) || inside.contains(place)) {
                if (bChanged) {
                    return QStringLiteral("changed at %1,%2").arg(x).arg(y);
                }
                continue;
            }
            // A dot on black shows as little as none: a window's transparent margin where there is no compositor.
            if (!isBlack(before.pixel(x, y))) {
                ++iPixels;
            }
            if (!bChanged) {
                continue;
            }
            if (!isBlack(now.pixel(x, y))) {
                return QStringLiteral("no dot at %1,%2").arg(x).arg(y);
            }
            // Dots touch at their corners only.
            const QPoint right(x + iDensity, y);
            if (band.contains(right / iDensity) && isBlack(now.pixel(right)) && !isBlack(before.pixel(right))) {
                return QStringLiteral("two dots at %1,%2").arg(x).arg(y);
            }
            ++iDots;
        }
    }
    if (qAbs(2 * iDots - iPixels) > iPixels / 50) {
        return QStringLiteral("%1 dots of %2 pixels").arg(iDots).arg(iPixels);
    }
    return {};
}

} // namespace

class tst_CallWindowPointer : public QObject
{
    Q_OBJECT

private:
    void open(CVoipWidget::VoipType type)
    {
        m_pWindow = std::make_unique<CVoipWidget>();
        // Without a window manager's own opinion on places.
        m_pWindow->setWindowFlag(Qt::X11BypassWindowManagerHint);
        m_pWindow->move(cHome);
        m_pWindow->setVoipCallInfo({QStringLiteral("ann"), QStringLiteral("bob")}, type, true, true);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get(), cPatienceMs));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->geometry(), QRect(cHome, cSize), cPatienceMs);
    }

    bool isShapeAt(const QPoint &place, Qt::CursorShape shape) const
    {
        const QWidget *pPart = m_pWindow->childAt(place);
        return (pPart != nullptr ? pPart : m_pWindow.get())->cursor().shape() == shape;
    }

    static QRect shownBand()
    {
        for (QWidget *pWindow : QApplication::topLevelWidgets()) {
            if (qobject_cast<MyRubberBand *>(pWindow) != nullptr && pWindow->isVisible()) {
                return pWindow->geometry();
            }
        }
        return {};
    }

    ScreenPointer m_pointer;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<QWidget> m_pBackdrop;
    std::unique_ptr<CVoipWidget> m_pWindow;

private slots:
    void initTestCase() { QVERIFY(m_pointer.isReady()); }

    void init()
    {
        m_pContacts = std::make_unique<ContactFixture>();
        m_pBackdrop = std::make_unique<QWidget>(nullptr, Qt::X11BypassWindowManagerHint);
        m_pBackdrop->setPalette(QPalette(QColor(cBackdrop)));
        m_pBackdrop->setGeometry(QGuiApplication::primaryScreen()->geometry());
        m_pBackdrop->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pBackdrop.get(), cPatienceMs));
        m_pointer.moveTo(QPoint(20, 20));
        QTRY_COMPARE_WITH_TIMEOUT(QCursor::pos(), QPoint(20, 20), cPatienceMs);
    }

    void cleanup()
    {
        m_pointer.release(Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::mouseButtons(), Qt::NoButton, cPatienceMs);
        m_pWindow.reset();
        m_pBackdrop.reset();
        m_pContacts.reset();
    }

    void edgeIsForgottenOverTheParts_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("surface");
        QTest::addColumn<QPoint>("edge");
        QTest::addColumn<QPoint>("target");
        QTest::addColumn<bool>("drags");
        const QPoint left(1, 200);
        QTest::newRow("voice page") << int(CVoipWidget::Voice) << false << left << QPoint(100, 200) << true;
        QTest::newRow("voice page, head") << int(CVoipWidget::Voice) << false << left << QPoint(261, 150) << true;
        QTest::newRow("voice page, from the right")
            << int(CVoipWidget::Voice) << false << QPoint(521, 200) << QPoint(400, 200) << true;
        QTest::newRow("video page") << int(CVoipWidget::Video) << false << left << QPoint(100, 200) << true;
        // They take the moves.
        QTest::newRow("video page, its pictures")
            << int(CVoipWidget::Video) << true << left << QPoint(100, 200) << false;
        QTest::newRow("conference page, above the list")
            << int(CVoipWidget::Conference) << false << left << QPoint(200, 55) << true;
        // The list takes the presses.
        QTest::newRow("conference page, list")
            << int(CVoipWidget::Conference) << false << left << QPoint(100, 250) << false;
        QTest::newRow("control bar") << int(CVoipWidget::Voice) << false << QPoint(430, 401) << QPoint(430, 380)
                                     << true;
        QTest::newRow("control bar, from the left")
            << int(CVoipWidget::Voice) << false << QPoint(1, 380) << QPoint(250, 380) << true;
    }

    void edgeIsForgottenOverTheParts()
    {
        QFETCH(int, type);
        QFETCH(bool, surface);
        QFETCH(QPoint, edge);
        QFETCH(QPoint, target);
        QFETCH(bool, drags);
        open(CVoipWidget::VoipType(type));
        if (surface) {
            m_pWindow->addVoipWidget(new Surface);
            QCoreApplication::processEvents();
        }
        m_pointer.moveTo(cHome + edge);
        const bool bAtSide = edge.y() == 200 || edge.y() == 380;
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->cursor().shape(), bAtSide ? Qt::SizeHorCursor : Qt::SizeVerCursor,
                                  cPatienceMs);
        m_pointer.moveTo(cHome + target);
        QTRY_VERIFY_WITH_TIMEOUT(isShapeAt(target, Qt::ArrowCursor), cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->cursor().shape(), Qt::ArrowCursor, cPatienceMs);
        if (!drags) {
            return;
        }
        m_pointer.press(Qt::LeftButton);
        m_pointer.moveTo(cHome + target + QPoint(15, 10));
        m_pointer.moveTo(cHome + target + QPoint(30, 20));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->pos(), cHome + QPoint(30, 20), cPatienceMs);
        QVERIFY(shownBand().isNull());
        m_pointer.release(Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::mouseButtons(), Qt::NoButton, cPatienceMs);
        QCOMPARE(m_pWindow->geometry(), QRect(cHome + QPoint(30, 20), cSize));
    }

    void edgeIsKnownOverTheParts()
    {
        // The band reaches over the margin that the window's parts leave.
        open(CVoipWidget::Voice);
        m_pointer.moveTo(cHome + QPoint(100, 200));
        QTRY_COMPARE_WITH_TIMEOUT(QCursor::pos(), cHome + QPoint(100, 200), cPatienceMs);
        QVERIFY(m_pWindow->childAt(4, 200) != nullptr);
        m_pointer.moveTo(cHome + QPoint(4, 200));
        QTRY_VERIFY_WITH_TIMEOUT(isShapeAt(QPoint(4, 200), Qt::SizeHorCursor), cPatienceMs);
        m_pointer.moveTo(cHome + QPoint(5, 200));
        QTRY_VERIFY_WITH_TIMEOUT(isShapeAt(QPoint(5, 200), Qt::ArrowCursor), cPatienceMs);
    }

    void edgeIsKeptDuringItsDrag_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QPoint>("edge");
        QTest::addColumn<QPoint>("by");
        QTest::newRow("voice page, over the parts") << int(CVoipWidget::Voice) << QPoint(1, 200) << QPoint(150, 0);
        QTest::newRow("voice page, out and in again") << int(CVoipWidget::Voice) << QPoint(1, 200) << QPoint(-40, 0);
        QTest::newRow("video page, from the right") << int(CVoipWidget::Video) << QPoint(521, 200) << QPoint(-150, 0);
        QTest::newRow("conference page, over the list")
            << int(CVoipWidget::Conference) << QPoint(1, 200) << QPoint(100, 30);
        QTest::newRow("control bar, from below") << int(CVoipWidget::Voice) << QPoint(430, 401) << QPoint(0, -150);
    }

    void edgeIsKeptDuringItsDrag()
    {
        QFETCH(int, type);
        QFETCH(QPoint, edge);
        QFETCH(QPoint, by);
        open(CVoipWidget::VoipType(type));
        m_pointer.moveTo(cHome + edge);
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->cursor().shape() != Qt::ArrowCursor, cPatienceMs);
        const Qt::CursorShape shape = m_pWindow->cursor().shape();
        m_pointer.press(Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(shownBand(), QRect(cHome, cSize), cPatienceMs);
        // There and back, a step at a time: inside of the edge a hover event would read as no edge at all.
        for (const int iStep : {1, 2, 3, 4, 3, 2, 1, 0}) {
            const QPoint place = cHome + edge + by * iStep / 4;
            m_pointer.moveTo(place);
            QTRY_COMPARE_WITH_TIMEOUT(QCursor::pos(), place, cPatienceMs);
            QCoreApplication::processEvents();
            QCOMPARE(m_pWindow->geometry(), QRect(cHome, cSize));
            QCOMPARE(m_pWindow->cursor().shape(), shape);
            QVERIFY(!shownBand().isNull());
        }
        m_pointer.release(Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(shownBand().isNull(), cPatienceMs);
        QCOMPARE(m_pWindow->geometry(), QRect(cHome, cSize));
    }

    void bandIsFourDottedBars()
    {
        open(CVoipWidget::Voice);
        m_pointer.moveTo(cHome + QPoint(1, 200));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->cursor().shape(), Qt::SizeHorCursor, cPatienceMs);
        const int iDensity = qRound(qApp->devicePixelRatio());
        QImage before;
        QVERIFY(QTest::qWaitFor(
            [&] {
                before = screenNow();
                return showsTheWindow(before, iDensity);
            },
            cPatienceMs));

        m_pointer.press(Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(shownBand(), QRect(cHome, cSize), cPatienceMs);
        QString strWrong;
        const auto isRight = [&](const QRect &band) {
            strWrong = complaint(before, screenNow(), band, iDensity);
            return strWrong.isEmpty();
        };
        QVERIFY2(QTest::qWaitFor([&] { return isRight(QRect(cHome, cSize)); }, cPatienceMs), qPrintable(strWrong));

        m_pointer.moveTo(cHome + QPoint(-60, 210));
        const QRect larger(cHome - QPoint(60, 0), cSize + QSize(60, 0));
        QTRY_COMPARE_WITH_TIMEOUT(shownBand(), larger, cPatienceMs);
        QVERIFY2(QTest::qWaitFor([&] { return isRight(larger); }, cPatienceMs), qPrintable(strWrong));

        m_pointer.release(Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(shownBand().isNull(), cPatienceMs);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallWindowPointer, Widgets)

#include "tst_CallWindowPointer.moc"
