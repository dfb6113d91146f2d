#include "screen/WindowProbe.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

constexpr int cIdRole = Qt::UserRole + 90;
constexpr int cRectRole = Qt::UserRole + 10;

QStandardItem *itemOf(const char *strId, const QRect &rect = QRect())
{
    auto *item = new QStandardItem(QLatin1String(strId));
    item->setData(QLatin1String(strId), cIdRole);
    item->setData(rect, cRectRole);
    return item;
}

} // namespace

class tst_WindowProbe : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_rows.clear();
        m_cells.clear();
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(window());
        m_list = new QListView;
        m_list->setObjectName(QStringLiteral("rows"));
        m_list->setModel(&m_rows);
        auto *grid = new QTableView;
        grid->setObjectName(QStringLiteral("cells"));
        grid->setModel(&m_cells);
        auto *button = new QPushButton;
        button->setObjectName(QStringLiteral("button"));
        for (QWidget *part :
             {static_cast<QWidget *>(m_list), static_cast<QWidget *>(grid), static_cast<QWidget *>(button)}) {
            layout->addWidget(part);
        }
        for (int i = 0; i < 100; ++i) {
            m_rows.appendRow(itemOf(QByteArray::number(i).constData(), i == 0 ? QRect(10, 4, 20, 10) : QRect()));
        }
        m_cells.setItem(0, 0, itemOf("a"));
        m_cells.setItem(0, 1, itemOf("b"));
        m_cells.setItem(1, 0, itemOf("c"));
        window()->resize(400, 400);
        window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(window(), cPatienceMs));
    }

    void cellOfAnyColumnIsFound()
    {
        QCOMPARE(WindowProbe::rowData(window(), {"cells", cIdRole, QStringLiteral("b")}, Qt::DisplayRole).toString(),
                 QStringLiteral("b"));
        QVERIFY(!WindowProbe::rowData(window(), {"cells", cIdRole, QStringLiteral("d")}, Qt::DisplayRole).isValid());
    }

    void emptyCellsDoNotCount()
    {
        QCOMPARE(WindowProbe::rowCount(window(), "cells", cIdRole), 3);
        QCOMPARE(WindowProbe::rowCount(window(), "rows", cIdRole), 100);
    }

    void rowThatIsScrolledAwayHasNoPlace()
    {
        QCOMPARE(WindowProbe::rowMiddle(window(), {"rows", cIdRole, QStringLiteral("0")}).widget, m_list->viewport());
        QVERIFY(WindowProbe::rowMiddle(window(), {"rows", cIdRole, QStringLiteral("99")}).widget == nullptr);
        m_list->scrollToBottom();
        QCOMPARE(WindowProbe::rowMiddle(window(), {"rows", cIdRole, QStringLiteral("99")}).widget, m_list->viewport());
    }

    void partIsTheMiddleOfItsRectangle()
    {
        const WindowProbe::Spot spot =
            WindowProbe::rowPart(window(), {"rows", cIdRole, QStringLiteral("0")}, cRectRole);
        QCOMPARE(spot.widget, m_list->viewport());
        QCOMPARE(spot.place, QRect(10, 4, 20, 10).center());
    }

    void rowWithoutThatPartHasNoPlace()
    {
        QVERIFY(WindowProbe::rowPart(window(), {"rows", cIdRole, QStringLiteral("1")}, cRectRole).widget == nullptr);
        QVERIFY(WindowProbe::rowPart(window(), {"rows", cIdRole, QStringLiteral("no")}, cRectRole).widget == nullptr);
    }

    void hiddenListHasNoRows()
    {
        m_list->hide();
        QCOMPARE(WindowProbe::rowCount(window(), "rows", cIdRole), -1);
        QVERIFY(WindowProbe::rowMiddle(window(), {"rows", cIdRole, QStringLiteral("0")}).widget == nullptr);
    }

    void buttonThatCannotBePressedHasNoPlace()
    {
        auto *button = window()->findChild<QPushButton *>();
        QCOMPARE(WindowProbe::button(window(), "button").widget, button);
        button->setEnabled(false);
        QVERIFY(WindowProbe::button(window(), "button").widget == nullptr);
        button->setEnabled(true);
        button->hide();
        QVERIFY(WindowProbe::button(window(), "button").widget == nullptr);
        QVERIFY(WindowProbe::button(nullptr, "button").widget == nullptr);
    }

    void windowThatIsTooSmallGetsItsSizeBackForThePicture()
    {
        const QString file = QDir::current().filePath(QStringLiteral("window.png"));
        const QSize least = window()->minimumSizeHint();
        window()->layout()->setSizeConstraint(QLayout::SetNoConstraint);
        window()->setMinimumSize(1, 1);
        window()->resize(least / 2);
        QVERIFY(window()->frameGeometry().width() < least.width());
        QVERIFY(!WindowProbe::savePicture(window(), file));
        QVERIFY(!QFile::exists(file));
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::savePicture(window(), file), cPatienceMs);
        const QSize saved = QImage(file).size();
        QVERIFY2(saved.width() >= least.width() && saved.height() >= least.height(),
                 qPrintable(QStringLiteral("%1x%2").arg(saved.width()).arg(saved.height())));
        QVERIFY(!WindowProbe::savePicture(nullptr, file));
    }

    // Qt may ask for the frame before the window manager has given it its size.
    void windowOfAFrameThatIsSmallerThanItselfIsInThePicture()
    {
        const QString file = QDir::current().filePath(QStringLiteral("frame.png"));
        QVERIFY(QTest::qWaitForWindowExposed(window(), cPatienceMs));
        std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display(xcb_connect(nullptr, nullptr),
                                                                             xcb_disconnect);
        const xcb_atom_t extents = atom(display.get(), "_NET_FRAME_EXTENTS");
        const auto pixel = [](int iSide) { return 1 - iSide; };
        const qint32 onePixel[] = {0, pixel(window()->width() + 1), 0, pixel(window()->height())};
        xcb_change_property(display.get(), XCB_PROP_MODE_REPLACE, xcb_window_t(window()->winId()), extents,
                            XCB_ATOM_CARDINAL, 32, 4, onePixel);
        xcb_flush(display.get());
        window()->resize(window()->width() + 1, window()->height());
        QTRY_COMPARE_WITH_TIMEOUT(window()->frameGeometry().size(), QSize(1, 1), cPatienceMs);

        QVERIFY(WindowProbe::savePicture(window(), file));
        QCOMPARE(QImage(file).size(), window()->size());
    }

private:
    static xcb_atom_t atom(xcb_connection_t *display, const QByteArray &name)
    {
        const xcb_intern_atom_cookie_t asked =
            xcb_intern_atom(display, 0, static_cast<uint16_t>(name.size()), name.constData());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(display, asked, nullptr), std::free);
        return reply->atom;
    }
    QWidget *window() const { return m_window.get(); }

    std::unique_ptr<QWidget> m_window;
    QStandardItemModel m_rows;
    QStandardItemModel m_cells;
    QListView *m_list = nullptr;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WindowProbe, Widgets)
#include "tst_WindowProbe.moc"
