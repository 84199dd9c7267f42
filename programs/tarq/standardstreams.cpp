#include "standardstreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

namespace tarq::command {

void fillStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) >= 0) continue;
        // The lowest free descriptor is this one, as those below it are taken by now. It is opened for the other
        // direction: what was to be read or written is missed, and not taken for empty or done.
        if (open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0) (void)open("/", O_RDONLY);
    }
}

}  // namespace tarq::command
