// ending_threads [leak]: waits for many threads by Qt's means and ends at once, while some of them are still ending;
// with "leak" it has lost a block.

#include <QThread>

#include <cstdlib>
#include <memory>
#include <vector>

namespace {

class Short : public QThread
{
protected:
    void run() override { yieldCurrentThread(); }
};

/// Out of main(), whose frame might keep the address.
__attribute__((noinline)) void lose()
{
    [[maybe_unused]] void *volatile block = std::malloc(77);
    block = nullptr;
}

} // namespace

int main(int argc, char ** /*argv*/)
{
    if (argc > 1) {
        for (int i = 0; i < 10; ++i) {
            lose();
        }
    }
    std::vector<std::unique_ptr<Short>> threads;
    for (int i = 0; i < 60; ++i) {
        threads.push_back(std::make_unique<Short>());
        threads.back()->start();
    }
    for (const auto &thread : threads) {
        thread->wait();
    }
    return EXIT_SUCCESS;
}
