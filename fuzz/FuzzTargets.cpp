#include "FuzzTargets.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iterator>

namespace {

// The sanitizers' own share, with assertions on and little optimisation.
constexpr int kSanitizerFactor = 4;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;
#elif defined(__has_feature)
constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
constexpr bool kSanitized = false;
#endif

qint64 cpuMicroseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000 + time.tv_nsec / 1000;
}

} // namespace

const FuzzTarget *findFuzzTarget(const char *name)
{
    const auto *end = std::end(fuzzTargets);
    const auto *row = std::find_if(std::begin(fuzzTargets), end,
                                   [name](const FuzzTarget &target) { return std::strcmp(target.name, name) == 0; });
    return row == end ? nullptr : row;
}

bool isSanitized()
{
    return kSanitized;
}

int mostCpuMs(const FuzzTarget &target)
{
    return kSanitized ? target.hangMs * kSanitizerFactor : target.hangMs;
}

int cpuMsOf(const FuzzTarget &target, const QByteArray &input)
{
    const qint64 begin = cpuMicroseconds();
    target.run(input);
    return int((cpuMicroseconds() - begin) / 1000);
}

void requirePromise(bool kept, const char *text)
{
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", text);
    std::abort();
}
