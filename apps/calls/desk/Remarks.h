#pragma once

// What an operator is told by notification 999: bounded in length and in number, whatever comes in from outside. Owned
// by the desk; main thread.

#include "endpoint/Outlet.h"

#include <QElapsedTimer>

class Remarks
{
public:
    /// `outlet` outlives the remarks.
    explicit Remarks(Outlet &outlet) : m_outlet(outlet) {}

    /// Says the text to the plug-in and notes it in the trace; beyond some a minute it is dropped, with a word once.
    void tell(const QString &text);

private:
    Outlet &m_outlet;
    QElapsedTimer m_minute;
    int m_told = 0;
};
