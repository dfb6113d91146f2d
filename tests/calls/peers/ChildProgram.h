#pragma once

// A program of the system as a child that ends with the test, however that ends. Main thread.

#include <QProcess>

#include <sys/types.h>

class ChildProgram : public QProcess
{
    Q_OBJECT

public:
    /// Its output goes to `log`, a file in the test's folder.
    explicit ChildProgram(const QString &log = QStringLiteral("children.log"));

    /// Ends the child, by force when it does not obey.
    ~ChildProgram() override;

    /// Starts the program. Whether it has been.
    bool begin(const QString &program, const QStringList &arguments);

    /// The same behind another one and its arguments, which becomes the program: on another machine. Empty: here.
    bool beginOn(const QStringList &enter, const QString &program, const QStringList &arguments);

    /// Asks the child to end, and makes it and its own children after a while.
    void finish();

    /// Kills the child and its own children.
    void killAll();

protected:
    void setupChildProcess() override;

private:
    pid_t m_group = 0; // of the child and its own children
};
