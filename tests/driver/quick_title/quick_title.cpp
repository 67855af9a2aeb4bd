// Loaded before the compiler by tests that don't look at the pace of its title, which takes about
// two seconds: its pause behind each letter is a twentieth of what it is. Pauses of other lengths
// stay.
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

namespace {

constexpr long kLetterPause = 20'000'000;  // nanoseconds

}  // namespace

extern "C" int nanosleep(const timespec* wanted, timespec* left) {
    timespec pause = *wanted;
    if (pause.tv_sec == 0 && pause.tv_nsec == kLetterPause) pause.tv_nsec /= 20;
    return static_cast<int>(syscall(SYS_nanosleep, &pause, left));
}
