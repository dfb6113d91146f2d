#include "OtherThreads.h"

#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// The number behind `key` in what /proc tells of a thread.
unsigned long long numberBehind(const char *text, const char *key)
{
    const char *place = std::strstr(text, key);
    return place ? std::strtoull(place + std::strlen(key), nullptr, 10) : 0;
}

void add(OtherThreads &others, int tasks, const char *thread)
{
    char path[300] = {};
    std::strncat(path, thread, 200);
    std::strncat(path, "/status", 20);
    char text[4096] = {};
    const int file = openat(tasks, path, O_RDONLY | O_CLOEXEC);
    const ssize_t length = file < 0 ? -1 : read(file, text, sizeof text - 1);
    if (file >= 0) {
        close(file);
    }
    // One that has gone between the two was ending.
    others.bAsleep = others.bAsleep && length > 0 && std::strstr(text, "State:\tS");
    others.sum += std::strtoull(thread, nullptr, 10) * 1000003 + numberBehind(text, "\nvoluntary_ctxt_switches:") +
                  numberBehind(text, "\nnonvoluntary_ctxt_switches:");
}

} // namespace

OtherThreads OtherThreads::look()
{
    OtherThreads others;
    DIR *folder = opendir("/proc/self/task");
    if (!folder) {
        return others;
    }
    while (const dirent *entry = readdir(folder)) {
        if (entry->d_name[0] != '.' && std::strtol(entry->d_name, nullptr, 10) != gettid()) {
            add(others, dirfd(folder), entry->d_name);
        }
    }
    closedir(folder);
    return others;
}
