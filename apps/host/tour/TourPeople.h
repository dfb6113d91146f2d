#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The tour of calls between people: three clients, each with a call process for real calls, go through the same steps,
/// each seeing to its own. The first two call one another; what each one's loudspeaker gets stands in the tour's
/// folder, as heard-ID.raw, and their microphones hear a tone of 440 and of 660 Hz.
namespace TourPeople {

/// The steps as the user of that id has them. An id of nobody who takes part: none.
QList<TourStep> steps(const TourStage &stage, const QString &strUid, const QString &strFolder);

} // namespace TourPeople
