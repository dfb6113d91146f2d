#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The steps of the guided tour that hold conferences: one of the user's own with everything that can be done in it,
/// one to which the user is invited, one that cannot be created, and what the user's store keeps of them.
QList<TourStep> conferenceSteps(const TourStage &stage);
