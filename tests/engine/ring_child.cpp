// A process that takes the ring and ends at once, while the ring's file is still being read: as a client that is closed
// right after its start. Its first argument says how it ends and its second whether it rings at that moment.

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
    if (argc > 2 && std::strcmp(argv[2], "ringing") == 0)
        player->play();
    // What Qt knows of calendars comes behind the player and goes before it.
    const bool bKnown = !QDateTime::currentDateTime().toString(QStringLiteral("ddd")).isEmpty();
    if (argc > 1 && std::strcmp(argv[1], "exit") == 0)
        std::exit(bKnown ? EXIT_SUCCESS : EXIT_FAILURE);
    return bKnown ? EXIT_SUCCESS : EXIT_FAILURE;
}
