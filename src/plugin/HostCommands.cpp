#include "plugin/HostCommands.h"

#include <algorithm>

namespace {

// The rows enter themselves while static objects are built, so these two must have their values before any of those.
const HostCommand *firstCommand = nullptr;
int commandCount = 0;

} // namespace

void setHostCommands(const HostCommand *first, int count)
{
    firstCommand = first;
    commandCount = count;
}

const HostCommand *findHostCommand(int msgId)
{
    const HostCommand *end = firstCommand + commandCount;
    const HostCommand *row =
        std::find_if(firstCommand, end, [msgId](const HostCommand &command) { return command.msgId == msgId; });
    return row == end ? nullptr : row;
}
