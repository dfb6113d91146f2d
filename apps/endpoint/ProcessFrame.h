#pragma once

// The frame of every call process, around whatever answers the plug-in: how it begins, complains and ends. Functions
// for main; main thread.

#include <QString>

#include <optional>

class Channel;
class Trace;

inline constexpr int cExitCannotListen = 1;
inline constexpr int cExitBadInput = 2;

/// Has the system call this process by the file name in the first argument: the front has put the program in its place
/// and handed its own name on, and who looks for the call process looks for that.
void takeNameFrom(const char *firstArgument);

/// Says the text on standard error, behind the program's name, and gives the code back.
int complain(int exitCode, const char *program, const QString &text);

/// Opens the channel. Nothing once it listens, otherwise the code to end with, which has been said on standard error: 0
/// when another call process lives.
std::optional<int> exitCodeUnlessListening(const char *program, Channel &channel, Trace &trace);

/// Has the event loop end with 0 when the channel has had no client for that many seconds, now or later. `channel` and
/// `trace` outlive the event loop.
void endWhenIdle(Channel &channel, Trace &trace, double seconds);
