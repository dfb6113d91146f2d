// Divides the process at a moment when no other thread is inside AddressSanitizer's allocator. The new process gets
// that allocator as it stands, and a lock that another thread holds is never opened there: it waits for ever as soon as
// it allocates, which Qt's detached start does before it runs the program, and the one that started it waits with it.
// The C library keeps its own allocator's locks from that, but does not know of this one. Linked into every program
// that is built for AddressSanitizer.

#include "OtherThreads.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr useconds_t cPauseUs = 200;
constexpr int cAttempts = 5000;

/// Keeps a new process waiting until the old one has found out whether it is sound.
class Verdict
{
public:
    Verdict() : m_bOpen(pipe2(m_ends, O_CLOEXEC) == 0) {}
    ~Verdict() { shut(); }
    Verdict(const Verdict &) = delete;
    Verdict &operator=(const Verdict &) = delete;

    bool isOpen() const { return m_bOpen; }

    /// In the old process: whether the new one goes on.
    void give(bool bSound)
    {
        const char word = bSound ? 1 : 0;
        while (m_bOpen && write(m_ends[1], &word, 1) < 0) {
        }
    }

    /// In the new process. One whose old process has ended does not go on.
    bool await()
    {
        if (m_bOpen) {
            close(std::exchange(m_ends[1], -1));
        }
        char word = 0;
        while (m_bOpen && read(m_ends[0], &word, 1) < 0) {
        }
        shut();
        return word != 0;
    }

private:
    void shut()
    {
        for (int &end : m_ends) {
            if (end >= 0) {
                close(std::exchange(end, -1));
            }
        }
    }

    int m_ends[2] = {-1, -1};
    bool m_bOpen;
};

} // namespace

extern "C" __attribute__((visibility("default"))) pid_t fork() noexcept
{
    static auto *const s_own = reinterpret_cast<pid_t (*)()>(dlsym(RTLD_NEXT, "fork"));
    for (int attempt = 1;; ++attempt) {
        const OtherThreads before = OtherThreads::look();
        Verdict verdict;
        if (before.sum == 0 || attempt == cAttempts || !verdict.isOpen()) {
            return s_own();
        }
        if (before.bAsleep) {
            const pid_t child = s_own();
            if (child < 0) {
                return child;
            }
            if (child == 0) {
                if (!verdict.await()) {
                    _exit(0);
                }
                return 0;
            }
            const bool bSound = OtherThreads::look().haveSleptSince(before);
            verdict.give(bSound);
            if (bSound) {
                return child;
            }
            waitpid(child, nullptr, 0);
        }
        usleep(cPauseUs);
    }
}
