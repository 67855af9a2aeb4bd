// scripts/run.sh with stand-ins for what it calls: what is refused, what is made ready, and how the
// compiler is started.
#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

const std::string kApplication = "வலைதளம் கணக்கி(\n    தலைமை() குமரி() வரையறை()\n)\n";

class RunScript : public Workplace {
protected:
    RunScript() {
        fs::create_directories(home / "scripts");
        for (const char* script : {"run.sh", "messages.sh"}) {
            fs::copy_file(fs::u8path(POZHIL_ROOT) / "scripts" / script, home / "scripts" / script);
        }
        for (const char* script : {"build_release.sh", "setup_web.sh", "example_fonts.sh"}) {
            standIn(home / "scripts" / script, std::string("echo ") + script);
        }
        standIn(compiler, "echo பொழில் \"$@\"; exit 5");
    }

    static void standIn(const fs::path& path, const std::string& text) {
        writeFileText(path, "#!/bin/sh\n" + text + "\n");
        makeExecutable(path);
    }

    ProcessResult run(const std::vector<std::string>& arguments) const {
        std::vector<std::string> command = {"bash", (home / "scripts" / "run.sh").u8string()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return runCommand(command, {work.u8string(), {}, "", 60});
    }

    void expectRefused(const std::vector<std::string>& arguments, const std::string& text) const {
        const ProcessResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "\033[1;31m🚨 " + text + "\033[0m\n");
    }

    const std::string forWeb = "build_release.sh\nsetup_web.sh\n";
};

TEST_F(RunScript, RefusesWhatIsNoProgram) {
    write("prog.txt", "");
    fs::create_directory(work / "d.பொழில்");
    expectRefused({}, "எந்த நிரலை இயக்க வேண்டும்? பயன்பாடு: scripts/run.sh கோப்பு.பொழில்");
    expectRefused({"இல்லை.பொழில்"}, "'இல்லை.பொழில்' என்ற கோப்பு இல்லை.");
    expectRefused({"d.பொழில்"}, "'d.பொழில்' ஒரு கோப்புறை, நிரல் அல்ல.");
    expectRefused({"prog.txt"}, "'prog.txt': நிரலின் பெயர் .பொழில் என முடிய வேண்டும்.");
}

TEST_F(RunScript, ConsoleProgramNeedsNoWebTools) {
    write("a b.பொழில்", "அச்சிடு(\"வலைதளம்\")\nநூஇறக்கி \"இல்லை\"\n");
    const ProcessResult result = run({"a b.பொழில்", "--கண்காணி"});
    EXPECT_EQ(result.out, "build_release.sh\nபொழில் a b.பொழில் --கண்காணி\n");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.exitCode, 5) << "the compiler's own status";
}

TEST_F(RunScript, ApplicationNeedsThem) {
    write("a.பொழில்", "ஃ செயலி\n" + kApplication);
    EXPECT_EQ(run({"a.பொழில்"}).out, forWeb + "பொழில் a.பொழில்\n");
    write("b.பொழில்", "");
    EXPECT_EQ(run({"b.பொழில்", "--வலை"}).out, forWeb + "பொழில் b.பொழில் --வலை\n");
}

TEST_F(RunScript, ApplicationInAnImportedModuleNeedsThemToo) {
    fs::create_directory(work / "பக்கங்கள்");
    write("பக்கங்கள்/செயலி.பொழில்", kApplication);
    write("b.பொழில்", "நூஇறக்கி \"a\"\n  நூஇறக்கி \"பக்கங்கள்/செயலி\"\n");
    write("a.பொழில்", "நூஇறக்கி \"b.பொழில்\"\n");  // round and round
    EXPECT_EQ(run({"a.பொழில்"}).out, forWeb + "பொழில் a.பொழில்\n");
}

TEST_F(RunScript, ExampleOfTheWebGetsItsFonts) {
    const fs::path examples = home / "examples" / "web";
    fs::create_directories(examples);
    writeFileText(examples / "a.பொழில்", kApplication);
    const std::string path = (examples / "a.பொழில்").u8string();
    EXPECT_EQ(run({path}).out, forWeb + "example_fonts.sh\nபொழில் " + path + "\n");
}

}  // namespace
