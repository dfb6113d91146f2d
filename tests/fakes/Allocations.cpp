#include "fakes/Allocations.h"

#include <QtGlobal>

#include <cstdlib>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
/// The sanitizer's own, which the compiler's headers do not declare.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void *, std::size_t),
                                                         void (*freed)(const volatile void *));
#endif

namespace {

// Of each thread its own; no constructor, since the first block is asked for before any could run.
thread_local bool isCounting = false;
thread_local int blocks = 0;

void count()
{
    if (isCounting) {
        ++blocks;
    }
}

} // namespace

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

namespace {

// The sanitizer's own functions must stay; they tell of each block.
const int cIsHooked = __sanitizer_install_malloc_and_free_hooks([](const volatile void *, std::size_t) { count(); },
                                                                [](const volatile void *) {});

} // namespace

#else

/// The system's own, behind those that stand before them here.
extern "C" void *__libc_malloc(std::size_t size);                     // NOLINT(bugprone-reserved-identifier)
extern "C" void *__libc_calloc(std::size_t number, std::size_t size); // NOLINT(bugprone-reserved-identifier)
extern "C" void *__libc_realloc(void *block, std::size_t size);       // NOLINT(bugprone-reserved-identifier)

extern "C" Q_DECL_EXPORT void *malloc(std::size_t size)
{
    count();
    return __libc_malloc(size);
}

extern "C" Q_DECL_EXPORT void *calloc(std::size_t number, std::size_t size)
{
    count();
    return __libc_calloc(number, size);
}

extern "C" Q_DECL_EXPORT void *realloc(void *block, std::size_t size)
{
    count();
    return __libc_realloc(block, size);
}

#endif

int Allocations::during(const std::function<void()> &work)
{
    blocks = 0;
    isCounting = true;
    work();
    isCounting = false;
    return blocks;
}
