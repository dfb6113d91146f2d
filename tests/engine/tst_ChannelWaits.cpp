// What the channel does with a call process that has stopped reading: sending does not wait, and the end waits a second
// and no longer.

#include "fakes/EngineFixture.h"
#include "fakes/ShiftedClock.h"

#include <QTest>
#include <QVector>

#include <atomic>
#include <dlfcn.h>
#include <poll.h>

namespace {

// Far more than the system takes for a socket that nobody reads.
constexpr int cMessageSize = 4 * 1024 * 1024;
constexpr int cForEver = -1;

// The socket whose waits are told instead of waited; none while it is negative.
std::atomic<int> watchedSocket{-1};
QVector<int> waits;

int millisecondsOf(const timespec *timeout)
{
    return timeout ? static_cast<int>(timeout->tv_sec * 1000 + timeout->tv_nsec / 1000000) : cForEver;
}

} // namespace

/// Stands before the system's own, by which Qt waits for a socket: on the watched one the time is over at once.
extern "C" Q_DECL_EXPORT int ppoll(pollfd *fds, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    static const auto real =
        reinterpret_cast<int (*)(pollfd *, nfds_t, const timespec *, const sigset_t *)>(dlsym(RTLD_NEXT, "ppoll"));
    if (count != 1 || watchedSocket < 0 || fds->fd != watchedSocket) {
        return real(fds, count, timeout, mask);
    }
    const int milliseconds = millisecondsOf(timeout);
    if (milliseconds != 0) {
        waits.append(milliseconds);
    }
    return 0;
}

class tst_ChannelWaits : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        watchedSocket = -1;
        ShiftedClock::reset();
    }

    void sendingToAPeerThatDoesNotReadDoesNotWait()
    {
        EngineFixture f;
        f.takeLines();
        QCOMPARE(f.manager->m_pVoipSocket->bytesToWrite(), Q_INT64_C(0));
        f.manager->sendVoipMessage(QString(cMessageSize, 'x'));
        // Not a byte has gone yet: who waits or flushes writes some.
        QCOMPARE(f.manager->m_pVoipSocket->bytesToWrite(), static_cast<qint64>(cMessageSize));
        QVERIFY(f.manager->m_bSocketConnected);
    }

    void endWithAPeerThatDoesNotReadTakesASecond()
    {
        EngineFixture f;
        f.takeLines();
        f.manager->sendVoipMessage(QString(cMessageSize, 'x'));

        waits.clear();
        watchedSocket = static_cast<int>(f.manager->m_pVoipSocket->socketDescriptor());
        // So that a busy machine takes nothing off the time that the wait is given.
        ShiftedClock::holdTimers();
        f.manager->disconnectVoipSDKSocket();
        QCOMPARE(waits, QVector<int>{1000});
        QVERIFY(!f.manager->m_pVoipSocket);
        QVERIFY(!f.manager->m_bSocketConnected);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ChannelWaits, Widgets)
#include "tst_ChannelWaits.moc"
