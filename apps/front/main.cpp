// The front of the call process: the one program that the plug-in starts. It becomes, by exec and with all it was
// given, the program of the kind that calls.ini names. What stands in the way it says on standard error and, since the
// plug-in starts it detached, by the robots' program in a log line to the plug-in too.

#include "calls/settings/CallsSettings.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int cExitNoProgram = 1;
constexpr int cExitBadSettings = 2;

/// The folder of this program; empty where the system does not tell.
std::string ownFolder()
{
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof(path));
    const std::string whole(path, length > 0 ? std::size_t(length) : 0);
    return whole.substr(0, whole.rfind('/') == std::string::npos ? 0 : whole.rfind('/'));
}

/// `folder` and so many folders up.
std::string above(std::string folder, int levels)
{
    for (int i = 0; i < levels && !folder.empty(); ++i) {
        folder.resize(std::min(folder.rfind('/'), folder.size()));
    }
    return folder;
}

/// Becomes the program, which keeps this process's id and is called by the same name. Returns where that cannot be.
void become(const std::string &program, const std::vector<std::string> &arguments)
{
    std::vector<char *> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const std::string &argument : arguments) {
        pointers.push_back(const_cast<char *>(argument.c_str()));
    }
    pointers.push_back(nullptr);
    ::execv(program.c_str(), pointers.data());
}

/// A scenario that says the text as a log line to the first client and ends, in a file that has no name. Its
/// descriptor.
int scenarioOf(const std::string &text)
{
    std::string scenario = "await-client\nsend 999 \"";
    for (const char c : text) {
        scenario += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    }
    scenario += "\"\nend\n";
    const int descriptor = ::memfd_create("calls", 0);
    return descriptor >= 0 && ::write(descriptor, scenario.data(), scenario.size()) == ssize_t(scenario.size())
               ? descriptor
               : -1;
}

/// Has the robots' program wait for the plug-in as it would otherwise, and say the text to it and to the trace.
void tellPlugin(const std::string &folder, std::vector<std::string> arguments, const std::string &text)
{
    const std::string robots = folder + "/" + CallKinds::cPrefix + CallKinds::cFirst;
    const int scenario = ::access(robots.c_str(), X_OK) == 0 ? scenarioOf(text) : -1;
    if (scenario < 0) {
        return;
    }
    const pid_t front = ::getpid();
    const pid_t child = ::fork();
    if (child == 0) {
        // Whoever ends the front ends this too.
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (::getppid() == front) {
            arguments.insert(arguments.end(), {"--scenario", "/dev/fd/" + std::to_string(scenario), "--idle-seconds",
                                               "10", "--hide-secrets"});
            become(robots, arguments);
        }
        ::_exit(cExitNoProgram);
    }
    if (child > 0) {
        ::waitpid(child, nullptr, 0);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const std::vector<std::string> arguments(argv, argv + argc);
    const std::string folder = ownFolder();
    CallsSettings settings;
    std::string fault;
    int result = cExitBadSettings;
    if (settings.read(CallsSettings::files(above(folder, 3)), &fault)) {
        const std::string program = folder + "/" + CallKinds::cPrefix + settings.kind;
        become(program, arguments);
        fault = "process/kind is " + settings.kind + ", and " + program + " cannot be started: " + std::strerror(errno);
        result = cExitNoProgram;
    }
    std::fprintf(stderr, "VoipSDK: %s\n", fault.c_str());
    tellPlugin(folder, arguments, fault);
    return result;
}
