#pragma once

// Another program that has a store's file locked, until its time is over or it is told to let go.

#include "fakes/Patience.h"

#include <QProcess>
#include <QString>

class LockHolder
{
public:
    /// Far longer than all waiting of one open together, and far shorter than what its statements, a hundred, would
    /// wait one after the other; in milliseconds.
    static constexpr int cLongHold = 20000;

    /// Starts the program, which executes the statements, parted by ";", on the file.
    LockHolder(const QString &strFile, const QString &strStatements, int iMilliseconds = cLongHold)
    {
        m_process.start(QStringLiteral(STORE_CHILD),
                        {QStringLiteral("hold"), strFile, strStatements, QString::number(iMilliseconds)});
        m_bHeld = m_process.waitForReadyRead(cPatienceMs) && m_process.readLine() == "held\n";
    }

    /// Whether it got its lock.
    bool hasHeld() const { return m_bHeld; }

    /// Whether it still has it.
    bool holds() { return !m_process.waitForReadyRead(0) && m_process.state() == QProcess::Running; }

    /// Ends it; whether all went well with it.
    bool letGo()
    {
        m_process.closeWriteChannel();
        return m_process.waitForFinished(cPatienceMs) && m_process.exitCode() == 0;
    }

private:
    QProcess m_process;
    bool m_bHeld = false;
};
