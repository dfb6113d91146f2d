#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The tour's part about several clients: a second user beside the first, and a second start of the first.
QList<TourStep> userSteps(const TourStage &stage);
