#include "soak/ObjectCensus.h"

#include <QAbstractEventDispatcher>
#include <QMutex>
#include <QObject>
#include <QThread>

#include <unordered_set>

// Qt's places for tools that follow its objects. They stand in no public header; their order is fixed by the version in
// the first of them.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace {

constexpr int cAddObject = 3;
constexpr int cRemoveObject = 4;

struct Living
{
    QMutex mutex;
    std::unordered_set<QObject *> objects;
};

Living &living()
{
    // Never destroyed: objects that end with the process still report.
    static auto *s_living = new Living;
    return *s_living;
}

void added(QObject *object)
{
    const QMutexLocker lock(&living().mutex);
    living().objects.insert(object);
}

void removed(QObject *object)
{
    const QMutexLocker lock(&living().mutex);
    living().objects.erase(object);
}

} // namespace

void ObjectCensus::start()
{
    qtHookData[cAddObject] = reinterpret_cast<quintptr>(&added);
    qtHookData[cRemoveObject] = reinterpret_cast<quintptr>(&removed);
}

QMap<QString, int> ObjectCensus::objects()
{
    QMap<QString, int> counts;
    const QMutexLocker lock(&living().mutex);
    for (const QObject *object : living().objects) {
        ++counts[QLatin1String(object->metaObject()->className())];
    }
    return counts;
}

QStringList ObjectCensus::runningTimers()
{
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    QStringList timers;
    const QMutexLocker lock(&living().mutex);
    for (QObject *object : living().objects) {
        if (object->thread() != QThread::currentThread()) {
            continue;
        }
        const QObject *parent = object->parent();
        const QString owner = QLatin1String(object->metaObject()->className()) + QLatin1Char(':') +
                              QLatin1String(parent != nullptr ? parent->metaObject()->className() : "");
        const auto running = dispatcher->registeredTimers(object);
        for (const auto &timer : running) {
            timers.append(QStringLiteral("%1 %2 ms").arg(owner).arg(timer.interval));
        }
    }
    timers.sort();
    return timers;
}
