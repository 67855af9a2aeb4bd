// The console road from the generated text on: banner, title, g++, the swap and the run.
#include <chrono>

#include "driver/prepared_workplace.h"

namespace fs = std::filesystem;

namespace {

const std::string kObjectLine =
    "⚙️ "
    "சிஸ்டம் ஆப்ஜெக்ட் ஃபைல் புதிதாக உருவாக்கப்படுகிறது...\n";
const std::string kBuildFailure =
    "\033[1;31mபிழை: தொகுப்பதில் சிக்கல்! உன்னோட கோடை ஒருவாட்டி பாரு மச்சி.\033[0m\n";

class NativeBuild : public Workplace {
protected:
    NativeBuild() { write("a.பொழில்", "அச்சிடு(41)\n"); }

    std::string objectCall() const {
        return "[-c][" + home.u8string() + "/src/error_handler.cpp][-o][" + object.u8string() +
               "][-std=c++17][-I" + home.u8string() + "/உள்ளடக்கம்]";
    }

    std::string programCall() const {
        const std::string include = "[-I" + home.u8string() + "/உள்ளடக்கம்";
        return "[" + cache.u8string() + "/generated.cpp][" + object.u8string() + "][-o][" +
               cache.u8string() + "/pozhil_temp_app][-std=c++17]" + include + "]" + include +
               "/nanovg][-static][-static-libstdc++][-static-libgcc][-lm][-lpthread]";
    }
};

TEST_F(NativeBuild, ObjectOnceThenProgram) {
    fakeCompiler("read answer; echo \"கேட்டது: $answer\"; exit 3");
    const ProcessResult first = compile({"a.பொழில்"}, {"", {}, "ஆம்\n", 60});
    EXPECT_EQ(first.out, kBanner + titleOf("a.பொழில்") + kObjectLine + "கேட்டது: ஆம்\n");
    EXPECT_EQ(first.err, "");
    EXPECT_EQ(first.exitCode, 0) << "the program's status is not passed on";
    EXPECT_EQ(compilerCalls(), (std::vector<std::string>{objectCall(), programCall()}));
    EXPECT_NE(readFileText(cache / "generated.cpp").find("41LL"), std::string::npos);
    EXPECT_TRUE(fs::exists(cache / "பொழில்_செயலி"));
    EXPECT_FALSE(fs::exists(cache / "pozhil_temp_app"));

    // The object stays, also when its source is younger.
    fs::last_write_time(object, fs::file_time_type::min());
    const ProcessResult second = compile({"a.பொழில்"}, {"", {}, "இல்லை\n", 60});
    EXPECT_EQ(second.out, kBanner + titleOf("a.பொழில்") + "கேட்டது: இல்லை\n");
    EXPECT_EQ(compilerCalls(),
              (std::vector<std::string>{objectCall(), programCall(), programCall()}));
}

TEST_F(NativeBuild, FailedBuildLeavesTheLastExecutable) {
    fakeCompiler("echo ஓடக்கூடாது", 1);
    fs::create_directories(cache);
    writeFileText(cache / "பொழில்_செயலி", "கடைசியாக நன்றாக இருந்தது");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்") + kObjectLine);
    EXPECT_EQ(run.err, kBuildFailure);
    EXPECT_EQ(readFileText(cache / "பொழில்_செயலி"), "கடைசியாக நன்றாக இருந்தது");
    EXPECT_EQ(compilerCalls(), (std::vector<std::string>{objectCall(), programCall()}))
        << "the object's status is not looked at";
    EXPECT_EQ(std::distance(fs::directory_iterator(cache), fs::directory_iterator()), 3)
        << "the text, the executable and the lock";
    EXPECT_FALSE(fs::exists(object));
}

TEST_F(NativeBuild, SwapThatFailsIsPassedOver) {
    fakeCompiler("echo ஓடக்கூடாது");
    writeFileText(object, "");
    fs::create_directories(cache / "பொழில்_செயலி" / "full");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்"));
    EXPECT_NE(run.err, "") << "the shell can't run a directory";
    EXPECT_EQ(run.err.find(kBuildFailure), std::string::npos) << "the build itself was good";
    EXPECT_TRUE(fs::exists(cache / "pozhil_temp_app"));
}

TEST_F(NativeBuild, TitleTakesTwentyMillisecondsAByte) {
    fakeCompiler("true");
    writeFileText(object, "");
    const auto start = std::chrono::steady_clock::now();
    const ProcessResult run = compile({"./a.பொழில்"}, {"", withoutQuickTitle(), "", 60});
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(run.out, kBanner + titleOf("./a.பொழில்"));
    const std::string colours = "\033[1;36m\033[0m\n";
    const auto bytes = static_cast<double>(titleOf("./a.பொழில்").size() - colours.size());
    EXPECT_GE(seconds.count(), bytes * 0.020);
}

TEST_F(NativeBuild, GeneratedFileThatCannotBeMade) {
    fakeCompiler("true");
    fs::create_directories(cache / "generated.cpp");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "Error: " + cache.u8string() + "/generated.cpp என்ற கோப்பை உருவாக்க முடியவில்லை!\n");
    EXPECT_TRUE(compilerCalls().empty());
}

