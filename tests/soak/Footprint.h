#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// What the process holds at one moment. GUI thread.
struct Footprint
{
    qint64 heapBytes = 0;     ///< given out by the allocator and not given back, in all its arenas
    qint64 residentBytes = 0; ///< of physical memory
    int descriptors = 0;
    int windows = 0;    ///< top windows, shown or hidden
    QStringList timers; ///< that run on the GUI thread, see ObjectCensus

    QMap<QString, int> objects; ///< QObjects, by their classes

    /// How many QObjects.
    int objectCount() const;

    /// Measures, after what the allocator holds in reserve was given back to the system.
    static Footprint now();

    /// Bytes that the allocator has given out.
    static qint64 heapInUse();

    /// Whether the allocator tells what it has given out: not the one of AddressSanitizer.
    static bool isHeapKnown();

    /// One line, for people.
    QString text() const;
};
