#pragma once

// The call process that is recorded or checked: one that is started here, in a temporary directory of its own, so that
// it may listen at the very name that the plug-in connects to; or one that runs already. Main thread.

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// A child that the kernel ends with this process, however that comes to its end.
class BoundProcess : public QProcess
{
    Q_OBJECT

public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override;
};

class Subject
{
public:
    Subject() = default;

    /// Kills the child when it still runs.
    ~Subject();
    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    /// Starts the program, which inherits the standard streams. False with `error` set when that fails.
    bool start(const QString &program, const QStringList &arguments, QString *error);

    /// Takes the call process that listens at this name or path.
    void attach(const QString &name);

    /// Whether it was started here, so that its end is seen.
    bool isChild() const { return m_process != nullptr; }

    /// The child; only when there is one.
    QProcess &process() const { return *m_process; }

    /// Where it listens, as a path.
    const QString &socketPath() const { return m_socketPath; }

    /// Whether it listens at present. It does not notice the question.
    bool isListening() const;

    /// The permission bits of its socket file, 0 without one.
    unsigned socketMode() const;

    /// Waits, at most so long, until it listens; false at once when the child has ended.
    bool waitListening(int milliseconds) const;

    /// Waits, at most so long, until it does not listen.
    bool waitSilent(int milliseconds) const;

    /// Waits, at most so long, until it has ended; one that is no child, until it does not listen.
    bool waitEnded(int milliseconds) const;

    /// How the child ended in words: "code 3", "signal 9".
    QString ending() const;

    /// Takes the temporary directory away, which otherwise goes with this object.
    void removeFolder();

private:
    bool waitUntilListening(bool wanted, int milliseconds) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QProcess> m_process;
    QString m_socketPath;
};
