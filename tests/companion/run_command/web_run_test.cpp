// run FILE for web applications: who builds them, where, and what is missing.
#include "companion/run_command/companion_place.h"

namespace fs = std::filesystem;

namespace {

const std::string kApplication =
    "வலைதளம் என்தளம்(\n    தலைமை()\n    குமரி(உரை(\"வணக்கம்\"))\n    வரையறை()\n)\n";

class WebRun : public CompanionPlace {
protected:
    WebRun() {
        fs::create_directories(work / "தளம்");
        write("தளம்/a.பொழில்", kApplication);
    }

    void standIn(const fs::path& path) const {
        fs::create_directories(path.parent_path());
        writeFileText(path, "#!/bin/sh\npwd >'" + (root / "place").u8string() +
                                "'\nprintf '[%s]' \"$@\" \"$TMPDIR\"; exit 5\n");
        makeExecutable(path);
    }

    ProcessResult run(const std::string& path = "தளம்/a.பொழில்") const {
        return companion({"run", path});
    }

    fs::path startedIn() const {
        const std::string place = readFileText(root / "place");
        return fs::u8path(place.substr(0, place.find('\n')));
    }
};

TEST_F(WebRun, IsLeftToTheScriptWhereItStands) {
    standIn(home / "scripts" / "run.sh");
    const ProcessResult result = run();
    EXPECT_EQ(result.exitCode, 5) << result.err;
    EXPECT_EQ(result.out, "[a.பொழில்][" + projectFolders().at(0).u8string() + "]");
    EXPECT_EQ(startedIn(), work / "தளம்") << "there lie its assets";
}

TEST_F(WebRun, StaysWhereOnlyItsAssetsLie) {
    standIn(home / "scripts" / "run.sh");
    fs::create_directory(work / "assets");
    EXPECT_EQ(run().out.rfind("[தளம்/a.பொழில்]", 0), 0U);
    EXPECT_EQ(startedIn(), work);
    fs::create_directory(work / "தளம்" / "assets");
    run();
    EXPECT_EQ(startedIn(), work / "தளம்");
}

TEST_F(WebRun, FindsAnApplicationInAModuleBesideIt) {
    standIn(home / "scripts" / "run.sh");
    write("தளம்/பக்கம்.பொழில்", kApplication);
    write("தளம்/a.பொழில்", "நூஇறக்கி \"பக்கம்\"\n");
    EXPECT_EQ(run().exitCode, 5);
    EXPECT_EQ(startedIn(), work / "தளம்");
}

TEST_F(WebRun, StopsAtAnErrorFirst) {
    standIn(home / "scripts" / "run.sh");
    write("தளம்/a.பொழில்", "வலைதளம் என்தளம்(\n    குமரி(உரை())\n)\n");
    const ProcessResult result = run();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err, "");
    EXPECT_FALSE(fs::exists(root / "place"));
}

TEST_F(WebRun, TellsWhatAnInstalledCompilerLacks) {
    fs::create_directories(root / "bin");
    settings.push_back("PATH=" + (root / "bin").u8string());
    ProcessResult result = run();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("em++ இந்தக் கணினியில் இல்லை"), std::string::npos) << result.err;

    script("em++", "exit 1");
    result = run();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("திரட்டு/error_handler_web.o' இல்லை"), std::string::npos) << result.err;
}

TEST_F(WebRun, StartsAnInstalledCompilerThatHasAll) {
    script("em++", "exit 1");
    for (const char* part : {"திரட்டு/error_handler_web.o", "திரட்டு/nanovg_web.o",
                             "உள்ளடக்கம்/nanovg/nanovg.h", "உள்ளடக்கம்/template.html"}) {
        fs::create_directories((home / fs::u8path(part)).parent_path());
        writeFileText(home / fs::u8path(part), "");
    }
    fs::remove(compiler);
    standIn(compiler);
    EXPECT_EQ(run().exitCode, 5);
    EXPECT_EQ(startedIn(), work / "தளம்");
}

TEST_F(WebRun, IsNeverQuiet) {
    standIn(home / "scripts" / "run.sh");
    const ProcessResult result = companion({"run", "--quiet", "தளம்/a.பொழில்"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find("--quiet இல்லாமல்"), std::string::npos) << result.err;
}

}  // namespace
