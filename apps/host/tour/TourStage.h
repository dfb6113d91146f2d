#pragma once

class CallProcess;
class HostSession;
class MainWindow;
class SingleInstance;
class TourHand;
class TourWatch;

/// What the tour's steps act on and look at. All must outlive the tour.
struct TourStage
{
    HostSession &session;
    MainWindow &window;
    TourWatch &watch;
    TourHand &hand;
    const CallProcess &process;
    SingleInstance &instance;
};
