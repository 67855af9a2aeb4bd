// The scripts that build, with a project of one target: they configure a directory once, afresh
// where the checkout was moved, and leave alone what only others may write to.
#include <unistd.h>

#include <fstream>

#include "driver/workplace.h"
#include "support/pattern.h"

namespace fs = std::filesystem;

namespace {

const fs::path kScripts = fs::u8path(POZHIL_ROOT) / "scripts";

/// Configuring leaves a line in `configured`, building writes where it was built into `built`.
const std::string kProject =
    "cmake_minimum_required(VERSION 3.22)\n"
    "project(pozhil NONE)\n"
    "file(APPEND configured \"${NOTE}\\n\")\n"
    "add_custom_target(pozhil COMMAND echo ${CMAKE_SOURCE_DIR} > ${CMAKE_SOURCE_DIR}/built)\n"
    "add_custom_target(companion COMMAND echo ${CMAKE_SOURCE_DIR} > ${CMAKE_SOURCE_DIR}/beside)\n";

std::string presetsThatNote(const std::string& note) {
    return R"({"version": 3, "configurePresets": [{"name": "release", "generator": "Ninja",)"
           R"( "binaryDir": "${sourceDir}/build/release", "cacheVariables": {"NOTE": ")" +
           note + R"("}}], "buildPresets": [{"name": "release", "configurePreset": "release"}]})";
}

class BuildScript : public Workplace {
protected:
    BuildScript() {
        fs::create_directories(home / "scripts");
        for (const char* script : {"build_release.sh", "build_directory.sh", "messages.sh"}) {
            fs::copy_file(kScripts / script, home / "scripts" / script);
        }
        standIn(home / "scripts" / "prepare_objects.sh", "echo >>prepared");
        writeFileText(home / "CMakeLists.txt", kProject);
        writeFileText(home / "CMakePresets.json", presetsThatNote("first"));
    }

    static void standIn(const fs::path& path, const std::string& text) {
        writeFileText(path, "#!/bin/sh\n" + text + "\n");
        makeExecutable(path);
    }

    ProcessResult build(std::vector<std::string> command = {"bash"}) const {
        command.push_back((home / "scripts" / "build_release.sh").u8string());
        return runCommand(command,
                          {work.u8string(), {"TMPDIR=" + (root / "tmp").u8string()}, "", 60});
    }

    void expectBuilt() const {
        const ProcessResult result = build();
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(readFileText(home / "built"), home.u8string() + "\n");
        EXPECT_EQ(readFileText(home / "beside"), home.u8string() + "\n");
        EXPECT_TRUE(fs::remove(home / "prepared"));
    }

    std::string configured() const { return readFileText(home / "configured"); }
};

TEST_F(BuildScript, ConfiguresOnce) {
    expectBuilt();
    expectBuilt();
    EXPECT_EQ(configured(), "first\n");
}

TEST_F(BuildScript, ConfiguresAfreshWhereTheCheckoutWasMoved) {
    expectBuilt();
    writeFileText(home / "build" / "release" / "kept", "");
    fs::rename(home, root / "another name");
    home = root / "another name";
    expectBuilt();
    EXPECT_EQ(configured(), "first\nfirst\n");
    EXPECT_TRUE(fs::exists(home / "build" / "release" / "kept"));

    // A copy whose original still stands.
    fs::copy(home, root / "copy", fs::copy_options::recursive);
    home = root / "copy";
    fs::remove(home / "built");
    expectBuilt();
    EXPECT_EQ(configured(), "first\nfirst\nfirst\n");
}

TEST_F(BuildScript, TakesALinkForThePlaceItLeadsTo) {
    expectBuilt();
    fs::create_directory_symlink(home, root / "link");
    home = root / "link";
    EXPECT_EQ(build().exitCode, 0);
    EXPECT_EQ(configured(), "first\n");
}

TEST_F(BuildScript, ConfiguresAgainWhenThePresetsChange) {
    expectBuilt();
    writeFileText(home / "CMakePresets.json", presetsThatNote("second"));
    fs::last_write_time(home / "CMakePresets.json",
                        fs::file_time_type::clock::now() + std::chrono::seconds(1));
    expectBuilt();
    EXPECT_EQ(configured(), "first\nsecond\n");
}

