#include "tour/TourUsers.h"

#include "panes/MainWindow.h"
#include "tour/OtherClient.h"
#include "tour/TourCast.h"
#include "tour/TourScript.h"

#include <memory>

using namespace TourCast;

QList<TourStep> userSteps(const TourStage &stage)
{
    const auto other = std::make_shared<OtherClient>();
    const TourScript s(stage);
    const auto isActive = [window = &stage.window] { return window->isActiveWindow(); };
    return {
        {u("Sign in as 李雷 too, by a client beside this one"),
         [other] {
             return other->start({u("--user"), QLatin1String(answers)});
         },
         {{u("a call process of its own has registered 李雷"), [other] { return other->hasRegistered(answers); }},
          {u("its window has come up"), [isActive] { return !isActive(); }},
          s.mainSays("btnOnline", u("Online")),
          s.processes(1)},
         cUsualLimitMs,
         u("second-user"),
         {}},
        {u("End that client"),
         [other] { return other->terminate(); },
         {{u("it has ended"), [other] { return other->hasEnded(130); }},
          {u("its call process has ended with it"), [other] { return other->hasTraced("stopped listening"); }},
          s.processes(1)}},
        {u("Start a client of this user once more"),
         [other, window = &stage.window] {
             window->showMinimized();
             return other->start({});
         },
         {{u("it has ended at once"), [other] { return other->hasEnded(0); }},
          {u("this window has come to the front"),
           [isActive, window = &stage.window] { return isActive() && !window->isMinimized(); }}}},
    };
}
