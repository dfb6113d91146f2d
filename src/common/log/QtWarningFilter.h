#pragma once

// Keeps the warnings of Qt's that the system's own windows cause on purpose, and those that nobody causes, from Qt's
// debug channel, in programs and tests alike, so that any other is seen. Any thread may write to the channel; make the
// object on the GUI thread.

#include <QtGlobal>

class QString;

/// Filters may stand in one another; the outer one is the last to go.
class QtWarningFilter
{
public:
    /// Why a warning comes.
    enum Reason
    {
        Unknown,           ///< nobody expects it
        MenuSheet,         ///< for each part of an edit field, each time that it is shown
        RefusedConnection, ///< two lines, when the engine is made
        WindowGone         ///< at any time, where windows come and go
    };

    /// Why a line of the channel comes. Unknown for whatever is no warning.
    static Reason reasonOf(QtMsgType type, const QString &strText);

    /// Whether the line's reason is known.
    static bool isKnown(QtMsgType type, const QString &strText);

    /// From now on the channel's handler, or Qt's own where there is none, is given no known line.
    QtWarningFilter();

    /// Gives the channel back to that handler.
    ~QtWarningFilter();
    QtWarningFilter(const QtWarningFilter &) = delete;
    QtWarningFilter &operator=(const QtWarningFilter &) = delete;

private:
    QtMessageHandler m_outer;              // whom the filter around this one passes lines on to; null without one
    QtMessageHandler m_previous = nullptr; // whose the channel was
};
