#pragma once

// The folder of this process's own, for tones and keys: below the temporary folder, for this user alone, gone with the
// object. Processes that were killed have left theirs, which go with the next one's begin. Main thread.

#include <QString>
#include <QTemporaryDir>

class ProcessFolder
{
public:
    ProcessFolder();
    Q_DISABLE_COPY(ProcessFolder)

    /// Whether it could be made.
    bool isValid() const { return m_folder.isValid(); }

    /// Why it could not.
    QString fault() const;

    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};
