#include "support/files/ProcessStart.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace vantrell
{

void prepareProcess()
{
    for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number) {
        // The lowest free number is the one that is looked at.
        if (::fcntl(number, F_GETFD) < 0 && ::open("/dev/null", O_RDWR) != number)
            break;
    }
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace vantrell
