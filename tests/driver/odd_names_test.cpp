// Directories in whose names a shell would read more than a name: the console road works there too.
#include "web/odd_names.h"

#include "driver/paths.h"
#include "driver/processes.h"
#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

class OddNames : public Workplace {
protected:
    /// What a shell makes of `word` behind a command, each argument in square brackets.
    std::string argumentsIn(const std::string& word) const {
        const std::string out = (root / "out").u8string();
        EXPECT_EQ(run_command("cd '" + work.u8string() + "' && printf '[%s]' " + word + " >'" +
                              out + "'"),
                  0);
        return readFileText(root / "out");
    }

    void expectNothingRan() const {
        for (const auto& entry : fs::recursive_directory_iterator(root)) {
            EXPECT_NE(entry.path().filename(), kTraceOfARun);
        }
    }
};

TEST_F(OddNames, AreOneWordInQuotes) {
    for (const std::string& name : kOddNames)
        EXPECT_EQ(argumentsIn(inQuotes(name)), "[" + name + "]");
    expectNothingRan();
}

TEST_F(OddNames, PlainOnesStandBetweenQuotesAsTheyAre) {
    EXPECT_EQ(inQuotes("/ஒரு இடம்/a'b!;*~#.cpp"), "\"/ஒரு இடம்/a'b!;*~#.cpp\"");
    EXPECT_EQ(inQuotes(""), "\"\"");
}

TEST_F(OddNames, OfAllDirectoriesOfANativeBuild) {
    const std::string odd =
        "a $HOME \"b\" 'c' `touch ran` $(touch ran) \\ ; touch ran; & | <d> (e) * ? "
        "[f] {g,h} ~ # !\n\\";
    fs::create_directories(root / odd / "tmp");
    for (fs::path* place : {&home, &work}) {
        const fs::path moved = root / odd / place->filename();
        fs::rename(*place, moved);
        *place = moved;
    }
    compiler = home / "பொழில்";
    object = home / "திரட்டு" / "error_handler_native_linux.o";
    cache = root / odd / "tmp" / "Pozhil_Cache";
    write("a.பொழில்", "அச்சிடு(41)\n");
    fakeCompiler("echo ஓடுகிறது");

    ProcessOptions options;
    options.environment = {"TMPDIR=" + (root / odd / "tmp").u8string()};
    const ProcessResult run = compile({"a.பொழில்"}, options);
    EXPECT_NE(run.out.find("\nஓடுகிறது\n"), std::string::npos) << run.out;
    EXPECT_EQ(run.err, "");
    const std::string include = "[-I" + home.u8string() + "/உள்ளடக்கம்";
    EXPECT_EQ(readFileText(root / "bin" / "calls"),
              "[-c][" + home.u8string() + "/src/error_handler.cpp][-o][" + object.u8string() +
                  "][-std=c++17]" + include + "]\n[" + cache.u8string() + "/generated.cpp][" +
                  object.u8string() + "][-o][" + cache.u8string() +
                  "/pozhil_temp_app][-std=c++17]" + include + "]" + include +
                  "/nanovg][-static][-static-libstdc++][-static-libgcc][-lm][-lpthread]\n");
    expectNothingRan();
}

}  // namespace
