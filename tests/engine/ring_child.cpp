// A process that makes its engine and ends at once, while the ring's file is still being read: as a client that is
// closed right after its start. Its first argument says how it ends and its second whether it rings at that moment.

#include "engine/VoipManage.h"

#include <QApplication>

#include <cstdlib>
#include <cstring>

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    CVoipManage *manager = CVoipManage::instance();
    if (argc > 2 && std::strcmp(argv[2], "ringing") == 0)
        manager->playReceviceCall();
    if (argc > 1 && std::strcmp(argv[1], "exit") == 0)
        std::exit(EXIT_SUCCESS);
    return EXIT_SUCCESS;
}
