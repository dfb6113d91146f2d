#include "tour/TourHistory.h"

#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "tour/TourCast.h"
#include "tour/TourScript.h"

#include <QCoreApplication>
#include <QTableView>

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

/// The client's session that comes after the one of the stage.
struct NextSession
{
    ContactBook book{HostSession::loginDomain()};
    std::unique_ptr<HostSession> session;
    std::unique_ptr<MainWindow> window;

    bool start()
    {
        session = std::make_unique<HostSession>(book);
        QString error;
        const bool ok =
            session->start(QCoreApplication::applicationDirPath() + QStringLiteral("/libVoipManage.so"), &error);
        window = std::make_unique<MainWindow>(*session, book);
        return ok;
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
    const auto next = std::make_shared<NextSession>();
    const auto kept = [next, window = &stage.window] {
        return next->window != nullptr && !shownCalls(window).isEmpty() &&
               shownCalls(next->window.get()) == shownCalls(window);
    };
    return {
        {u("Start the client's session again"),
         [next] {
             const bool ok = next->start();
             next->window->move(20, 20);
             next->window->show();
             return ok;
         },
         {{u("the list of calls is as it was"), kept}},
         cUsualLimitMs,
         u("history-restarted"),
         [next] { return next->window.get(); }},
        {u("Close the window"),
         [next] { return next->window->close(); },
         {{u("it is gone"), [next] { return !next->window->isVisible(); }}}},
    };
}
