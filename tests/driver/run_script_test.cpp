// scripts/run.sh with stand-ins for what it calls: what is refused, what is made ready, and how and
// where the compiler is started.
#include <sys/stat.h>
#include <unistd.h>

#include <sstream>

#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

const std::string kApplication = "வலைதளம் கணக்கி(\n    தலைமை() குமரி() வரையறை()\n)\n";

/// As /tmp: all may write, and each keeps what is theirs.
const fs::perms kOpenToAll = fs::perms::all | fs::perms::sticky_bit;

class RunScript : public Workplace {
protected:
    RunScript() {
        fs::create_directories(home / "scripts");
        for (const char* script : {"run.sh", "messages.sh", "private_cache.sh"}) {
            fs::copy_file(fs::u8path(POZHIL_ROOT) / "scripts" / script, home / "scripts" / script);
        }
        for (const char* script : {"build_release.sh", "setup_web.sh", "example_fonts.sh"}) {
            standIn(home / "scripts" / script, std::string("echo ") + script + " \"$@\"");
        }
        standIn(compiler,
                "{ pwd; echo \"$TMPDIR\"; } >\"${0%/*}/started\" || exit 6\n"
                "printf '[%s]' \"$@\"; exit 5");
        fs::permissions(home, fs::perms::all);  // whoever runs it leaves a note there
    }

    static void standIn(const fs::path& path, const std::string& text) {
        writeFileText(path, "#!/bin/sh\n" + text + "\n");
        makeExecutable(path);
    }

    ProcessResult run(const std::vector<std::string>& arguments,
                      std::vector<std::string> command = {"bash"}) const {
        command.push_back((home / "scripts" / "run.sh").u8string());
        command.insert(command.end(), arguments.begin(), arguments.end());
        return runCommand(command, {from.u8string(), settings, "", 60});
    }

    void expectRefused(const std::vector<std::string>& arguments, const std::string& text) const {
        const ProcessResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "\033[1;31m🚨 " + text + "\033[0m\n");
    }

    /// A line that the compiler left when it was started: 0 where it was, 1 its temporary
    /// directory.
    std::string startedWith(std::size_t line) const {
        std::istringstream lines(readFileText(home / "started"));
        std::string text;
        for (std::size_t i = 0; i <= line; ++i) std::getline(lines, text);
        return text;
    }
    std::string startedIn() const { return startedWith(0); }

    fs::path from = work;  ///< Where one stands.
    std::vector<std::string> settings = {"TMPDIR=" + (root / "tmp").u8string()};
    const std::string forWeb = "build_release.sh\nsetup_web.sh\nexample_fonts.sh .\n";
};

TEST_F(RunScript, RefusesWhatIsNoProgram) {
    write("prog.txt", "");
    fs::create_directory(work / "d.பொழில்");
    expectRefused({}, "எந்த நிரலை இயக்க வேண்டும்? பயன்பாடு: scripts/run.sh கோப்பு.பொழில்");
    expectRefused({"--வலை"}, "எந்த நிரலை இயக்க வேண்டும்? பயன்பாடு: scripts/run.sh கோப்பு.பொழில்");
    expectRefused({"இல்லை.பொழில்"}, "'இல்லை.பொழில்' என்ற கோப்பு இல்லை.");
    expectRefused({"-இல்லை.பொழில்"}, "'-இல்லை.பொழில்' என்ற கோப்பு இல்லை.");
    expectRefused({"d.பொழில்"}, "'d.பொழில்' ஒரு கோப்புறை, நிரல் அல்ல.");
    expectRefused({"--கண்காணி", "prog.txt"}, "'prog.txt': நிரலின் பெயர் .பொழில் என முடிய வேண்டும்.");
}

