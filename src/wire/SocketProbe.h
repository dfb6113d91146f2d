#pragma once

// Whether somebody listens at a local socket, asked without being noticed there. Any thread.

#include <cerrno>
#include <cstring>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace Wire {

/// Whether a live process listens at the socket file of this path: no connection arrives there. False for a path that
/// no socket can have.
inline bool isAnswered(const std::string &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof(address.sun_path)) {
        return false;
    }
    std::memcpy(address.sun_path, path.data(), path.size());
    // A datagram socket that connects to a live stream socket gets EPROTOTYPE, and ECONNREFUSED from a file that a dead
    // process left. A stream connection would tell as much, but a live process would take it for its client's return.
    const int probe = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (probe < 0) {
        return false;
    }
    const int result = ::connect(probe, reinterpret_cast<const sockaddr *>(&address), sizeof(address));
    const bool taken = result == 0 || errno == EPROTOTYPE;
    ::close(probe);
    return taken;
}

} // namespace Wire
