#include "soak/Footprint.h"

#include "fakes/SanitizedBuild.h"
#include "soak/ObjectCensus.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <numeric>
#include <unistd.h>

namespace {

/// The allocator's own account, in XML.
QString allocatorAccount()
{
    char *text = nullptr;
    std::size_t size = 0;
    FILE *stream = open_memstream(&text, &size);
    malloc_info(0, stream);
    std::fclose(stream);
    const QString account = QString::fromLatin1(text, int(size));
    std::free(text);
    // The arenas come first, the sums of all of them behind the last.
    return account.mid(account.lastIndexOf(QStringLiteral("</heap>")));
}

qint64 sizeOf(const QString &account, const QString &entry)
{
    const QRegularExpression pattern(entry + QStringLiteral("[^>]* size=\"(\\d+)\""));
    return pattern.match(account).captured(1).toLongLong();
}

} // namespace

bool Footprint::isHeapKnown()
{
    return !cSanitized;
}

qint64 Footprint::heapInUse()
{
    if (!isHeapKnown()) {
        return 0;
    }
    const QString account = allocatorAccount();
    return sizeOf(account, QStringLiteral("<system type=\"current\"")) +
           sizeOf(account, QStringLiteral("<total type=\"mmap\"")) -
           sizeOf(account, QStringLiteral("<total type=\"fast\"")) -
           sizeOf(account, QStringLiteral("<total type=\"rest\""));
}

Footprint Footprint::now()
{
    Footprint print;
    malloc_trim(0);
    print.heapBytes = heapInUse();
    QFile memory(QStringLiteral("/proc/self/statm"));
    if (memory.open(QIODevice::ReadOnly)) {
        print.residentBytes = memory.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
    }
    memory.close();
    // One of them is that of the folder itself, while it is read.
    print.descriptors = QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size() - 1;
    print.windows = QApplication::topLevelWidgets().size();
    print.timers = ObjectCensus::runningTimers();
    print.objects = ObjectCensus::objects();
    return print;
}

int Footprint::objectCount() const
{
    return std::accumulate(objects.cbegin(), objects.cend(), 0);
}

QString Footprint::text() const
{
    const QString heap = isHeapKnown() ? QStringLiteral("%L1 bytes").arg(heapBytes) : QStringLiteral("unknown");
    return QStringLiteral("heap in use %1, resident %L2 KiB, %3 descriptors, %4 windows, %5 objects, timers: %6")
        .arg(heap)
        .arg(residentBytes / 1024)
        .arg(descriptors)
        .arg(windows)
        .arg(objectCount())
        .arg(timers.join(QStringLiteral(", ")));
}
