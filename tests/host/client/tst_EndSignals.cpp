#include "client/EndSignals.h"

#include "fakes/Patience.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

class tst_EndSignals : public QObject
{
    Q_OBJECT

private slots:
    void requestToEndArrivesThroughTheEventLoop_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("interrupt") << SIGINT;
        QTest::newRow("terminate") << SIGTERM;
        QTest::newRow("hang up") << SIGHUP;
    }

    void requestToEndArrivesThroughTheEventLoop()
    {
        QFETCH(int, number);
        const EndSignals endSignals;
        QSignalSpy requested(&endSignals, &EndSignals::endRequested);
        ::raise(number);
        QCOMPARE(requested.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(requested.count(), 1, cPatienceMs);
    }

    void defaultHandlingComesBack()
    {
        {
            const EndSignals endSignals;
        }
        struct sigaction action = {};
        QCOMPARE(::sigaction(SIGTERM, nullptr, &action), 0);
        QVERIFY(action.sa_handler == SIG_DFL);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EndSignals, Guiless)
#include "tst_EndSignals.moc"
