#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The steps of the guided tour, in order: from signing in over each way a call can end to the client's end.
QList<TourStep> tourSteps(const TourStage &stage);
