// A process that takes the ring and ends at once, while the ring's file is still being read: as a client that is closed
// right after its start. With the argument "ringing" it rings at that moment.

#include "engine/CallRing.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QSound>

#include <cstdlib>
#include <cstring>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QSound *player = CallRing::player();
    if (argc > 1 && std::strcmp(argv[1], "ringing") == 0) {
        player->play();
    }
    // What Qt knows of calendars comes behind the player and goes before it.
    const bool bKnown = !QDateTime::currentDateTime().toString(QStringLiteral("ddd")).isEmpty();
    return bKnown ? EXIT_SUCCESS : EXIT_FAILURE;
}
