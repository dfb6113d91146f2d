#pragma once

// What the world may do to a program that writes files, made in this process and taken back at the end of the scope.

#include <QByteArray>
#include <QString>

#include <csignal>
#include <cstdint>
#include <sys/resource.h>

/// Takes from root what exempts it from the modes of files and folders: a read-only file then is one. An ordinary user
/// has nothing to lose. Of the calling thread.
class OrdinaryRights
{
public:
    OrdinaryRights();
    ~OrdinaryRights();
    OrdinaryRights(const OrdinaryRights &) = delete;
    OrdinaryRights &operator=(const OrdinaryRights &) = delete;

private:
    uint32_t m_before[2] = {};
};

/// No file can grow beyond `iBytes`, as on a disk without room; 0 refuses every write. Of the whole process.
class FullDisk
{
public:
    explicit FullDisk(rlim_t iBytes);
    ~FullDisk();
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

/// A file of these bytes is put to `strFile` by someone else just when this process is about to make one there: it is
/// looked for in vain before. Once, and only while this lives.
class MadeMeanwhile
{
public:
    MadeMeanwhile(const QString &strFile, const QByteArray &bytes);
    ~MadeMeanwhile();
    MadeMeanwhile(const MadeMeanwhile &) = delete;
    MadeMeanwhile &operator=(const MadeMeanwhile &) = delete;
};
