#include "companion/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>

namespace companion {

bool wantsColour() {
    const char* refused = std::getenv("NO_COLOR");
    return isatty(STDOUT_FILENO) != 0 && (refused == nullptr || *refused == '\0');
}

int terminalWidth() {
    constexpr int kUsual = 80;
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsual;
    return size.ws_col;
}

}  // namespace companion
