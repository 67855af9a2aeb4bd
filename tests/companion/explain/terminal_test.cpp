// The terminal: its width, and whether colour is wanted there.
#include "companion/terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>

namespace {

/// Standard output is `target` for as long as it lives.
class OutputTo {
public:
    explicit OutputTo(int target) : before(dup(STDOUT_FILENO)) { dup2(target, STDOUT_FILENO); }
    ~OutputTo() {
        dup2(before, STDOUT_FILENO);
        close(before);
    }

private:
    int before;
};

TEST(Terminal, TellsItsWidthAndTakesColour) {
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(master, 0);
    ASSERT_EQ(grantpt(master), 0);
    ASSERT_EQ(unlockpt(master), 0);
    const int terminal = open(ptsname(master), O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    const winsize size = {25, 57, 0, 0};
    ASSERT_EQ(ioctl(terminal, TIOCSWINSZ, &size), 0);
    unsetenv("NO_COLOR");
    int width = 0;
    bool inColour = false;
    bool inColourRefused = true;
    {
        const OutputTo there(terminal);
        width = companion::terminalWidth();
        inColour = companion::wantsColour();
        setenv("NO_COLOR", "1", 1);
        inColourRefused = companion::wantsColour();
        unsetenv("NO_COLOR");
    }
    close(terminal);
    close(master);
    EXPECT_EQ(width, 57);
    EXPECT_TRUE(inColour);
    EXPECT_FALSE(inColourRefused);
}

TEST(Terminal, IsPlainWhereThereIsNone) {
    const int nowhere = open("/dev/null", O_WRONLY);
    ASSERT_GE(nowhere, 0);
    int width = 0;
    bool inColour = true;
    {
        const OutputTo there(nowhere);
        width = companion::terminalWidth();
        inColour = companion::wantsColour();
    }
    close(nowhere);
    EXPECT_EQ(width, 80);
    EXPECT_FALSE(inColour);
}

}  // namespace
