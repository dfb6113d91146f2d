#pragma once

// Everything that reads what comes from outside, each as one function of arbitrary bytes: what the fuzzers feed, and
// what the tests run over the kept inputs. A target leaves nothing behind for the next input, catches what its contract
// lets through, and ends the process when a promise is broken. GUI thread, while a FuzzApplication stands.

#include <QByteArray>

namespace FuzzTargets {

/// Reads of the channel, cut into lines and acted on by a call engine without its call window, and what user and host
/// do meanwhile.
void wire(const QByteArray &input);

/// The same with the call window, the conference centre and message boxes, which take most of the time.
void window(const QByteArray &input);

/// Events of the host with payloads of any bytes, for a call engine without its call window.
void hostevent(const QByteArray &input);

/// The same with the call window, the conference centre and message boxes.
void hostwindow(const QByteArray &input);

/// A jid as text and in parts, and the rules of user ids.
void jid(const QByteArray &input);

/// The JSON of service numbers, their menus and channels.
void service(const QByteArray &input);

/// A message's HTML: links, plain text, images, bounds, labels.
void html(const QByteArray &input);

/// INI files: a user's settings, the addresses, the old file's translation.
void settings(const QByteArray &input);

/// Picture files: kinds, reading, scaling, heads, frames.
void picture(const QByteArray &input);

/// The members of conference documents and of stored records.
void members(const QByteArray &input);

/// Bubble pictures and margins, colours, versions.
void bubble(const QByteArray &input);

/// The words between call process and mixer, on each of their roads.
void talk(const QByteArray &input);

/// A mixer's conferences: arrivals, words, ends and times that have passed, as the input says.
void focus(const QByteArray &input);

} // namespace FuzzTargets

/// One target.
struct FuzzTarget
{
    const char *name;
    const char *seeds; ///< the folder in fuzz/corpus that its inputs start from, and its dictionary
    void (*run)(const QByteArray &input);
    int longest; ///< of the inputs that are made for it, in bytes
    int hangMs;  ///< more processor time than that for one input counts as a hang
};

/// All targets.
inline constexpr FuzzTarget cFuzzTargets[] = {
    // clang-format off
    {"wire", "wire", FuzzTargets::wire, 4096, 100},
    {"window", "wire", FuzzTargets::window, 4096, 100},
    {"hostevent", "hostevent", FuzzTargets::hostevent, 1024, 100},
    {"hostwindow", "hostevent", FuzzTargets::hostwindow, 1024, 100},
    {"jid", "jid", FuzzTargets::jid, 2200, 100},
    {"service", "service", FuzzTargets::service, 4096, 100},
    {"html", "html", FuzzTargets::html, 49152, 420},
    {"settings", "settings", FuzzTargets::settings, 4096, 100},
    {"picture", "picture", FuzzTargets::picture, 2048, 100},
    {"members", "members", FuzzTargets::members, 2048, 100},
    {"bubble", "bubble", FuzzTargets::bubble, 512, 100},
    {"talk", "talk", FuzzTargets::talk, 4096, 100},
    {"focus", "focus", FuzzTargets::focus, 1024, 100},
    // clang-format on
};

/// The target of that name, or null.
const FuzzTarget *findFuzzTarget(const char *name);

/// Whether this is a build with AddressSanitizer, which takes time and keeps freed memory back.
bool isSanitized();

/// The processor time that the target may take for one input in this build, in milliseconds.
int mostCpuMs(const FuzzTarget &target);

/// Runs the target and returns the processor time of this thread that it took, in milliseconds.
int cpuMsOf(const FuzzTarget &target, const QByteArray &input);

/// Ends the process with `text` unless `kept`.
void requirePromise(bool kept, const char *text);
