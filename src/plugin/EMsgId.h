#pragma once

// The command numbers that stand in a BaseEvent. The enumeration belongs to the host; these are the commands that this
// plug-in reads or sends. The underlying type is fixed, so any other number of the host can be carried and compared.

#include <QtGlobal>

/// A command number between the host and its plug-ins; plugin/HostEvents.def tells what each means and carries.
enum EMsgId : qint32
{
#define HOST_EVENT(name, number, way, fields, answer) name = (number),
#include "plugin/HostEvents.def"
#undef HOST_EVENT
};
