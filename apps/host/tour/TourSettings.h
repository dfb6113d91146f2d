#pragma once

#include "tour/Tour.h"
#include "tour/TourStage.h"

/// The steps in the search field of the contacts.
QList<TourStep> searchSteps(const TourStage &stage);

/// The steps on the settings page: ring, colour and language, each put back as it was. For the end of the tour: between
/// two of them the client speaks another language.
QList<TourStep> settingsSteps(const TourStage &stage);
