// many_engines [COUNT]: makes and destroys that many engines in one process, one after another, each of them
// interrupted somewhere between its start and a second ring. For tests/engine/many_engines.sh, whose sound server fails
// meanwhile.

#include "fakes/EngineFixture.h"

#include <QApplication>
#include <QSound>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

/// Lets the event loop and the player's threads work for a while, which differs from engine to engine.
void pass(std::minstd_rand &random)
{
    for (auto turns = random() % 4; turns > 0; --turns) {
        QCoreApplication::processEvents();
        QThread::usleep(random() % 2000);
    }
}

bool rings(const EngineFixture &fixture)
{
    return !fixture.manager->m_pRingSound->isFinished();
}

/// Whether the engine rang when told to and fell silent when told to.
bool works(std::minstd_rand &random)
{
    EngineFixture fixture;
    for (auto calls = random() % 3; calls > 0; --calls) {
        pass(random);
        fixture.notify(Code::IncomingCall, QStringLiteral("bert"));
        if (!rings(fixture)) {
            return false;
        }
        pass(random);
        if (random() % 2 == 0) {
            return true;
        }
        fixture.manager->rejectVoipCall();
        if (rings(fixture)) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 100;
    std::minstd_rand random(1);
    for (int made = 0; made < count; ++made) {
        if (!works(random)) {
            std::printf("engine %d does not ring, or does not stop\n", made);
            return EXIT_FAILURE;
        }
    }
    std::printf("%d engines\n", count);
    return EXIT_SUCCESS;
}
