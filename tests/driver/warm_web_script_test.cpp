// scripts/warm_web.sh: when it makes anew what is prepared for em++, and what is left behind where
// it can't be made. The em++ is a stand-in; the real one has the tests of the browser.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

class WarmWebScript : public Workplace {
protected:
    WarmWebScript() {
        fs::create_directories(home / "scripts");
        for (const char* name : {"warm_web.sh", "messages.sh"}) {
            fs::copy_file(fs::u8path(POZHIL_ROOT) / "scripts" / name, home / "scripts" / name);
        }
        fs::remove(home / "src");
        fs::create_directories(home / "src");
        writeFileText(home / "src" / "warmed_web.h", "// தலைப்புகள்\n");
        writeFileText(home / "src" / "held_bodies.h", "// வரையறைகள்\n");
        writeFileText(root / "system.h", "// ஒரு தலைப்பு\n");
        writeFileText(root / "library.h", "// இன்னொன்று\n");
        compilerDoes("true");
    }

    /// An em++ that starts its clang as the real one does, reads the header `system.h`, for the
    /// bodies `library.h`, and takes what it is given, unless `check` fails.
    void compilerDoes(const std::string& check) const {
        const std::string place = root.u8string();
        script("clang",
               "echo \"$@\" >>'" + place +
                   "/clang.calls'\nwhile [ \"$1\" != -o ]; do shift; done\necho made >\"$2\"");
        const std::string clang = "'" + place + "/bin/clang' \"$@\"";
        const auto reads = [&place](const std::string& header) {
            return " && echo '. " + place + "/" + header + "' >&2 ;;\n";
        };
        script("em++",
               check + " || exit 1\ncase \" $* \" in\n*' c++-header '*) \"$EM_COMPILER_WRAPPER\" " +
                   clang + reads("system.h") + "*' -x c++ -c '*) " + clang + reads("library.h") +
                   "esac");
        fs::last_write_time(root / "bin" / "em++", fs::file_time_type() + std::chrono::hours(1));
    }

