#pragma once

// Counts the QObjects of the process that live, those made inside Qt and inside the module included.

/// A count of living objects. GUI thread for all functions but the counting itself, which follows every thread.
#include <QMap>
#include <QStringList>

namespace ObjectCensus {

/// Begins to count; before the first object is made.
void start();

/// How many objects live, by their classes.
QMap<QString, int> objects();

/// The timers that run on the GUI thread, QTimers and those that objects start for themselves: for each the class of
/// the object that it belongs to, of a QTimer that of its parent behind a colon, and the interval in milliseconds;
/// sorted.
QStringList runningTimers();

} // namespace ObjectCensus