TEST_F(RunScript, ConsoleProgramNeedsNoWebTools) {
    fs::create_directory(work / "d");
    write("d/a b.பொழில்", "அச்சிடு(\"வலைதளம்\")\nநூஇறக்கி \"இல்லை\"\n");
    const ProcessResult result = run({"d/a b.பொழில்"});
    EXPECT_EQ(result.out, "build_release.sh\n[d/a b.பொழில்]");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.exitCode, 5) << "the compiler's own status";
    EXPECT_EQ(startedIn(), work.u8string());
}

TEST_F(RunScript, TellsWhatTheCompanionFindsFirst) {
    write("--a.பொழில்", "");
    standIn(home / "பொழில்-துணை", "printf '<%s>' \"$@\"; echo oops >&2; cat; exit 1");
    const ProcessResult result = run({"--கண்காணி", "--a.பொழில்"});
    EXPECT_EQ(result.err, "<check><./--a.பொழில்>")
        << "not the compiler's channel, not the complaint";
    EXPECT_EQ(result.out, "build_release.sh\n[--கண்காணி][--a.பொழில்]");
    EXPECT_EQ(result.exitCode, 5) << "a finding stops nothing";
    EXPECT_EQ(run({"--பதிப்பு"}).err, "");

    standIn(compiler, "echo தொகுப்பான் >&2");
    EXPECT_EQ(run({"--a.பொழில்"}).err, "<check><./--a.பொழில்>தொகுப்பான்\n");
}

TEST_F(RunScript, PassesOverACompanionThatBreaksDown) {
    write("a.பொழில்", "");
    for (const char* script : {"kill -SEGV $$", "kill -ABRT $$", "exit 2"}) {
        standIn(home / "பொழில்-துணை", script);
        const ProcessResult result = run({"a.பொழில்"});
        EXPECT_EQ(result.err, "") << script;
        EXPECT_EQ(result.out, "build_release.sh\n[a.பொழில்]");
        EXPECT_EQ(result.exitCode, 5);
    }
}

TEST_F(RunScript, OptionsStandBeforeOrBehindTheFile) {
    write("-a.பொழில்", "");
    const std::string expected = "build_release.sh\n[--கண்காணி][-a.பொழில்]";
    EXPECT_EQ(run({"--கண்காணி", "-a.பொழில்"}).out, expected);
    EXPECT_EQ(run({"-a.பொழில்", "--கண்காணி"}).out, expected);
    EXPECT_EQ(run({"--பதிப்பு"}).out, "build_release.sh\n[--பதிப்பு]") << "no program needed";
}

TEST_F(RunScript, WithoutAFileTakesTheOneOfTheUsualName) {
    write("முதன்மை.பொழில்", "");
    EXPECT_EQ(run({}).out, "build_release.sh\n[முதன்மை.பொழில்]");
    EXPECT_EQ(run({"--கண்காணி"}).out, "build_release.sh\n[--கண்காணி][முதன்மை.பொழில்]");
}

TEST_F(RunScript, StartsFromAnyShellAndFolder) {
    write("a.பொழில்", "நூஇறக்கி \"b\"\n");
    const ProcessResult bySh = run({"a.பொழில்"}, {"sh"});
    EXPECT_EQ(bySh.out, "build_release.sh\n[a.பொழில்]") << bySh.err;
    // A search path for cd, in which another place of the same name stands.
    fs::create_directories(root / "other" / "scripts");
    settings.push_back("CDPATH=" + (root / "other").u8string());
    from = home;
    const ProcessResult byName =
        runCommand({"bash", "scripts/run.sh", (work / "a.பொழில்").u8string()},
                   {from.u8string(), settings, "", 60});
    EXPECT_EQ(byName.out, "build_release.sh\n[" + (work / "a.பொழில்").u8string() + "]")
        << byName.err;
    // A link among one's own commands.
    from = work;
    fs::create_symlink(home / "scripts" / "run.sh", root / "run");
    const ProcessResult byLink = runCommand({"sh", (root / "run").u8string(), "a.பொழில்"},
                                            {from.u8string(), settings, "", 60});
    EXPECT_EQ(byLink.out, "build_release.sh\n[a.பொழில்]") << byLink.err;
}

