#pragma once

// The commands that the host may give, each with the function that carries it out. The mailbox knows only this header:
// the rows themselves stand on the top floor, beside the engine they call, and put themselves in here when the program
// or the module is loaded. GUI thread only.

#include "plugin/EMsgId.h"

class BaseEvent;

/// One command: its number, and what it does with the event's payload. A query overwrites the payload with its answer.
struct HostCommand
{
    EMsgId msgId;
    void (*run)(BaseEvent &event);
};

/// Makes `count` rows from `first` on the known commands. They must live as long as the process.
void setHostCommands(const HostCommand *first, int count);

/// The row of `msgId`, or null for an unknown command.
const HostCommand *findHostCommand(int msgId);
