#include "tour/TourHistory.h"

#include "client/ContactBook.h"
#include "client/SingleInstance.h"
#include "panes/MainWindow.h"
#include "session/HostSession.h"
#include "tour/OtherClient.h"
#include "tour/TourCast.h"
#include "tour/TourScript.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTableView>

#include <cstring>
#include <memory>

using namespace TourCast;

namespace {

using Steps = QList<TourStep>;

/// The first cells of the rows shown.
QStringList shownCalls(const MainWindow *window)
{
    QStringList calls;
    const QAbstractItemModel *model = window->findChild<QTableView *>(u("tableRecords"))->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        calls << model->index(row, 0).data().toString() + QLatin1Char(' ') + model->index(row, 2).data().toString();
    }
    return calls;
}

/// Every row shown holds the text, and there is one.
TourCheck onlyCallsWith(const TourStage &stage, const QString &strText)
{
    return {QStringLiteral("the list shows the calls with %1 and no other").arg(strText),
            [window = &stage.window, strText] {
                const QStringList calls = shownCalls(window);
                return !calls.isEmpty() && calls.filter(strText).size() == calls.size();
            }};
}

TourCheck everyCall(const TourStage &stage)
{
    return {u("the list shows every call"), [session = &stage.session, window = &stage.window] {
                return shownCalls(window).size() == int(session->history().entries().size());
            }};
}

QImage pixels(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_RGB888);
}

/// Whether the picture stands at that place of the whole, pixel by pixel.
bool standsAt(const QPoint &place, const QImage &picture, const QImage &whole)
{
    constexpr qsizetype bytes = 3;
    for (int row = 0; row < picture.height(); ++row) {
        const uchar *line = whole.constScanLine(place.y() + row) + bytes * place.x();
        if (std::memcmp(line, picture.constScanLine(row), size_t(bytes) * size_t(picture.width())) != 0) {
            return false;
        }
    }
    return true;
}

/// Whether the picture stands somewhere in the whole.
bool standsIn(const QImage &picture, const QImage &whole)
{
    for (int y = 0; y <= whole.height() - picture.height(); ++y) {
        for (int x = 0; x <= whole.width() - picture.width(); ++x) {
            if (standsAt({x, y}, picture, whole)) {
                return true;
            }
        }
    }
    return false;
}

/// What the list of calls shows, and the client that is to show it again.
struct NextStart
{
    OtherClient client;
    QImage list;
    QRect place;

    /// Looks at the list of a window that is closed, without a row that is chosen; false when it has none.
    bool remember(const MainWindow &window)
    {
        auto *table = window.findChild<QTableView *>(u("tableRecords"));
        table->setCurrentIndex(QModelIndex());
        list = pixels(table->viewport()->grab());
        place = {table->viewport()->mapToGlobal(QPoint()), table->viewport()->size()};
        return !shownCalls(&window).isEmpty();
    }
    /// Whether the screen shows the list where it was, but for what a window's frame may shift it.
    bool isOnScreen() const
    {
        constexpr int frame = 40;
        QScreen *screen = QGuiApplication::primaryScreen();
        const QRect around = place.adjusted(-frame, -frame, frame, frame) & screen->geometry();
        return standsIn(list, pixels(screen->grabWindow(0, around.x(), around.y(), around.width(), around.height())));
    }
};

} // namespace

QList<TourStep> historySteps(const TourStage &stage)
{
    const TourScript s(stage);
    return {
        {u("Look at the calls so far, single ones and conferences, and at what nobody has looked at yet"),
         {},
         {s.mainShows("callNotice", true)},
         cUsualLimitMs,
         u("history"),
         s.mainWindow()},
        {u("Say that it has been seen"), s.pressMain("btnSeen"), {s.mainShows("callNotice", false)}},
        {u("Leave the conferences alone in the list"),
         s.pressMain("btnFilterConferences"),
         {onlyCallsWith(stage, u("Conference: "))}},
        {u("Show all calls again"), s.pressMain("btnFilterAll"), {everyCall(stage)}},
        {u("Search them for somebody"),
         s.typeInto("editCallSearch", u("maria")),
         {onlyCallsWith(stage, u("Maria"))},
         cUsualLimitMs,
         u("history-search"),
         s.mainWindow()},
        {u("Empty the search: all calls are there again"), s.pressMain("btnClearCallSearch"), {everyCall(stage)}},
    };
}

QList<TourStep> restartSteps(const TourStage &stage)
{
    const auto next = std::make_shared<NextStart>();
    return {
        {u("Start the client again"),
         [next, stage] {
             stage.instance.release();
             return next->remember(stage.window) && next->client.start({});
         },
         {{u("it has registered the user again"), [next] { return next->client.hasRegistered(ContactBook::cOwnId); }},
          {u("its list of calls is as it was"), [next] { return next->isOnScreen(); }}},
         cUsualLimitMs,
         u("history-restarted"),
         {}},
        {u("End it"),
         [next] { return next->client.terminate(); },
         {{u("it has ended"), [next] { return next->client.hasEnded(130); }},
          {u("its call process has ended with it"), [next] { return next->client.hasTraced("stopped listening"); }}}},
    };
}