    ProcessResult run(const std::vector<std::string>& arguments = {}) const {
        std::vector<std::string> command = {"bash", (home / "scripts" / "warm_web.sh").u8string()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return runCommand(command, {work.u8string(), environment(), "", 120});
    }

    /// Whether a run starts clang. Where it doesn't the run says nothing.
    bool isMade() const {
        fs::remove(root / "clang.calls");
        const ProcessResult result = run();
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_EQ(result.out, "");
        const bool made = fs::exists(root / "clang.calls");
        EXPECT_EQ(result.err.empty(), !made) << result.err;
        return made;
    }

    std::string list() const { return readFileText(warmed / "fits"); }

    const fs::path warmed = home / "திரட்டு" / "warmed_web";
};

TEST_F(WarmWebScript, MakesHeadersAndTheirObjectsByTheSameClang) {
    ASSERT_TRUE(isMade());
    for (const char* name : {"headers.h.pch", "instances.o", "runtime.o"}) {
        EXPECT_EQ(readFileText(warmed / name), "made\n") << name;
    }
    std::string calls = readFileText(root / "clang.calls");
    const std::size_t second = calls.find('\n') + 1, third = calls.find('\n', second) + 1;
    const std::string bodies = calls.substr(third);
    for (const char* flag :
         {"/src/held_bodies.h ", "-std=c++17", "_LIBCPP_ABI_OPTIMIZED_FUNCTION", "-fwrapv"}) {
        EXPECT_NE(bodies.find(flag), std::string::npos) << bodies;
    }
    calls.resize(third);
    EXPECT_NE(calls.substr(0, second).find("-x c++-header " + home.u8string()), std::string::npos);
    EXPECT_NE(calls.substr(second).find("-x none -c "), std::string::npos) << calls;
    for (const char* flag : {"-std=c++17", "_LIBCPP_ABI_OPTIMIZED_FUNCTION", "-fpch-codegen"}) {
        EXPECT_LT(calls.find(flag), second) << calls;
        EXPECT_NE(calls.find(flag, second), std::string::npos) << calls;
    }
}

TEST_F(WarmWebScript, ListsWhatBothDependOn) {
    ASSERT_TRUE(isMade());
    std::vector<std::string> paths;
    std::istringstream lines(list());
    for (std::string line; std::getline(lines, line);) {
        paths.push_back(line.substr(line.find(' ', line.find(' ') + 1) + 1));
    }
    const std::vector<std::string> expected = {(root / "bin" / "em++").u8string(),
                                               (warmed / "headers.h.pch").u8string(),
                                               (warmed / "instances.o").u8string(),
                                               (warmed / "runtime.o").u8string(),
                                               (home / "src" / "warmed_web.h").u8string(),
                                               (home / "src" / "held_bodies.h").u8string(),
                                               (root / "library.h").u8string(),
                                               (root / "system.h").u8string()};
    EXPECT_EQ(paths, expected);
}

TEST_F(WarmWebScript, MakesThemAnewOnlyWhenSomethingChanged) {
    EXPECT_TRUE(isMade());
    EXPECT_FALSE(isMade());
    for (const fs::path& file :
         {root / "system.h", root / "library.h", home / "src" / "warmed_web.h",
          home / "src" / "held_bodies.h", root / "bin" / "em++", home / "scripts" / "warm_web.sh",
          warmed / "headers.h.pch", warmed / "instances.o", warmed / "runtime.o"}) {
        SCOPED_TRACE(file);
        std::ofstream(file, std::ios::app) << "\n";
        EXPECT_TRUE(isMade());
        EXPECT_FALSE(isMade());
    }
    fs::remove(warmed / "instances.o");
    EXPECT_TRUE(isMade());
    const fs::path emxx = root / "bin" / "em++";
    fs::last_write_time(emxx, fs::last_write_time(emxx) + std::chrono::hours(1));
    EXPECT_TRUE(isMade()) << "another em++";
}

TEST_F(WarmWebScript, MakesThemAnewInACopyOfTheFolder) {
    EXPECT_TRUE(isMade());
    const fs::path original = root / "original";
    ASSERT_EQ(runCommand({"cp", "-a", warmed.u8string(), original.u8string()}).exitCode, 0);
    const std::string listed = list();
    std::string copied = listed;
    for (std::size_t at = 0; (at = copied.find(warmed.u8string(), at)) != std::string::npos;) {
        copied.replace(at, warmed.u8string().size(), original.u8string());
    }
    ASSERT_NE(copied, listed);
    writeFileText(warmed / "fits", copied);
    EXPECT_TRUE(isMade());
    EXPECT_FALSE(isMade());
}

TEST_F(WarmWebScript, LeavesNoListWhereTheCompilerRefuses) {
    EXPECT_TRUE(isMade());
    compilerDoes("echo '# anew' >/dev/null; false");
    EXPECT_EQ(run().exitCode, 0);
    EXPECT_FALSE(fs::exists(warmed / "fits"));
    compilerDoes("case \" $* \" in *'empty.cpp'*) false ;; esac");
    EXPECT_TRUE(isMade()) << "another em++ is asked again";
    EXPECT_FALSE(fs::exists(warmed / "fits")) << "it makes them and doesn't take them";
    EXPECT_FALSE(isMade()) << "asked once";
    fs::last_write_time(warmed / "refused",
                        fs::file_time_type::clock::now() - std::chrono::hours(50));
    EXPECT_TRUE(isMade()) << "and again on another day: the disk may have been full";
    compilerDoes("true");
    EXPECT_TRUE(isMade());
    EXPECT_TRUE(fs::exists(warmed / "fits"));
}

TEST_F(WarmWebScript, DoesNothingWithoutACompiler) {
    fs::create_directories(root / "few");
    for (const char* name : {"bash", "sh", "readlink", "dirname", "cksum"}) {
        fs::create_symlink(fs::path("/usr/bin") / name, root / "few" / name);
    }
    const ProcessResult result =
        runCommand({"/usr/bin/env", "PATH=" + (root / "few").u8string(), "bash",
                    (home / "scripts" / "warm_web.sh").u8string()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_FALSE(fs::exists(warmed));
}

TEST_F(WarmWebScript, TidiesUpBehindARunThatWasKilled) {
    fs::create_directories(warmed / "new.abcdef");
    writeFileText(warmed / "headers.h.pch", "half");
    EXPECT_TRUE(isMade());
    EXPECT_FALSE(fs::exists(warmed / "new.abcdef"));
    EXPECT_EQ(readFileText(warmed / "headers.h.pch"), "made\n");
}

TEST_F(WarmWebScript, TwoRunsMakeThemOnce) {
    compilerDoes("sleep 0.3");  // the second run begins meanwhile
    const std::string one = "bash '" + (home / "scripts" / "warm_web.sh").u8string() + "'";
    const ProcessResult both = runCommand({"bash", "-c", one + " & " + one + " & wait"},
                                          {work.u8string(), environment(), "", 120});
    EXPECT_EQ(both.exitCode, 0) << both.err;
    const std::string calls = readFileText(root / "clang.calls");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), '\n'), 3) << calls;
    EXPECT_FALSE(isMade());
}

TEST_F(WarmWebScript, MakesThemInTheFolderThatItIsTold) {
    const fs::path other = root / fs::u8path("என் 'வீடு'");
    fs::create_directories(other / "திரட்டு");
    fs::copy(home / "src", other / "src");
    EXPECT_EQ(run({other.u8string()}).exitCode, 0);
    EXPECT_TRUE(fs::exists(other / "திரட்டு" / "warmed_web" / "fits"));
    EXPECT_FALSE(fs::exists(warmed));
}

}  // namespace
