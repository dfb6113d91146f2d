#include "fakes/FreedBlocks.h"

#include <cstdlib>
#include <new>

namespace {

struct Watch
{
    const void *block;
    bool isFreed;
};

constexpr int cWatchLimit = 16;
Watch watches[cWatchLimit] = {};
int watchCount = 0;

} // namespace

void *operator new(std::size_t size)
{
    if (void *block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void *block) noexcept
{
    for (int i = 0; i < watchCount; ++i) {
        if (watches[i].block == block) {
            watches[i].isFreed = true;
        }
    }
    std::free(block);
}

void operator delete(void *block, std::size_t) noexcept
{
    ::operator delete(block);
}

void *FreedBlocks::watched()
{
    if (watchCount == cWatchLimit) {
        std::abort();
    }
    void *block = ::operator new(8);
    watches[watchCount++] = {block, false};
    return block;
}

bool FreedBlocks::isFreed(const void *block)
{
    for (int i = 0; i < watchCount; ++i) {
        // The newest watch of an address counts: a freed block may have been handed out again.
        const Watch &watch = watches[watchCount - 1 - i];
        if (watch.block == block) {
            return watch.isFreed;
        }
    }
    return false;
}
