#include "FuzzTargets.h"

#include "fakes/SanitizedBuild.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iterator>

namespace {

qint64 cpuMicroseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000 + time.tv_nsec / 1000;
}

} // namespace

const FuzzTarget *findFuzzTarget(const char *name)
{
    const auto *end = std::end(cFuzzTargets);
    const auto *row = std::find_if(std::begin(cFuzzTargets), end,
                                   [name](const FuzzTarget &target) { return std::strcmp(target.name, name) == 0; });
    return row == end ? nullptr : row;
}

bool isSanitized()
{
    return cSanitized;
}

int mostCpuMs(const FuzzTarget &target)
{
    return target.hangMs * cSanitizerFactor;
}

int cpuMsOf(const FuzzTarget &target, const QByteArray &input)
{
    const qint64 begin = cpuMicroseconds();
    target.run(input);
    return int((cpuMicroseconds() - begin) / 1000);
}

void requirePromise(bool kept, const char *text)
{
    if (kept) {
        return;
    }
    std::fprintf(stderr, "broken promise: %s\n", text);
    std::abort();
}
