#pragma once

#include "Tour.h"

class CallProcess;
class HostSession;
class MainWindow;
class TourHand;

/// What the tour's steps act on and look at. All must outlive the tour.
struct TourStage
{
    HostSession &session;
    MainWindow &window;
    TourWatch &watch;
    TourHand &hand;
    const CallProcess &process;
};

/// The steps of the guided tour, in order: from signing in over each way a call can end to the client's end.
QList<TourStep> tourSteps(const TourStage &stage);
