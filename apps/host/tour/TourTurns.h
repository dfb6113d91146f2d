#pragma once

#include <QString>
#include <QStringList>

/// Several clients go through one tour together, each as a process of its own: who acts in a step waits until all
/// others look for what it does. They see it from files in the tour's folder. GUI thread.
class TourTurns
{
public:
    /// `uid` is one of `all`; `strFolder` is the same for all of them.
    TourTurns(const QString &strFolder, const QString &strUid, const QStringList &all);

    /// This client has come to the step of that number, from 0 on, and looks for what happens in it.
    void arrive(int iStep);

    /// Whether all have come to that step.
    bool areAllAt(int iStep) const;

    /// Writes down that something happens now, at so many seconds of the recordings.
    void mark(double seconds, const QString &strWhat) const;

private:
    QString fileOf(const QString &strUid) const;

    QString m_strFolder;
    QString m_strUid;
    QStringList m_all;
};
