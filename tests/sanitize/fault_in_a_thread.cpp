// Writes where nobody may in a thread that blocks all signals.

#include <csignal>
#include <cstdlib>
#include <pthread.h>
#include <sys/mman.h>
#include <thread>

namespace {

void fail()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    void *page = mmap(nullptr, 1, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (page != MAP_FAILED) {
        *static_cast<volatile char *>(page) = 1;
    }
}

} // namespace

int main()
{
    std::thread(fail).join();
    return EXIT_SUCCESS;
}
