#pragma once

// What the values of calls.ini are kept as, and what its table says of each. Values only, without Qt. Any thread.

#include <string>
#include <vector>

/// A server of the exchange.
struct CallsServer
{
    std::string host; ///< name or address; IPv6 without brackets
    int port = 0;     ///< 1..65535

    /// The host as it stands in a URI: IPv6 in brackets.
    std::string written() const { return host.find(':') == std::string::npos ? host : '[' + host + ']'; }
};

/// A range of ports, both included.
struct CallsPorts
{
    int first = 0;
    int last = 0;
};

struct SettingTypes
{
    // How each type of the table is kept.
    using Choice = std::string;               ///< one of the words of its row
    using Choices = std::vector<std::string>; ///< some of them, each once, at least one
    using Flag = bool;
    using Host = std::string; ///< a name or an address, IPv6 in brackets, as it stands behind an @; or empty
    using Number = int;       ///< within the bounds of its row
    using Path = std::string; ///< absolute, or empty
    using Ports = CallsPorts;
    using Servers = std::vector<CallsServer>;
    using Text = std::string; ///< UTF-8 without control characters, at most 255 bytes

    /// A row of the table.
    struct Row
    {
        enum class Type
        {
            Choice,
            Choices,
            Flag,
            Host,
            Number,
            Path,
            Ports,
            Servers,
            Text
        };
        Type type;
        const char *section;
        const char *key;
        const char *allowed;
        const char *byDefault;
        const char *variable; ///< empty: none
        const char *meaning;
    };
};
