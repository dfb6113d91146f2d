// The fuzzer of one target, named by the environment variable FUZZ_TARGET; ./fuzz/run starts it.

#include "FuzzApplication.h"
#include "FuzzTargets.h"

#include <QDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

const FuzzTarget *g_pTarget = nullptr;

} // namespace

extern "C" __attribute__((visibility("default"))) int LLVMFuzzerInitialize(int *, char ***);
extern "C" __attribute__((visibility("default"))) int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int LLVMFuzzerInitialize(int *, char ***)
{
    const char *name = std::getenv("FUZZ_TARGET");
    g_pTarget = name ? findFuzzTarget(name) : nullptr;
    if (!g_pTarget) {
        std::fprintf(stderr, "FUZZ_TARGET names no target\n");
        std::exit(2);
    }
    // Never destroyed: what Qt keeps to the end stays reachable, so that only true leaks are told.
    static const auto *s_pApplication = new FuzzApplication(QDir::tempPath());
    static_cast<void>(s_pApplication);
    // The first input pays for what is made once.
    g_pTarget->run(QByteArray());
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const int cpuMs = cpuMsOf(*g_pTarget, input);
    if (cpuMs > mostCpuMs(*g_pTarget)) {
        std::fprintf(stderr, "hang: %d ms of processor time\n", cpuMs);
        requirePromise(false, "an input takes less time than that");
    }
    return 0;
}
