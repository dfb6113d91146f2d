#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The steps in the conference centre: looks at the conferences that the tour has held, calls its own one again and
/// deletes it. They follow the conference steps, whose records they find: two, the older one the user's own.
QList<TourStep> centreSteps(const TourStage &stage);
