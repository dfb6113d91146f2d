// Tells ThreadSanitizer what Qt's locks order. Qt itself is not built for it, so it would take everything that a QMutex
// guards for unguarded. These functions stand before Qt's own, call them and report. Linked into tests of threads only.

#include <QDeadlineTimer>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <dlfcn.h>
#include <pthread.h>

extern "C" {
void __tsan_acquire(void *address);
void __tsan_release(void *address);
}

namespace {

// A thread that ends wakes those who wait for that: whatever it did before has happened for them.
char s_ends;

template <typename Function>
Function *libraryOwn(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

#define STANDS_BEFORE_QT __attribute__((visibility("default")))

STANDS_BEFORE_QT void QMutex::lock() noexcept
{
    static auto *const s_own = libraryOwn<void(QMutex *)>("_ZN6QMutex4lockEv");
    s_own(this);
    __tsan_acquire(this);
}

STANDS_BEFORE_QT void QMutex::unlock() noexcept
{
    static auto *const s_own = libraryOwn<void(QMutex *)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    s_own(this);
}

STANDS_BEFORE_QT bool QWaitCondition::wait(QMutex *mutex, QDeadlineTimer deadline)
{
    static auto *const s_own = libraryOwn<bool(QWaitCondition *, QMutex *, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_release(mutex);
    const bool woken = s_own(this, mutex, deadline);
    __tsan_acquire(mutex);
    return woken;
}

STANDS_BEFORE_QT bool QThread::wait(QDeadlineTimer deadline)
{
    static auto *const s_own = libraryOwn<bool(QThread *, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool ended = s_own(this, deadline);
    __tsan_acquire(&s_ends);
    return ended;
}

extern "C" STANDS_BEFORE_QT int pthread_cond_broadcast(pthread_cond_t *condition) noexcept
{
    static auto *const s_own = libraryOwn<int(pthread_cond_t *)>("pthread_cond_broadcast");
    __tsan_release(&s_ends);
    return s_own(condition);
}
