#include "tour/TourService.h"

#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "session/HostSession.h"
#include "tour/TourCast.h"
#include "tour/TourScript.h"

#include "robots/StandIn.h"

using namespace TourCast;

namespace {

// Time for the pointer to reach the button before the next try takes the button away.
constexpr int cEnoughSeconds = 4;

/// Lets the call process start and presses the button, at a moment when no other try is near.
TourScript::Action startByButton(const TourScript &s, const TourStage &stage)
{
    return [service = &stage.session.callService(), press = s.pressMain("btnStartService")] {
        if (service->state() != CallService::GivenUp && service->secondsToNext() < cEnoughSeconds) {
            return false;
        }
        qunsetenv(StandIn::cScenarioVariable);
        return press();
    };
}

} // namespace

void TourService::refuseToStart()
{
    qputenv(StandIn::cScenarioVariable, "/none");
}

QList<TourStep> TourService::steps(const TourStage &stage)
{
    const TourScript s(stage);
    const TourCheck registered = s.command(Wire::Command::RegeditUser,
                                           QStringLiteral("\"param1\":\"%1\"").arg(QLatin1String(ContactBook::cOwnId)));
    const QList<TourCheck> wellAgain{s.mainSays("btnOnline", u("Online")), s.mainShows("CallServiceBar", false)};
    return {
        {u("Look at what the client says of it"),
         {},
         {s.mainShows("CallServiceBar", true), s.mainShows("btnStartService", true)},
         cUsualLimitMs,
         u("call-service-lost"),
         s.mainWindow()},
        {u("Start it by the button: the plug-in finds it by itself and registers the user"),
         startByButton(s, stage),
         {s.processes(1), registered},
         2 * cUsualLimitMs},
        {u("Wait until the user is online"), {}, wellAgain},
        {u("Kill the call process once more: it comes back by itself"),
         [process = &stage.process] {
             process->kill();
             return true;
         },
         {s.mainShows("CallServiceBar", true), registered, s.processes(1)},
         2 * cUsualLimitMs},
        {u("Wait until the user is online again"),
         {},
         wellAgain,
         cUsualLimitMs,
         u("call-service-again"),
         s.mainWindow()},
    };
}