TEST_F(NativeBuild, RealCompilerWithTheWarmedHeader) {
    fs::create_directories(home / "scripts");
    fs::copy_file(POZHIL_ROOT "/scripts/warm_header.sh", home / "scripts" / "warm_header.sh");
    const std::string warm = (home / "scripts" / "warm_header.sh").u8string();
    const fs::path header = home / "உள்ளடக்கம்" / "nanovg" / "iostream.gch";
    ASSERT_EQ(runCommand({"bash", warm}).exitCode, 0);
    ASSERT_TRUE(fs::exists(header));

    // A g++ that also lists the headers it reads, a warmed one behind an exclamation mark.
    const ProcessResult real = runCommand({"sh", "-c", "command -v g++"});
    fs::create_directories(root / "bin");
    writeFileText(root / "bin" / "g++",
                  "#!/bin/sh\nexec " + real.out.substr(0, real.out.size() - 1) + " -H \"$@\"\n");
    makeExecutable(root / "bin" / "g++");
    write("a.பொழில்", "அச்சிடு(\"விடை \", 42)\n");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்") + kObjectLine + "விடை 42\n");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(run.err.find("! " + header.u8string() + "\n"), std::string::npos) << run.err;

    // Made anew beside the object, which holds no instances, it declares none.
    const auto made = fs::last_write_time(header);
    ASSERT_EQ(runCommand({"bash", warm}).exitCode, 0);
    ASSERT_NE(fs::last_write_time(header), made);
    const ProcessResult again = compile({"a.பொழில்"});
    EXPECT_EQ(again.out, kBanner + titleOf("a.பொழில்") + "விடை 42\n");
    EXPECT_NE(again.err.find("! " + header.u8string() + "\n"), std::string::npos) << again.err;
}

class WarmedHeader : public Workplace {
protected:
    WarmedHeader() {
        fs::remove(home / "src");
        fs::create_directories(home / "src" / "emitted");
        fs::create_directories(home / "scripts");
        fs::copy_file(POZHIL_ROOT "/scripts/warm_header.sh", home / "scripts" / "warm_header.sh");
        writeFileText(list, "#include <cstdio>\n");
        // Says another version than the real one when asked for it.
        const ProcessResult real = runCommand({"sh", "-c", "command -v g++"});
        fs::create_directories(root / "bin");
        writeFileText(root / "bin" / "g++",
                      "#!/bin/sh\n"
                      "echo \"$@\" >>\"$(dirname \"$0\")/calls\"\n"
                      "[ \"$1\" != --version ] || exec cat \"$(dirname \"$0\")/version\"\n"
                      "exec " +
                          real.out.substr(0, real.out.size() - 1) + " \"$@\"\n");
        makeExecutable(root / "bin" / "g++");
        writeFileText(root / "bin" / "version", "g++ 1\n");
    }

    /// Runs the script; true if it made the header.
    bool warm() const {
        fs::remove(root / "bin" / "calls");
        ProcessOptions options;
        options.environment = environment();
        lastRun = runCommand({"bash", (home / "scripts" / "warm_header.sh").u8string()}, options);
        return readFileText(root / "bin" / "calls").find("c++-header") != std::string::npos;
    }

