// What the channel does with a call process that has stopped reading: sending does not wait, and the end waits a second
// and no longer.

#include "fakes/EngineFixture.h"

#include <QElapsedTimer>
#include <QTest>

#include <chrono>
#include <future>

#include <sys/socket.h>

namespace {

// Far more than the system takes for a socket that nobody reads.
constexpr int kMessageSize = 4 * 1024 * 1024;

} // namespace

class tst_ChannelWaits : public QObject
{
    Q_OBJECT

private slots:
    void sendingToAPeerThatDoesNotReadDoesNotWait();
    void endWithAPeerThatDoesNotReadTakesASecond();
};

void tst_ChannelWaits::sendingToAPeerThatDoesNotReadDoesNotWait()
{
    EngineFixture f;
    f.takeLines();
    QCOMPARE(f.manager->m_pVoipSocket->bytesToWrite(), Q_INT64_C(0));
    f.manager->sendVoipMessage(QString(kMessageSize, 'x'));
    // Not a byte has gone yet: who waits or flushes writes some.
    QCOMPARE(f.manager->m_pVoipSocket->bytesToWrite(), static_cast<qint64>(kMessageSize));
    QVERIFY(f.manager->m_bSocketConnected);
}

void tst_ChannelWaits::endWithAPeerThatDoesNotReadTakesASecond()
{
    EngineFixture f;
    f.takeLines();
    f.manager->sendVoipMessage(QString(kMessageSize, 'x'));

    // Who would wait for ever is set free, so that the test can say so.
    std::promise<void> returned;
    auto freed =
        std::async(std::launch::async, [end = returned.get_future(),
                                        socket = static_cast<int>(f.manager->m_pVoipSocket->socketDescriptor())] {
            if (end.wait_for(std::chrono::seconds(5)) == std::future_status::ready)
                return false;
            shutdown(socket, SHUT_RDWR);
            return true;
        });
    QElapsedTimer clock;
    clock.start();
    f.manager->disconnectVoipSDKSocket();
    const qint64 waited = clock.elapsed();
    returned.set_value();
    QVERIFY2(!freed.get(), "the end of the channel waits on");
    QVERIFY2(waited >= 900, qPrintable(QString::number(waited)));
    QVERIFY(!f.manager->m_pVoipSocket);
    QVERIFY(!f.manager->m_bSocketConnected);
}

#include "support/TestProgram.h"
VOIP_TEST(tst_ChannelWaits, Widgets)
#include "tst_ChannelWaits.moc"
