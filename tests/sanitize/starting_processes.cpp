// Starts processes by Qt's means, each of them asked for while another thread allocates, which rests in between. Qt
// encodes the program's path in the new process: it is long, so that the room for it comes from where the other thread
// gets its own.

#include <QProcess>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int cProcesses = 20;
constexpr int cLength = 3000;
constexpr int cBlocks = 3000;
constexpr useconds_t cRestUs = 300000;

void allocateInBursts(const std::atomic<bool> &bEnough, std::atomic<bool> &bBusy)
{
    while (!bEnough) {
        bBusy = true;
        std::vector<std::vector<char>> blocks;
        blocks.reserve(cBlocks);
        for (int i = 0; i < cBlocks; ++i) {
            blocks.emplace_back(cLength);
        }
        blocks.clear();
        bBusy = false;
        usleep(cRestUs);
    }
}

} // namespace

int main()
{
    QString path = QStringLiteral("/bin/true");
    while (path.size() < cLength) {
        path.prepend(QStringLiteral("/bin/.."));
    }
    std::atomic<bool> bEnough{false};
    std::atomic<bool> bBusy{false};
    std::thread other(allocateInBursts, std::cref(bEnough), std::ref(bBusy));
    int started = 0;
    for (int i = 0; i < cProcesses; ++i) {
        while (!bBusy) {
            std::this_thread::yield();
        }
        started += QProcess::startDetached(path, QStringList());
    }
    bEnough = true;
    other.join();
    std::printf("%d of %d started\n", started, cProcesses);
    return started == cProcesses ? EXIT_SUCCESS : EXIT_FAILURE;
}
