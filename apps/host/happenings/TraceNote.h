#pragma once

#include <QCoreApplication>
#include <QString>

class CallService;

/// Says why there are no lines of the wire, and how to get them. No state.
class TraceNote
{
    Q_DECLARE_TR_FUNCTIONS(TraceNote)

public:
    /// Empty where the trace of the call process can be followed, and while the plug-in is connected to none.
    static QString of(const CallService &service);

private:
    static QString reason(const CallService &service);
};