TEST_F(RunScript, ApplicationNeedsThem) {
    write("a.பொழில்", "ஃ செயலி\n" + kApplication);
    EXPECT_EQ(run({"a.பொழில்"}).out, forWeb + "[a.பொழில்]");
    write("b.பொழில்", "");
    EXPECT_EQ(run({"b.பொழில்", "--வலை"}).out, forWeb + "[--வலை][b.பொழில்]");
}

TEST_F(RunScript, ApplicationInAnImportedModuleNeedsThemToo) {
    fs::create_directory(work / "பக்கங்கள்");
    write("பக்கங்கள்/செயலி.பொழில்", kApplication);
    write("b.பொழில்", "நூஇறக்கி \"a\"\n  நூஇறக்கி \"பக்கங்கள்/செயலி\"\n");
    write("a.பொழில்", "நூஇறக்கி \"b.பொழில்\"\n");  // round and round
    EXPECT_EQ(run({"a.பொழில்"}).out, forWeb + "[a.பொழில்]");
    from = root;
    EXPECT_EQ(run({"work/a.பொழில்"}).out, forWeb + "[a.பொழில்]");
}

class FolderOfAnApplication : public RunScript {
protected:
    FolderOfAnApplication() {
        fs::create_directory(work / "செயலி");
        write("செயலி/a.பொழில்", kApplication);
    }

    /// Starts the application from `work`; where the compiler was started then.
    std::string started(std::vector<std::string> command = {"bash"}) const {
        const ProcessResult result = run({"செயலி/a.பொழில்"}, std::move(command));
        EXPECT_EQ(result.exitCode, 5) << result.err;
        const bool inside = startedIn() == beside;
        EXPECT_EQ(result.out, forWeb + (inside ? "[a.பொழில்]" : "[செயலி/a.பொழில்]"));
        return startedIn();
    }

    const std::string beside = (work / "செயலி").u8string();
    const std::string here = work.u8string();
};

TEST_F(FolderOfAnApplication, IsWhereItLies) {
    EXPECT_EQ(started(), beside);
    fs::create_directories(work / "assets");
    fs::create_directories(work / "செயலி" / "assets");
    EXPECT_EQ(started(), beside);
}

TEST_F(FolderOfAnApplication, IsWhereItsAssetsLie) {
    fs::create_directories(work / "assets");
    EXPECT_EQ(started(), here);
}

TEST_F(FolderOfAnApplication, IsWhereItsModulesLie) {
    write("செயலி/a.பொழில்", "நூஇறக்கி \"வண்ணங்கள்\"\n" + kApplication);
    EXPECT_EQ(started(), beside);
    write("வண்ணங்கள்.பொழில்", "");
    EXPECT_EQ(started(), here);
    write("செயலி/வண்ணங்கள்.பொழில்", "");
    EXPECT_EQ(started(), beside);
}

TEST_F(FolderOfAnApplication, IsNotChosenByTheLibrary) {
    write("செயலி/a.பொழில்", "நூஇறக்கி \"தொகுப்புகள்/எண்\"\n" + kApplication);
    fs::create_directory(home / "தொகுப்புகள்");
    writeFileText(home / "தொகுப்புகள்" / "எண்.பொழில்", "");
    fs::create_directory_symlink(home / "தொகுப்புகள்", work / "தொகுப்புகள்");
    EXPECT_EQ(started(), beside);
}

TEST_F(FolderOfAnApplication, IsOneThatCanBeWrittenTo) {
    fs::permissions(work / "செயலி", static_cast<fs::perms>(0555));
    fs::permissions(work, fs::perms::all);
    fs::permissions(root / "tmp", kOpenToAll);
    // The permissions bind everyone but the superuser.
    std::vector<std::string> command = {"bash"};
    if (geteuid() == 0) {
        command = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "bash"};
    }
    EXPECT_EQ(started(command), here);
}