TEST_F(BuildScript, ForgetsWhatFormerPresetsSaid) {
    expectBuilt();
    std::string presets = presetsThatNote("second");
    presets.replace(presets.find("NOTE"), 4, "OTHER");
    writeFileText(home / "CMakePresets.json", presets);
    fs::last_write_time(home / "CMakePresets.json",
                        fs::file_time_type::clock::now() + std::chrono::seconds(1));
    expectBuilt();
    EXPECT_EQ(configured(), "first\n\n");
}

TEST_F(BuildScript, KeepsWhatWasConfiguredByHand) {
    const ProcessResult byHand = runCommand({"cmake", "--preset", "release", "-DNOTE=my own"},
                                            {home.u8string(), {}, "", 60});
    ASSERT_EQ(byHand.exitCode, 0) << byHand.err;
    expectBuilt();
    EXPECT_EQ(configured(), "my own\n");
}

TEST_F(BuildScript, ShowsItsProgressOnATerminalAlone) {
    const std::string script = (home / "scripts" / "build_release.sh").u8string();
    const ProcessResult seen = runCommand(
        {"script", "--quiet", "--return", "--command", "bash '" + script + "'", "/dev/null"},
        {work.u8string(), {"TMPDIR=" + (root / "tmp").u8string()}, "", 60});
    EXPECT_EQ(seen.exitCode, 0) << seen.err;
    EXPECT_NE(seen.out.find("\r\033[2m🔨 பொழில் கட்டப்படுகிறது: 100%\033[0m\r\033[K"),
              std::string::npos)
        << seen.out;
    fs::remove_all(home / "build");
    const ProcessResult noted = build();
    EXPECT_EQ(noted.exitCode, 0) << noted.err;
    EXPECT_EQ(noted.err.find('%'), std::string::npos) << noted.err;
}

TEST_F(BuildScript, TellsWhatFailed) {
    standIn(home / "scripts" / "prepare_objects.sh", "echo குறை >&2; exit 1");
    ProcessResult result = build();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("குறை\n\033[1;31m🚨 பொழிலின் துணைக் கோப்புகளை உருவாக்க முடியவில்லை."),
              std::string::npos)
        << result.err;
    writeFileText(home / "CMakeLists.txt", "இல்லை()\n");
    standIn(home / "scripts" / "prepare_objects.sh", "");
    result = build();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("🚨"), std::string::npos) << result.err;
}

class BuildScriptOfSomebodyElse : public BuildScript {
protected:
    BuildScriptOfSomebodyElse() {
        fs::permissions(root / "tmp", fs::perms::all);
        fs::permissions(home, static_cast<fs::perms>(0555));
    }
    ~BuildScriptOfSomebodyElse() override { fs::permissions(home, fs::perms::owner_all); }

