// What an installation holds: a compiler that is started by a link among the commands and finds its
// companions beside itself, and the folder in which it looks for the module library.
#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

const fs::path kTree = fs::u8path(POZHIL_ROOT);

class Installation : public Workplace {
protected:
    const fs::path prefix = root / "prefix";
    const fs::path command = prefix / "bin" / "பொழில்";
    const fs::path installed = prefix / "lib" / "pozhil";
};

TEST_F(Installation, HoldsAllThatACompilerLooksForBesideItself) {
    const ProcessResult result =
        runCommand({"cmake", "--install", POZHIL_BUILD_DIR, "--prefix", prefix.u8string()});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    for (const char* name :
         {"உள்ளடக்கம்/error_codes.h", "உள்ளடக்கம்/error_handler.h", "உள்ளடக்கம்/template.html", "திரட்டு",
          "src/error_handler.cpp", "src/warmed_web.h", "தொகுப்புகள்/எண்/எண்.பொழில்",
          "தொகுப்புகள்/வலைதளம்/வலைதளம்.பொழில்"}) {
        EXPECT_TRUE(fs::exists(installed / fs::u8path(name))) << name;
    }

    EXPECT_FALSE(fs::exists(installed / "திரட்டு" / "warmed_web")) << "it fits its own folder alone";

    // The diagnostics object can be made again: nothing that its source includes is missing.
    const ProcessResult read = runCommand({"g++", "-E", "-std=c++17", "-DPOZHIL_WITH_INSTANCES",
                                           "-I" + (installed / "உள்ளடக்கம்").u8string(),
                                           (installed / "src/error_handler.cpp").u8string()});
    EXPECT_EQ(read.exitCode, 0) << read.err;

    for (const char* name : {"பொழில்-துணை", "pozhil-thunai", "pozhil"}) {
        EXPECT_TRUE(fs::exists(prefix / "bin" / name)) << name;
    }
    write("தவறு.பொழில்", "எனில் மெய்\n    அச்சிடு(1)\n");
    const ProcessResult checked = runCommand(
        {(prefix / "bin" / "pozhil-thunai").u8string(), "check", (work / "தவறு.பொழில்").u8string()});
    EXPECT_EQ(checked.exitCode, 1) << checked.err;

    compiler = command;
    fakeCompiler("echo இயங்கியது");
    write("a.பொழில்", "");
    EXPECT_NE(compile({"a.பொழில்"}).out.find("இயங்கியது\n"), std::string::npos);
    ASSERT_FALSE(compilerCalls().empty());
    const std::string folder = "[-I" + (installed / "உள்ளடக்கம்").u8string() + "]";
    EXPECT_NE(compilerCalls().back().find(folder), std::string::npos) << compilerCalls().back();
}

/// The script, with a project that notes how it is configured and installs that note.
class InstallScript : public Installation {
protected:
    InstallScript() {
        fs::create_directories(home / "scripts");
        for (const char* script : {"install.sh", "build_directory.sh", "messages.sh"}) {
            fs::copy_file(kTree / "scripts" / script, home / "scripts" / script);
        }
        writeFileText(home / "scripts" / "build_release.sh", "#!/bin/sh\n");
        makeExecutable(home / "scripts" / "build_release.sh");
        writeFileText(home / "CMakePresets.json",
                      R"({"version": 3, "configurePresets": [{"name": "install",)"
                      R"( "generator": "Ninja", "binaryDir": "${sourceDir}/build/install"}],)"
                      R"( "buildPresets": [{"name": "install", "configurePreset": "install"}]})");
        writeFileText(home / "CMakeLists.txt",
                      "cmake_minimum_required(VERSION 3.22)\n"
                      "project(pozhil NONE)\n"
                      "add_custom_target(pozhil COMMAND echo ${CMAKE_INSTALL_PREFIX} > folder)\n"
                      "add_custom_target(companion COMMAND echo > companion)\n"
                      "install(FILES ${CMAKE_BINARY_DIR}/folder ${CMAKE_BINARY_DIR}/companion\n"
                      "        DESTINATION .)\n");
    }

    ProcessResult install(const std::vector<std::string>& arguments) const {
        std::vector<std::string> command = {"sh", (home / "scripts" / "install.sh").u8string()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return runCommand(command, {work.u8string(), {}, "", 60});
    }
};

TEST_F(InstallScript, InstallsIntoTheFolderThatIsNamed) {
    for (const char* name : {"one", "two"}) {
        const ProcessResult result = install({std::string("../") + name});
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_EQ(readFileText(root / name / "folder"), (root / name).u8string() + "\n");
        EXPECT_NE(result.err.find((root / name / "bin" / "பொழில்").u8string()), std::string::npos);
    }
}

TEST_F(InstallScript, PreparesEmxxWhereWebApplicationsCanBeBuilt) {
    writeFileText(home / "scripts" / "warm_web.sh",
                  "#!/bin/sh\necho \"$1\" >>'" + (root / "warmed").u8string() + "'\nexit 1\n");
    makeExecutable(home / "scripts" / "warm_web.sh");
    EXPECT_EQ(install({"../without"}).exitCode, 0);
    EXPECT_FALSE(fs::exists(root / "warmed"));
    const fs::path folder = root / "with" / "lib" / "pozhil";
    fs::create_directories(folder / "திரட்டு");
    writeFileText(folder / "திரட்டு" / "error_handler_web.o", "");
    EXPECT_EQ(install({"../with"}).exitCode, 0) << "it can do without";
    EXPECT_EQ(readFileText(root / "warmed"), folder.u8string() + "\n");
}

TEST_F(InstallScript, RefusesAPlaceThatCannotBe) {
    write("file", "");
    const ProcessResult result = install({"file/inside"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("எழுத உமக்கு உரிமை இல்லை"), std::string::npos) << result.err;
    EXPECT_FALSE(fs::exists(home / "build"));
}

}  // namespace
