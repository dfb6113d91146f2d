#pragma once

// How the constant texts of the shared headers are made: each is a reference to a QString that is created during static
// initialisation and lives to the end of the process, so that objects which go away at exit can still read it.
// Any thread; owned by the process.

#include <QString>

/// A copy of `strText` (may be empty) that is never destroyed.
inline const QString &lastingText(const QString &strText)
{
    return *new QString(strText);
}