    // Permissions bind everyone but the superuser.
    ProcessResult buildAsSomebodyElse() const {
        if (geteuid() != 0) return build();
        return build({"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "bash"});
    }
};

TEST_F(BuildScriptOfSomebodyElse, TakesAFinishedCompilerAsItIs) {
    writeFileText(object, "");
    const ProcessResult result = buildAsSomebodyElse();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_FALSE(fs::exists(home / "prepared"));
}

TEST_F(BuildScriptOfSomebodyElse, SaysThatNothingCanBeBuilt) {
    const ProcessResult result = buildAsSomebodyElse();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("எழுத உமக்கு உரிமை இல்லை"), std::string::npos) << result.err;
}

TEST(Scripts, ConfigureInOnePlace) {
    std::vector<std::string> places;
    for (const auto& entry : fs::directory_iterator(kScripts)) {
        if (readFileText(entry.path()).find("cmake --preset") == std::string::npos) continue;
        places.push_back(entry.path().filename());
    }
    EXPECT_EQ(places, std::vector<std::string>{"build_directory.sh"});
}

// A text that waited for the libraries of whom it is for had all of them compiled.
TEST(Scripts, CompileNothingForLint) {
    const std::string build = POZHIL_BUILD_DIR "/lint_commands";
    std::vector<std::string> command = {"cmake", "--build", build, "--target"};
    for (const Match& match :
         Pattern("generated/\\w+\\.h").all(readFileText(kScripts / "lint.sh"))) {
        command.push_back(match[0]);
    }
    EXPECT_EQ(command.size(), 7U);
    fs::remove_all(fs::u8path(build));
    const ProcessResult configured =
        runCommand({"cmake", "--preset", "lint", "-B", build}, {POZHIL_ROOT, {}, "", 120});
    ASSERT_EQ(configured.exitCode, 0) << configured.err;
    const ProcessResult built = runCommand(command);
    EXPECT_EQ(built.exitCode, 0) << built.err;
    EXPECT_NE(built.out.find("[3/3]"), std::string::npos) << built.out;
}

TEST(Scripts, NamedInTheDocumentsCanBeStarted) {
    const std::string documents = readFileText(fs::u8path(POZHIL_ROOT) / "README.md") +
                                  readFileText(fs::u8path(POZHIL_ROOT) / "CONTRIBUTING.md");
    const Pattern name("scripts/[a-z_]+\\.sh");
    int found = 0;
    for (const Match& match : name.all(documents)) {
        const fs::path script = fs::u8path(POZHIL_ROOT) / match[0];
        EXPECT_EQ(access(script.c_str(), X_OK), 0) << script;
        EXPECT_NE(fs::status(script).permissions() & fs::perms::others_exec, fs::perms::none)
            << script;
        ++found;
    }
    EXPECT_GE(found, 4);
}

/// Configures the compiler itself, in a directory of its own; gives the folder of the library.
std::string libraryFolder(const fs::path& directory, std::vector<std::string> command) {
    command.insert(command.end(), {"-B", directory.u8string()});
    const ProcessResult result = runCommand(command, {POZHIL_ROOT, {}, "", 120});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    const std::string name = "POZHIL_LIBRARY_DIR:STRING=";
    std::ifstream cache(directory / "CMakeCache.txt");
    for (std::string line; std::getline(cache, line);) {
        if (line.rfind(name, 0) == 0) return line.substr(name.size());
    }
    return "not in the cache";
}

class LibraryFolder : public Workplace {};

// An import names its module as it does in the checkout: "தொகுப்புகள்/எண்/எண்".
TEST_F(LibraryFolder, LiesBesideTheExecutableWhereverThatIsMoved) {
    const fs::path directory = root / "build";
    EXPECT_EQ(libraryFolder(directory, {"cmake", "--preset", "release"}), "./");
    const std::string commands = readFileText(directory / "compile_commands.json");
    EXPECT_NE(commands.find("POZHIL_LIBRARY_DIR=\\\\\\\"./\\\\\\\""), std::string::npos);
}

TEST_F(LibraryFolder, IsAFixedOneForWhoeverAsksForNothing) {
    EXPECT_EQ(libraryFolder(root / "build", {"cmake", "-S", ".", "-G", "Ninja"}),
              "/home/velanar/Pozhil/தொகுப்புகள்/");
}

class FontsScript : public Workplace {
protected:
    FontsScript() {
        fs::create_directories(home / "scripts");
        fs::create_directories(home / "build" / "fonts");
        for (const char* script : {"example_fonts.sh", "messages.sh"}) {
            fs::copy_file(kScripts / script, home / "scripts" / script);
        }
        for (const char* font : {"Tamil-Regular.ttf", "Coiny-Regular.ttf"}) {
            writeFileText(home / "build" / "fonts" / font, "stored");
        }
    }

    ProcessResult giveFonts() const {
        return runCommand({"bash", (home / "scripts" / "example_fonts.sh").u8string(), "."},
                          {work.u8string(), environment(), "", 60});
    }
};

TEST_F(FontsScript, GivesWhatIsMissingAndNoMore) {
    const fs::path fonts = work / "assets" / "font";
    fs::create_directories(fonts);
    writeFileText(fonts / "Tamil-Regular.ttf", "my own");
    fs::last_write_time(fonts / "Tamil-Regular.ttf", fs::file_time_type::min());
    const ProcessResult first = giveFonts();
    EXPECT_EQ(first.exitCode, 0) << first.err;
    EXPECT_NE(first.err.find((work / "assets" / "font").u8string()), std::string::npos);
    EXPECT_EQ(readFileText(fonts / "Tamil-Regular.ttf"), "my own");
    EXPECT_EQ(readFileText(fonts / "Coiny-Regular.ttf"), "stored");
    EXPECT_EQ(giveFonts().err, "") << "nothing was missing";
}

}  // namespace
