#include "plugin/HostCommands.h"

#include <algorithm>

namespace {

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
