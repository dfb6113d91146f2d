#include "endpoint/Streams.h"

#include <fcntl.h>
#include <unistd.h>

void letGoOfStreams(bool keepStandardError)
{
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    if (nothing >= 0) {
        ::dup2(nothing, STDIN_FILENO);
        ::dup2(nothing, STDOUT_FILENO);
        if (!keepStandardError) {
            ::dup2(nothing, STDERR_FILENO);
        }
        ::close(nothing);
    }
}
