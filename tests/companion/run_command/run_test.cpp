// run FILE in the compiler's manner: what is said before and behind its words, whose channels are
// whose, and the status.
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "companion/check/check.h"
#include "companion/run_command/companion_place.h"
#include "files.h"
#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

const std::string kRedLine =
    "\033[1;31mபிழை: தொகுப்பதில் சிக்கல்! உன்னோட கோடை ஒருவாட்டி பாரு மச்சி.\033[0m\n";

class Run : public CompanionPlace {
protected:
    Run() { write("a.பொழில்", "x = 5\nஅச்சிடு(x)\n"); }

    /// Runs the program that the stand-in for g++ makes: a shell script.
    ProcessResult runProgram(const std::string& script, const std::string& input = "") const {
        fakeCompiler(script);
        return companion({"run", "a.பொழில்"}, {"", {}, input});
    }
};

TEST_F(Run, ShowsTheCompilersMannerAndTheProgram) {
    const ProcessResult result = runProgram("echo ஐந்து; echo தவறு >&2; exit 3");
    EXPECT_EQ(result.out, title + "ஐந்து\n");
    EXPECT_EQ(result.err, "தவறு\n");
    EXPECT_EQ(result.exitCode, 0) << "the compiler doesn't tell the program's";
}

TEST_F(Run, HasATamilNameAndTheUsualSource) {
    fakeCompiler("echo இயங்கியது");
    write("முதன்மை.பொழில்", "அச்சிடு(1)\n");
    EXPECT_TRUE(
        holds(companion({"இயக்கு"}).out, "முதன்மை.பொழில் தொகுக்கப்படுகிறது...\033[0m\nஇயங்கியது\n"));
}

TEST_F(Run, LeavesStandardInputToTheProgram) {
    const ProcessResult result = runProgram("cat", "ஒன்று\nஇரண்டு\n");
    EXPECT_EQ(result.out, title + "ஒன்று\nஇரண்டு\n");
}

