#pragma once

#include "history/CallEntry.h"

class ContactBook;

/// Says in a sentence of the client's language what became of a call. No state.
namespace CallSentences {

/// For the status line: "Call with Maria Silva: busy", "Call with 李雷: hung up after 0:05", "Missed call from ...".
QString outcome(const CallEntry &call, const ContactBook &book);

/// For the notice, which says who did what: "Maria Silva was busy", "Anna Novak hung up after 0:10".
QString notice(const CallEntry &call, const ContactBook &book);

} // namespace CallSentences
