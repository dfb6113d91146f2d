#include "store/Hardship.h"

#include <QFile>

#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr uint32_t cExemptions = (1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH);

__user_cap_header_struct ownThread()
{
    return {_LINUX_CAPABILITY_VERSION_3, 0};
}

void readRights(__user_cap_data_struct *data)
{
    __user_cap_header_struct header = ownThread();
    if (syscall(SYS_capget, &header, data) != 0) {
        qFatal("the rights of this thread cannot be read");
    }
}

void writeRights(const __user_cap_data_struct *data)
{
    __user_cap_header_struct header = ownThread();
    if (syscall(SYS_capset, &header, data) != 0) {
        qFatal("the rights of this thread cannot be set");
    }
}

// What someone else is about to make; without a name there is nothing.
QByteArray meanwhileName;
QByteArray meanwhileBytes;

void makeMeanwhile()
{
    const QByteArray name = std::exchange(meanwhileName, QByteArray());
    FILE *file = std::fopen(name.constData(), "w");
    if (!file || std::fwrite(meanwhileBytes.constData(), 1, size_t(meanwhileBytes.size()), file) !=
                     size_t(meanwhileBytes.size())) {
        qFatal("the other one's file cannot be written");
    }
    std::fclose(file);
}

} // namespace

/// Stands before the system's own, by which Qt opens files.
extern "C" Q_DECL_EXPORT int open64(const char *name, int flags, ...)
{
    static const auto real = reinterpret_cast<int (*)(const char *, int, ...)>(dlsym(RTLD_NEXT, "open64"));
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    if ((flags & O_CREAT) != 0 && !meanwhileName.isEmpty() && meanwhileName == name) {
        makeMeanwhile();
    }
    return real(name, flags, mode);
}

OrdinaryRights::OrdinaryRights()
{
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
    readRights(data);
    m_before[0] = data[0].effective;
    m_before[1] = data[1].effective;
    data[0].effective &= ~cExemptions;
    writeRights(data);
}

OrdinaryRights::~OrdinaryRights()
{
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
    readRights(data);
    data[0].effective = m_before[0];
    data[1].effective = m_before[1];
    writeRights(data);
}

FullDisk::FullDisk(rlim_t iBytes)
{
    // Writing on then fails with an error instead of ending the process.
    m_handler = signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{iBytes, m_before.rlim_max};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
        qFatal("the size of files cannot be limited");
    }
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
    signal(SIGXFSZ, m_handler);
}

MadeMeanwhile::MadeMeanwhile(const QString &strFile, const QByteArray &bytes)
{
    meanwhileName = QFile::encodeName(strFile);
    meanwhileBytes = bytes;
}

MadeMeanwhile::~MadeMeanwhile()
{
    meanwhileName.clear();
}