TEST_F(FolderOfAnApplication, IsWhereItIsChecked) {
    standIn(home / "பொழில்-துணை", "pwd; printf '<%s>' \"$@\"");
    EXPECT_EQ(run({"செயலி/a.பொழில்"}).err, beside + "\n<check><a.பொழில்>");
}

TEST_F(FolderOfAnApplication, NeedsNoFonts) {
    standIn(home / "scripts" / "example_fonts.sh", "echo எழுத்துரு; exit 1");
    const ProcessResult result = run({"செயலி/a.பொழில்"});
    EXPECT_EQ(result.out, "build_release.sh\nsetup_web.sh\nஎழுத்துரு\n[a.பொழில்]");
    EXPECT_NE(result.err.find("எழுத்துருக்கள் இல்லாமல் தொடர்கிறது"), std::string::npos) << result.err;
}

class TemporaryDirectory : public RunScript {
protected:
    TemporaryDirectory() {
        write("a.பொழில்", "");
        settings.push_back("XDG_CACHE_HOME=" + (root / "own").u8string());
    }

    std::string chosen() const {
        const ProcessResult result = run({"a.பொழில்"});
        EXPECT_EQ(result.exitCode, 5) << result.err;
        return startedWith(1);
    }

    void expectPrivate() const {
        const std::string directory = chosen();
        EXPECT_EQ(directory, (root / "own" / "pozhil").u8string());
        struct stat facts {};
        ASSERT_EQ(stat(directory.c_str(), &facts), 0);
        EXPECT_EQ(facts.st_mode & 0777U, 0700U);
    }
    const std::string common = (root / "tmp").u8string();
};

TEST_F(TemporaryDirectory, StaysWhereTheCacheIsOursOrFree) {
    EXPECT_EQ(chosen(), common);
    fs::create_directory(cache);
    makeExecutable(cache);
    EXPECT_EQ(chosen(), common);
    EXPECT_FALSE(fs::exists(root / "own"));
}

TEST_F(TemporaryDirectory, IsPrivateWhereTheCacheIsALink) {
    fs::create_directory(root / "planted");
    fs::create_directory_symlink(root / "planted", cache);
    expectPrivate();
    expectPrivate();  // and again, from run to run
    fs::remove(root / "planted");
    expectPrivate();
}

TEST_F(TemporaryDirectory, IsPrivateWhereOthersMayWrite) {
    fs::create_directory(cache);
    fs::permissions(cache, static_cast<fs::perms>(0757));
    expectPrivate();
    fs::permissions(cache, static_cast<fs::perms>(0775));
    expectPrivate();
}

TEST_F(TemporaryDirectory, IsPrivateWhereTheCacheIsSomebodyElses) {
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give a directory away";
    fs::create_directory(cache);
    makeExecutable(cache);
    ASSERT_EQ(chown(cache.c_str(), 65534, 65534), 0);
    expectPrivate();
}

TEST_F(TemporaryDirectory, IsPrivateWhereOthersMayReplaceTheCache) {
    fs::permissions(root / "tmp", kOpenToAll);
    EXPECT_EQ(chosen(), common);
    fs::permissions(root / "tmp", fs::perms::all);
    expectPrivate();
}

TEST_F(TemporaryDirectory, IsPrivateWhereTheCommonOneIsSomebodyElses) {
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give a directory away";
    ASSERT_EQ(chown(common.c_str(), 65534, 65534), 0);
    expectPrivate();
}

TEST_F(TemporaryDirectory, IsPrivateWhereThereIsNone) {
    fs::remove(root / "tmp");
    expectPrivate();
}

TEST_F(TemporaryDirectory, NeedsNoHome) {
    fs::create_directory_symlink(root, cache);
    writeFileText(root / "own", "no directory");
    const fs::path directory = fs::u8path(chosen());
    EXPECT_TRUE(fs::is_directory(directory));
    EXPECT_NE(directory, root / "tmp");
    EXPECT_EQ(fs::status(directory).permissions(), static_cast<fs::perms>(0700));
    fs::remove(directory);
}

}  // namespace