TEST_F(Run, StopsAtAnErrorBeforeAnythingIsBuilt) {
    fakeCompiler("echo இயங்கியது");
    write("a.பொழில்", "அச்சிடு(1)\nஎனில் மெய்\n    அச்சிடு(2)\n");
    const ProcessResult result = companion({"run", "a.பொழில்"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.rfind("a.பொழில்:2:", 0), 0U) << result.err;
    EXPECT_TRUE(holds(result.err, "பொழில்-202")) << result.err;
    EXPECT_FALSE(fs::exists(root / "bin" / "calls"));
}

/// A program in which the check finds warnings and nothing worse; empty if no rule warns.
std::string programWithWarning() {
    for (const CaseFile& file : findCases("companion/rules", ".findings")) {
        const companion::SourceText source("a.பொழில்", readText(file.source));
        bool isWarned = false;
        bool isWrong = false;
        for (const companion::Finding& finding : companion::checkSource(source, readFile)) {
            isWarned |= finding.severity == companion::Severity::Warning;
            isWrong |= finding.severity == companion::Severity::Error;
        }
        if (isWarned && !isWrong) return source.text;
    }
    return "";
}

TEST_F(Run, TellsWarningsFirstAndRuns) {
    const std::string program = programWithWarning();
    if (program.empty()) GTEST_SKIP() << "no rule warns yet";
    fakeCompiler("echo இயங்கியது; echo நிரல் >&2");
    write("a.பொழில்", program);
    const ProcessResult result = companion({"run", "a.பொழில்"});
    EXPECT_EQ(result.out, title + "இயங்கியது\n");
    EXPECT_EQ(result.err.rfind("a.பொழில்:", 0), 0U) << result.err;
    EXPECT_TRUE(holds(result.err, ": எச்சரிக்கை ")) << result.err;
    EXPECT_EQ(result.err.rfind("நிரல்\n"), result.err.size() - std::string("நிரல்\n").size());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(companion({"run", "--quiet", "a.பொழில்"}).err, "நிரல்\n");
}

TEST_F(Run, RefusesWhatIsNoProgram) {
    write("prog.txt", "");
    fs::create_directory(work / "d.பொழில்");
    const auto expectRefused = [&](const std::vector<std::string>& arguments,
                                   const std::string& text) {
        std::vector<std::string> command = {"run"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        const ProcessResult result = companion(command);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, text + "\n");
    };
    expectRefused({}, "எந்த நிரலை இயக்க வேண்டும்? பயன்பாடு: பொழில்-துணை இயக்கு கோப்பு.பொழில்");
    expectRefused({"இல்லை.பொழில்"}, "'இல்லை.பொழில்' என்ற கோப்பு இல்லை.");
    expectRefused({"d.பொழில்"}, "'d.பொழில்' ஒரு கோப்புறை, நிரல் அல்ல.");
    expectRefused({"prog.txt"}, "'prog.txt': நிரலின் பெயர் .பொழில் என முடிய வேண்டும்.");
    expectRefused({"--மெதுவாக", "a.பொழில்"}, "'--மெதுவாக' என்ற விருப்பம் இல்லை.");
    expectRefused({"a.பொழில்", "b.பொழில்"}, "ஒரு நேரத்தில் ஒரு நிரலையே இயக்கலாம்: 'a.பொழில்', 'b.பொழில்'.");
}

TEST_F(Run, SpeaksBehindTheWordsOfGpp) {
    const std::string words = "x/generated.cpp:1:1: error: invalid digit \"8\" in octal constant\n";
    script("g++", "cat >&2 <<'E'\n" + words + "E\nexit 1");
    const ProcessResult result = companion({"run", "a.பொழில்"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, title);
    EXPECT_EQ(result.err.rfind(words + kRedLine + "\n💡 0-இல் தொடங்கும்", 0), 0U) << result.err;
}

TEST_F(Run, NamesTheLineThatGppRefuses) {
    // The stand-in looks for the line that the program's second one became.
    script("g++",
           "line=$(grep -n 'std::cout << fn_any_to_string(global_vars' \"$1\" | cut -d: -f1)\n"
           "echo \"$1:${line%% *}:5: error: no match for 'operator-'\" >&2\nexit 1");
    const ProcessResult result = companion({"run", "a.பொழில்"});
    EXPECT_TRUE(holds(result.err, "\n💡 வரி 2: அச்சிடு(x)\n   இந்தக் கணக்கு")) << result.err;
}

TEST_F(Run, LeavesToTheCompilerWhatIsNoRefusal) {
    script("g++", "echo no space >&2; exit 1");
    const ProcessResult result = companion({"run", "a.பொழில்"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "no space\n" + kRedLine);
}

TEST_F(Run, ExplainsHowAProgramBrokeDown) {
    struct Case {
        const char* script;
        const char* words;
        const char* message;
        int status;
    };
    const Case cases[] = {
        {"kill -SEGV $$", "Segmentation fault\n", "முடிவில்லாமல் தன்னையே", 139},
        {"kill -FPE $$", "Floating point exception\n", "0-ஆல் வகுக்கப்பட்டது", 136},
        {"kill -KILL $$", "Killed\n", "நினைவகம் தீர்ந்ததால்", 137},
        {"kill -ABRT $$", "Aborted\n", "நடுவிலேயே நின்றது", 134},
    };
    for (const Case& one : cases) {
        const ProcessResult result =
            runProgram(std::string("echo ஒன்று; ulimit -c 0; ") + one.script);
        EXPECT_EQ(result.out, title + "ஒன்று\n");
        EXPECT_EQ(result.err.rfind(one.words + std::string("\n💡 "), 0), 0U) << result.err;
        EXPECT_TRUE(holds(result.err, one.message)) << result.err;
        EXPECT_EQ(result.exitCode, one.status);
    }
}

TEST_F(Run, ExplainsAnExceptionThatNobodyCatches) {
    useRealCompiler();
    write("a.பொழில்", "உ = எண்(\"2.5\")\nஅச்சிடு(\"தொடக்கம்\")\nஅச்சிடு(உ கழி 1)\n");
    const ProcessResult result = companion({"run", "a.பொழில்"});
    EXPECT_EQ(result.exitCode, 134);
    EXPECT_EQ(result.out, title + "தொடக்கம்\n");
    EXPECT_EQ(
        result.err.rfind("terminate called after throwing an instance of 'std::bad_any_cast'", 0),
        0U)
        << result.err;
    EXPECT_TRUE(holds(result.err, "\n💡 ஒரு மதிப்பின் வகை")) << result.err;
}

TEST_F(Run, SaysNothingBehindCtrlC) {
    fakeCompiler("echo ஓடுகிறது; exec sleep 100");
    LiveProcess live = startCompanion({"run", "a.பொழில்"});
    ASSERT_TRUE(live.waitForOut(title + "ஓடுகிறது\n")) << live.out() << live.err();
    live.pressCtrlC();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFSIGNALED(live.status)) << live.status;
    EXPECT_EQ(WTERMSIG(live.status), SIGINT);
    EXPECT_EQ(live.out(), title + "ஓடுகிறது\n");
    EXPECT_EQ(live.err(), "");
}

TEST_F(Run, CtrlCWhileItBuildsBlamesNobody) {
    script("g++", "echo >'" + (root / "compiling").u8string() + "'; exec sleep 100");
    LiveProcess live = startCompanion({"run", "a.பொழில்"});
    ASSERT_TRUE(within(20, [&] { return fs::exists(root / "compiling"); })) << live.out();
    live.pressCtrlC();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFSIGNALED(live.status)) << live.status;
    EXPECT_EQ(live.out(), title);
    EXPECT_EQ(live.err(), "");
}

TEST_F(Run, LetsAProgramFinishThatMindsCtrlC) {
    fakeCompiler("trap 'sleep 0.2; echo முடிந்தது; exit 0' INT; echo ஓடுகிறது; sleep 100 & wait");
    LiveProcess live = startCompanion({"run", "a.பொழில்"});
    ASSERT_TRUE(live.waitForOut(title + "ஓடுகிறது\n")) << live.out() << live.err();
    live.pressCtrlC();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_EQ(live.out(), title + "ஓடுகிறது\nமுடிந்தது\n");
}

TEST_F(Run, IsATerminalForTheProgramWhereItIsOne) {
    fakeCompiler(
        "test -t 0 && test -t 1 && test -t 2 && echo முனையம்; stty size <&2; echo செய்தி >&2");
    std::string line = "stty cols 91 rows 17; '" + executable.u8string() + "' run a.பொழில்";
    const ProcessResult result =
        runCommand({"script", "-qec", line, "/dev/null"}, {work.u8string(), settings, "", 60});
    EXPECT_TRUE(holds(result.out, "முனையம்\r\n17 91\r\nசெய்தி\r\n")) << result.out << result.err;
}

TEST_F(Run, BuildsInAFolderOfTheProjectsOwn) {
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(companion({"run", "a.பொழில்"}).exitCode, 0);
    EXPECT_EQ(companion({"run", "./a.பொழில்"}).exitCode, 0);
    ASSERT_EQ(projectFolders().size(), 1U) << "it is reused";
    const fs::path folder = projectFolders()[0];
    struct stat facts {};
    ASSERT_EQ(stat(folder.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777U, 0700U);
    EXPECT_TRUE(holds(compilerCalls().back(), folder.u8string() + "/Pozhil_Cache/generated.cpp"));
    EXPECT_FALSE(fs::exists(cache)) << "nothing in the common temporary directory";

    fs::create_directory(work / "வேறு");
    write("வேறு/a.பொழில்", "அச்சிடு(1)\n");
    EXPECT_EQ(companion({"run", "வேறு/a.பொழில்"}).exitCode, 0);
    EXPECT_EQ(projectFolders().size(), 2U);
}

TEST_F(Run, RunsNothingFromAFolderInWhichOthersWrite) {
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(companion({"run", "a.பொழில்"}).exitCode, 0);
    fs::permissions(projectFolders()[0], fs::perms::all);
    EXPECT_EQ(companion({"run", "a.பொழில்"}).exitCode, 0);
    EXPECT_FALSE(holds(compilerCalls().back(), ownCache.u8string())) << compilerCalls().back();
    EXPECT_TRUE(holds(compilerCalls().back(), (root / "tmp" / "pozhil-").u8string()));
}

TEST_F(Run, FollowsAProjectThatMoves) {
    fakeCompiler("echo இயங்கியது");
    fs::create_directory(work / "இங்கே");
    write("இங்கே/a b.பொழில்", "அச்சிடு(1)\n");
    EXPECT_EQ(companion({"run", "இங்கே/a b.பொழில்"}).exitCode, 0);
    const fs::path before = projectFolders().at(0);
    fs::rename(work / "இங்கே", work / "அங்கே");
    const ProcessResult result = companion({"run", "அங்கே/a b.பொழில்"});
    EXPECT_TRUE(holds(result.out, "இயங்கியது\n")) << result.err;
    ASSERT_EQ(projectFolders().size(), 1U) << "the old place's folder is gone";
    EXPECT_NE(projectFolders()[0], before);
}

TEST_F(Run, NeedsNoHomeToWriteIn) {
    fakeCompiler("echo இயங்கியது");
    fs::create_directory(root / "readonly");
    fs::permissions(root / "readonly", static_cast<fs::perms>(0555));
    fs::permissions(root / "tmp", fs::perms::all | fs::perms::sticky_bit);
    fs::permissions(root / "bin", fs::perms::all);
    // The permissions bind everyone but the superuser.
    std::vector<std::string> command = {"env", "-u",     "XDG_CACHE_HOME", executable.u8string(),
                                        "run", "a.பொழில்"};
    if (geteuid() == 0) {
        command.insert(command.begin(),
                       {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"});
    }
    settings.push_back("HOME=" + (root / "readonly").u8string());
    const ProcessResult result = runCommand(command, {work.u8string(), settings, "", 60});
    EXPECT_TRUE(holds(result.out, "இயங்கியது\n")) << result.out << result.err;
    EXPECT_TRUE(holds(compilerCalls().back(), (root / "tmp" / "pozhil-").u8string()))
        << compilerCalls().back();
}

TEST_F(Run, TellsOfACompilerThatIsMissing) {
    fs::remove(compiler);
    const ProcessResult result = companion({"run", "a.பொழில்"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "'" + compiler.u8string() +
                              "' என்ற தொகுப்பானை இயக்க முடியவில்லை. பொழிலை மீண்டும் நிறுவு.\n");
}

}  // namespace
