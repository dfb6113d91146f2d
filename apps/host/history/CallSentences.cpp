#include "history/CallSentences.h"

#include "client/ContactBook.h"

#include <QCoreApplication>

namespace {

/// Of a conference of the own user.
QString ownConference(const CallEntry &call)
{
    switch (call.outcome) {
    case resultHungUp:
        return QCoreApplication::translate("CallSentences", "Your conference ended after %1")
            .arg(durationText(call.seconds));
    case outcomeNoAnswer:
        return QCoreApplication::translate("CallSentences", "Nobody joined your conference");
    case resultCancelled:
        return QCoreApplication::translate("CallSentences", "Your conference was cancelled");
    case outcomeCutOff:
        return QCoreApplication::translate("CallSentences", "Your conference was cut off");
    default:
        return QCoreApplication::translate("CallSentences", "Your conference could not be held");
    }
}

/// The sentence with a place for the name, and one for the length where there is one; of a conference it is that of who
/// called it together.
QString sentence(const CallEntry &call)
{
    if (call.outcome == resultHungUp && !call.connected) {
        return QCoreApplication::translate("CallSentences", "%1 gave up the call");
    }
    switch (call.outcome) {
    case outcomeMissed:
        return call.conference
                   ? QCoreApplication::translate("CallSentences", "Missed an invitation to a conference from %1")
                   : QCoreApplication::translate("CallSentences", "Missed call from %1");
    case outcomeCutOff:
        return call.conference ? QCoreApplication::translate("CallSentences", "The conference of %1 was cut off")
                               : QCoreApplication::translate("CallSentences", "The call with %1 was cut off");
    case outcomeNoAnswer:
        return QCoreApplication::translate("CallSentences", "%1 did not answer");
    case resultCancelled:
        return QCoreApplication::translate("CallSentences", "The call with %1 was cancelled");
    case resultHungUp:
        return call.conference ? QCoreApplication::translate("CallSentences", "The conference of %1 ended after %2")
                               : QCoreApplication::translate("CallSentences", "%1 hung up after %2");
    case resultBusy:
        return QCoreApplication::translate("CallSentences", "%1 was busy");
    case resultRejected:
        return QCoreApplication::translate("CallSentences", "%1 rejected the call");
    default:
        return call.conference ? QCoreApplication::translate("CallSentences", "The conference of %1 failed")
                               : QCoreApplication::translate("CallSentences", "The call with %1 failed");
    }
}

} // namespace

QString CallSentences::notice(const CallEntry &call, const ContactBook &book)
{
    if (call.conference && call.caller) {
        return ownConference(call);
    }
    const QString words = sentence(call);
    const QString name = book.nameOf(call.uid);
    // In one call of arg(): a "%2" in a name must not be replaced.
    return words.contains(QLatin1String("%2")) ? words.arg(name, durationText(call.seconds)) : words.arg(name);
}

QString CallSentences::outcome(const CallEntry &call, const ContactBook &book)
{
    if (call.conference || call.isMissed() || call.outcome == outcomeNoAnswer) {
        return notice(call, book);
    }
    const QString name = book.nameOf(call.uid);
    const QString word = historyWord(call);
    return call.connected ? QCoreApplication::translate("CallSentences", "Call with %1: %2 after %3")
                                .arg(name, word, durationText(call.seconds))
                          : QCoreApplication::translate("CallSentences", "Call with %1: %2").arg(name, word);
}
