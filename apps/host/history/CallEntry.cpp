#include "history/CallEntry.h"

#include <QCoreApplication>

QString historyWord(const CallEntry &entry)
{
    switch (entry.outcome) {
    case outcomeRunning:
    case outcomeRunningIn:
        return QCoreApplication::translate("CallEntry", "now");
    case outcomeMissed:
        return QCoreApplication::translate("CallEntry", "missed");
    case outcomeCutOff:
        return QCoreApplication::translate("CallEntry", "cut off");
    case outcomeNoAnswer:
        return QCoreApplication::translate("CallEntry", "no answer");
    default:
        return outcomeWord(entry.outcome);
    }
}
