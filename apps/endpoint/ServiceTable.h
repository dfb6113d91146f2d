#pragma once

// Who serves the commands of the plug-in: a row for each, in the order of the catalogue. Templates alone; main thread.

#include "endpoint/Trace.h"
#include "endpoint/Wire.h"

/// The function of `Server` that serves a command, null for one that has no effect.
template <class Server>
struct ServiceRow
{
    Wire::Command command;
    void (Server::*serve)(const Command &);
};

/// Has the server do what a line without its line feed says. A malformed one is traced and has no other effect. `rows`
/// tell of every command.
template <class Server, class Rows>
void serveLine(Server &server, const Rows &rows, const QByteArray &line, Trace &trace)
{
    QString fault;
    const std::optional<Command> command = readCommand(line, &fault);
    if (!command) {
        trace.complaint(fault);
        return;
    }
    // The shape has been checked, so the name is known.
    const auto place = static_cast<std::size_t>(findCommand(command->name)->command);
    if (const auto serve = rows.at(place).serve) {
        (server.*serve)(*command);
    }
}