    std::vector<std::string> filesMade() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(header.parent_path())) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    fs::path list = home / "src" / "emitted" / "includes.cpp";
    fs::path header = home / "உள்ளடக்கம்" / "nanovg" / "iostream.gch";
    mutable ProcessResult lastRun;
};

TEST_F(WarmedHeader, MadeAgainOnlyWhenSomethingChanged) {
    EXPECT_TRUE(warm());
    EXPECT_EQ(filesMade(),
              (std::vector<std::string>{"iostream", "iostream.gch", "iostream.gch.stamp"}));
    EXPECT_FALSE(warm());
    writeFileText(list, "#include <cstdio>\n#include <cstdlib>\n");
    EXPECT_TRUE(warm());
    EXPECT_FALSE(warm());
    writeFileText(root / "bin" / "version", "g++ 2\n");
    EXPECT_TRUE(warm());
    EXPECT_FALSE(warm());
    fs::remove(header);
    EXPECT_TRUE(warm());
    EXPECT_FALSE(warm());
    fs::remove(header.parent_path() / "iostream");
    EXPECT_TRUE(warm());
    EXPECT_EQ(lastRun.exitCode, 0);
}

TEST_F(WarmedHeader, FailureLeavesNothingHalfMade) {
    EXPECT_TRUE(warm());
    writeFileText(list, "#include <இல்லை>\n");
    EXPECT_TRUE(warm());
    EXPECT_NE(lastRun.exitCode, 0);
    EXPECT_EQ(filesMade(), std::vector<std::string>{});
}

class PreparedObjects : public PreparedWorkplace {
protected:
    PreparedObjects() { write("a.பொழில்", "அச்சிடு(\"விடை \", 42, 2.5, மெய்)\n"); }

    /// Builds a file of somebody's own and runs it; gives what it prints, or what g++ says.
    std::string resultOf(const std::string& text, const std::vector<std::string>& options) const {
        write("own.cpp", text);
        std::vector<std::string> command = {"g++", (work / "own.cpp").u8string(), "-std=c++17",
                                            "-o", (work / "own").u8string()};
        command.insert(command.end(), options.begin(), options.end());
        const ProcessResult built = runCommand(command);
        if (built.exitCode != 0) return built.err;
        return runCommand({(work / "own").u8string()}).out;
    }

    void expectThatProgramsRun() const {
        const ProcessResult program = compile({"a.பொழில்"});
        EXPECT_EQ(program.out, kBanner + titleOf("a.பொழில்") + "விடை 422.500000மெய்\n");
        EXPECT_EQ(program.err, "");
    }
};

// One who stops listening to nm makes it fail, and would take the object for one without instances.
TEST_F(PreparedObjects, AreKnownWhereNmHasMoreToSay) {
    ASSERT_NO_FATAL_FAILURE(prepare());
    script("nm", "/usr/bin/nm \"$@\" && seq 100000");
    const auto made = fs::last_write_time(header);
    EXPECT_EQ(runScript("warm_header.sh"), 0);
    EXPECT_EQ(fs::last_write_time(header), made);
    EXPECT_TRUE(fs::exists(included / "nanovg" / "held_instances.h"));
}

// The header declares instances extern that the object holds: the two must fit in every state.
TEST_F(PreparedObjects, LinkInEveryState) {
    ASSERT_NO_FATAL_FAILURE(prepare());
    EXPECT_LT(fs::file_size(object), 700'000U) << "each installation waits for what it holds";
    expectThatProgramsRun();

    // Who includes <iostream> once more gets it, and who wants the catalogue alone needs no object.
    const std::string folder = "-I" + (home / "உள்ளடக்கம்").u8string();
    const std::string hello = "int main() { std::cout << \"வணக்கம்\"; }\n";
    EXPECT_EQ(resultOf("#include <iostream>\n#include <vector>\n#include <iostream>\n" + hello,
                       {object.u8string(), folder, folder + "/nanovg"}),
              "வணக்கம்");
    EXPECT_EQ(resultOf("#include <iostream>\n#include \"error_codes.h\"\n" + hello, {folder}),
              "வணக்கம்");

    fs::remove(object);  // the compiler makes it anew
    EXPECT_NE(compile({"a.பொழில்"}).out.find("விடை 42"), std::string::npos);
    expectThatProgramsRun();

    fs::remove(header);
    expectThatProgramsRun();
}

}  // namespace
