#pragma once

// Keeps the one warning of Qt's that the system's own windows cause on purpose from Qt's debug channel, in programs and
// tests alike, so that any other is seen. Any thread may write to the channel; make the object on the GUI thread.

#include <QtGlobal>

class QString;

class QtWarningFilter
{
public:
    /// Whether Qt warns of the sheet of the edit fields' menus (widgets/LineEditEx.cpp), once for each part of a field
    /// and each time that it is shown. No other warning, of another sheet or another class, is known.
    static bool isKnown(QtMsgType type, const QString &strText);

    /// From now on the channel's handler, or Qt's own where there is none, is not given that warning.
    QtWarningFilter();
    /// Gives the channel back to that handler.
    ~QtWarningFilter();
    QtWarningFilter(const QtWarningFilter &) = delete;
    QtWarningFilter &operator=(const QtWarningFilter &) = delete;
};
