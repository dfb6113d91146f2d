#pragma once

// Keeps the one warning of Qt's that the system's own windows cause on purpose from Qt's debug channel, in programs and
// tests alike, so that any other is seen. Any thread may write to the channel; make the object on the GUI thread.

#include <QtGlobal>

class QString;

class QtWarningFilter
{
public:
    /// Whether this is that warning: Qt cannot read the style sheet that the edit fields give their menus
    /// (widgets/LineEditEx.cpp). It comes for each part of a field, each time that the field is shown.
    static bool isKnown(QtMsgType type, const QString &strText);

    /// From now on the channel's handler, or Qt's own where there is none, is not given that warning.
    QtWarningFilter();
    /// Gives the channel back to that handler.
    ~QtWarningFilter();
    QtWarningFilter(const QtWarningFilter &) = delete;
    QtWarningFilter &operator=(const QtWarningFilter &) = delete;
};
