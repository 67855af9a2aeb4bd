// What the warmed header and the diagnostics object take off a program: the work of g++ on the text
// that all programs share, and the time of the program itself. All is measured in processor time,
// side by side, best of several, with room for a machine that has other things to do.
#include <sys/resource.h>

#include <algorithm>

#include "driver/prepared_workplace.h"

namespace fs = std::filesystem;

namespace {

/// Values of every kind, a failure that is caught, an object, and loops that take a moment.
const char* const kProgram =
    "கட்டமைப்பு கணக்கு:\n"
    "    இருப்பு = 0\n"
    "    செயல் செலுத்து(தான், தொகை):\n"
    "        தான்.இருப்பு = தான்.இருப்பு கூட்டு தொகை\n"
    "        திரும்பு தான்.இருப்பு\n"
    "ஏடு = கணக்கு()\n"
    "சுழியம் = 0\n"
    "கடைகள் = {\"அகல்\": 1, \"ஆடு\": [1, 2.5, \"இலை\", மெய்]}\n"
    "முயற்சி:\n"
    "    அச்சிடு(1 வகு சுழியம்)\n"
    "பிடி (தவறு):\n"
    "    அச்சிடு(தவறு)\n"
    "மொத்தம்இதுவரை = 0\n"
    "ஒவ்வொன்றாக முறை இல் வரம்பு(100000):\n"
    "    மொத்தம்இதுவரை = மொத்தம்இதுவரை கூட்டு ஏடு.செலுத்து(முறை மீதி 10)\n"
    "அச்சிடு(கடைகள், \" \", ஏடு.இருப்பு, \" \", மொத்தம்இதுவரை, \" \", எண்(\"42\"))\n"
    "அச்சிடு(பிளவு(\"அ-ஆ-இ\", \"-\"), பதில்(\"அஅ\", \"அ\", \"ஆ\"), என்னவகை(ஏடு))\n";

double processorSeconds(const rusage& used) {
    return static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
           static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec) * 1e-6;
}

class WarmProgram : public PreparedWorkplace {
protected:
    WarmProgram() {
        // The same folder of headers, but for the warmed one.
        fs::create_directories(cold);
        for (const char* own : {"error_codes.h", "error_handler.h"}) {
            fs::copy_file(included / own, cold / own);
        }
    }

    /// The text of a program, as the compiler leaves it behind.
    std::string textOf(const char* source) const {
        write("a.பொழில்", source);
        EXPECT_EQ(compile({"a.பொழில்"}).exitCode, 0);
        const fs::path text = root / (std::to_string(texts++) + ".cpp");
        fs::copy_file(cache / "generated.cpp", text);
        return text.u8string();
    }

    std::vector<std::string> compiling(const std::string& text, const fs::path& headers) const {
        return {"g++",
                "-c",
                text,
                "-o",
                outputOf(text, headers) + ".o",
                "-std=c++17",
                "-I" + headers.u8string(),
                "-I" + (headers / "nanovg").u8string()};
    }

    std::string outputOf(const std::string& text, const fs::path& headers) const {
        return text + (headers == cold ? ".cold" : ".warm");
    }

    void build(const std::string& text, const fs::path& headers) const {
        const std::string output = outputOf(text, headers);
        const ProcessResult compiled = runCommand(compiling(text, headers));
        ASSERT_EQ(compiled.exitCode, 0) << compiled.err;
        const ProcessResult linked = runCommand(
            {"g++", output + ".o", object.u8string(), "-o", output, "-static", "-lm", "-lpthread"});
        ASSERT_EQ(linked.exitCode, 0) << linked.err;
    }

    static std::string upToTheSaying(const std::string& program) {
        const ProcessResult run = runCommand({program});
        EXPECT_EQ(run.exitCode, 1);
        return run.out.substr(0, run.out.find("✨"));
    }

    /// Whether the first command takes less than that share of the second's processor time: the
    /// best of so many that it does, of five at most.
    static testing::AssertionResult takesLess(double limit, const std::vector<std::string>& command,
                                              const std::vector<std::string>& measure) {
        double least[] = {1e9, 1e9};
        for (int round = 0; round < 5 && (round < 2 || least[0] >= limit * least[1]); round++) {
            for (int i : {0, 1}) {
                rusage before{};
                rusage after{};
                getrusage(RUSAGE_CHILDREN, &before);
                EXPECT_EQ(runCommand(i == 0 ? command : measure).exitCode, 0);
                getrusage(RUSAGE_CHILDREN, &after);
                least[i] = std::min(least[i], processorSeconds(after) - processorSeconds(before));
            }
        }
        if (least[0] < limit * least[1]) return testing::AssertionSuccess();
        return testing::AssertionFailure() << least[0] << " s against " << least[1] << " s";
    }

    const fs::path cold = root / "cold";
    mutable int texts = 0;
};

TEST_F(WarmProgram, DoesTheSameInLessTime) {
    ASSERT_NO_FATAL_FAILURE(prepare());

    const std::string program = textOf(kProgram);
    ASSERT_NO_FATAL_FAILURE(build(program, included));
    ASSERT_NO_FATAL_FAILURE(build(program, cold));
    const std::string warmProgram = outputOf(program, included);
    const std::string coldProgram = outputOf(program, cold);
    const ProcessResult warmRun = runCommand({warmProgram});
    EXPECT_EQ(warmRun.exitCode, 0);
    EXPECT_NE(warmRun.out.find("450000 "), std::string::npos) << warmRun.out;
    EXPECT_EQ(warmRun.out, runCommand({coldProgram}).out);
    EXPECT_TRUE(takesLess(0.35, {warmProgram}, {coldProgram})) << "of the program without it";

    // What the object holds isn't made once more.
    const ProcessResult names = runCommand({"nm", "--defined-only", "-C", warmProgram + ".o"});
    EXPECT_NE(names.out.find(" T main\n"), std::string::npos) << names.err;
    // And the library's small functions stand where they are called, not apart as without -Og.
    for (const char* name :
         {"fn_add_any(", "fn_get_property(", "global_vars", "::__new_allocator()"}) {
        EXPECT_EQ(names.out.find(name), std::string::npos) << name;
    }

    // A failure of the runtime ends a program in the same way, with the place in its source.
    const std::string failing = textOf("கடைகள் = [1, 2]\nஅச்சிடு(கடைகள்[5])\n");
    ASSERT_NO_FATAL_FAILURE(build(failing, included));
    ASSERT_NO_FATAL_FAILURE(build(failing, cold));
    const std::string report = upToTheSaying(outputOf(failing, included));
    EXPECT_NE(report.find("பொழில்-311"), std::string::npos) << report;
    EXPECT_EQ(report, upToTheSaying(outputOf(failing, cold)));

    const std::string hello = textOf("அச்சிடு(\"வணக்கம்\")\n");
    const std::string bare = (root / "bare.cpp").u8string();
    writeFileText(bare, readFileText(home / "src" / "emitted" / "includes.cpp") +
                            "int main() { std::cout << \"வணக்கம்\" << std::endl; }\n");
    EXPECT_TRUE(takesLess(0.45, compiling(hello, included), compiling(bare, cold)))
        << "of a program of the same headers alone";
}

}  // namespace
