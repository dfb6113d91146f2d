#include "mixer/focus/Control.h"

#include "wire/Commands.h"

namespace Focus {

Verdict judged(const Talk::Message &message, const Roster &roster, const QString &sender)
{
    const bool byCreator = sender == roster.creator();
    if (Talk::rowOf(message.saying).who == Talk::Who::Creator && !byCreator) {
        return {{}, QStringLiteral("the creator alone may do that")};
    }
    Verdict verdict;
    if (message.saying == Talk::Word::Add) {
        verdict.users = message.users;
        verdict.users.removeAll(sender);
    } else if (message.user == QLatin1String(Wire::cEverybody)) {
        verdict.users = roster.ids();
        // Who says this is the creator, so these are all but both.
        verdict.users.removeAll(sender);
    } else if (roster.find(message.user) == nullptr) {
        verdict.refusal = QStringLiteral("%1 does not belong to the conference").arg(message.user);
    } else if (message.saying == Talk::Word::Kick && message.user == roster.creator()) {
        verdict.refusal = QStringLiteral("nobody removes the creator");
    } else {
        verdict.users.append(message.user);
    }
    return verdict;
}

} // namespace Focus
