// Ctrl+C on the web road: the farewell at any moment, and nothing that survives it.
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <sstream>

#include "web/road.h"

namespace fs = std::filesystem;

namespace {

/// True if the process is there and not merely waiting to be collected.
bool runs(const std::string& process) {
    const std::string text = readFileText("/proc/" + process + "/stat");
    const std::size_t name = text.rfind(") ");
    return name != std::string::npos && text[name + 2] != 'Z';
}

class RoadInterrupt : public WebRoad {
protected:
    /// An em++ that never ends and has a child that never ends; both leave their numbers.
    void compilerHangs(const std::string& before = "") const {
        const std::string file = (root / "hanging").u8string();
        script("em++", before + "\nsleep 100 &\necho $$ $! >'" + file + ".new'; mv '" + file +
                           ".new' '" + file + "'\nwait; wait; exec sleep 100");
    }

    /// The numbers of em++ and its child, once they are there.
    std::vector<std::string> hanging() const {
        EXPECT_TRUE(within(20, [&] { return fs::exists(root / "hanging"); }));
        std::istringstream text(readFileText(root / "hanging"));
        std::vector<std::string> processes;
        for (std::string process; text >> process;) processes.push_back(process);
        EXPECT_EQ(processes.size(), 2U);
        return processes;
    }

    /// The tool ends with its farewell behind what it had printed, and em++ with it.
    void expectFarewell(LiveProcess& live, const std::string& printed) const {
        ASSERT_TRUE(live.waitForEnd()) << live.out();
        EXPECT_TRUE(WIFEXITED(live.status));
        EXPECT_EQ(WEXITSTATUS(live.status), 0);
        EXPECT_EQ(live.out(), printed + kFarewell);
        EXPECT_EQ(live.err(), "");
        for (const std::string& process : hanging()) {
            EXPECT_TRUE(within(5, [&] { return !runs(process); })) << process;
        }
    }
};

TEST_F(RoadInterrupt, EndsTheFirstBuild) {
    compilerHangs();
    LiveProcess live = start();
    hanging();
    live.pressCtrlC();
    expectFarewell(live, kFirstPart);
}

TEST_F(RoadInterrupt, ToTheToolAloneEndsAllToo) {
    compilerHangs();
    LiveProcess live = start();
    hanging();
    live.interrupt();
    expectFarewell(live, kFirstPart);
}

TEST_F(RoadInterrupt, EndsACompilerThatIsDeafToIt) {
    compilerHangs("trap '' INT");
    LiveProcess live = start();
    hanging();
    live.pressCtrlC();
    expectFarewell(live, kFirstPart);
}

TEST_F(RoadInterrupt, LetsTheCompilerTidyUp) {
    compilerHangs("trap 'echo ok >tidied; exit 1' INT");
    LiveProcess live = start();
    hanging();
    live.pressCtrlC();
    expectFarewell(live, kFirstPart);
    EXPECT_EQ(readFileText(work / "tidied"), "ok\n");
}

std::vector<std::string> threadsOf(pid_t process) {
    std::vector<std::string> threads;
    for (const auto& entry : fs::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        threads.push_back(entry.path().filename());
    }
    return threads;
}

// The kernel chooses the thread that a signal interrupts. Here each is chosen once.
TEST_F(RoadInterrupt, EndsARebuildOnWhicheverThread) {
    for (std::size_t i = 0; i < 2; i++) {
        compilerBuilds("first");
        fs::remove(root / "hanging");
        LiveProcess live = start();
        ASSERT_TRUE(live.waitForOut(kFirstPart + kSuccess)) << live.out() << live.err();
        waitForWatch();
        compilerHangs();
        save("அச்சிடு(2)\n");
        hanging();
        const std::vector<std::string> threads = threadsOf(live.id());
        ASSERT_EQ(threads.size(), 2U) << "the server's and the watch's";
        syscall(SYS_tgkill, live.id(), std::stoi(threads[i]), SIGINT);
        expectFarewell(live, kFirstPart + kSuccess + kChanged);
    }
}

// Whenever it comes: before the road is taken it ends the tool by default, from then on with the
// farewell, and never is it taken for a build that failed.
TEST_F(RoadInterrupt, NeverComesAtABadMoment) {
    script("em++", "for word; do file=$word; done; sleep 0.02; echo >\"$file\"");
    int farewells = 0;
    for (int i = 0; i < 30; i++) {
        LiveProcess live = start();
        std::this_thread::sleep_for(std::chrono::milliseconds(2 * i));
        live.interrupt();
        ASSERT_TRUE(live.waitForEnd()) << live.out();
        if (WIFSIGNALED(live.status)) {
            EXPECT_EQ(WTERMSIG(live.status), SIGINT);
            EXPECT_EQ(live.out(), "");
            continue;
        }
        farewells++;
        const std::string out = live.out();
        EXPECT_EQ(WEXITSTATUS(live.status), 0);
        ASSERT_GE(out.size(), kFarewell.size());
        EXPECT_EQ(out.substr(out.size() - kFarewell.size()), kFarewell);
        EXPECT_EQ((kFirstPart + kSuccess).rfind(out.substr(0, out.size() - kFarewell.size()), 0),
                  0U)
            << out;
        EXPECT_EQ(live.err(), "");
    }
    EXPECT_GT(farewells, 0);
}

}  // namespace
