#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The part of the tour that looks at the calls so far: filter, search, what the client has still to tell.
QList<TourStep> historySteps(const TourStage &stage);

/// The part, behind the end of the client's session, that starts the client again, as a process: the calls are there.
/// The stage's session must have quit.
QList<TourStep> restartSteps(const TourStage &stage);
