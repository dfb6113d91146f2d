#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The tour's part about the call service: one that does not stay, started by the button, and one that comes back by
/// itself.
namespace TourService {

/// Lets no call process stay that is started from now on.
void refuseToStart();

/// Begins without a call process and ends with one.
QList<TourStep> steps(const TourStage &stage);

} // namespace TourService
