// The web build with an em++ that does as it is told: files, command, page and counter.
#include "web/odd_names.h"
#include "web/web_build_test.h"

namespace fs = std::filesystem;

namespace {

const std::string kFailure =
    "\n\033[1;31m🚨 (பொழில்-404): நிரலைத் தொகுப்பதில் (Compilation) சிக்கல்!\033[0m\n"
    "\033[1;33m💡 குறிப்பு: உமது பொழிலின் கட்டமைப்பை (Syntax) ஒருமுறை சரிபார்க்கவும்.\033[0m\n";

const int kFirstNumber = g_appVersion.load();

TEST_F(WebBuildTest, WritesTheTextAndCallsTheCompiler) {
    write("படம்.png", "x");
    tree = program(application(nullptr, widget("படம்", properties(entry("பாதை", text("படம்.png"))))));
    EXPECT_TRUE(run("int main() {}\n"));
    EXPECT_EQ(read("cache/வலை_வெளியீடு.cpp"), "int main() {}\n");
    EXPECT_EQ(read("calls"),
              "[" + here + "/cache/வலை_வெளியீடு.cpp][" + here + "/app/திரட்டு/error_handler_web.o][" +
                  here + "/app/திரட்டு/nanovg_web.o][-I" + here + "/app/உள்ளடக்கம்][-I" + here +
                  "/app/உள்ளடக்கம்/nanovg][-std=c++17][-finput-charset=UTF-8][--bind]"
                  "[-s][USE_GLFW=3][-s][FULL_ES2=1][-s][WASM=1][-s][ALLOW_MEMORY_GROWTH=1]"
                  "[-s][EXPORTED_RUNTIME_METHODS=['ccall','cwrap']][--preload-file][படம்.png][-o][" +
                  here + "/வெளியீடு/index.js]\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "");
}

TEST_F(WebBuildTest, CommandIsWrappedWithItsQuotesEscaped) {
    EXPECT_EQ(webCommand("C.cpp", "I", "O", " --preload-file a", "W/index.js"),
              "bash -c \"em++ \\\"C.cpp\\\" \\\"O/error_handler_web.o\\\" \\\"O/nanovg_web.o\\\" "
              "-I\\\"I\\\" -I\\\"I/nanovg\\\" -std=c++17 -finput-charset=UTF-8 --bind "
              "-s USE_GLFW=3 -s FULL_ES2=1 -s WASM=1 -s ALLOW_MEMORY_GROWTH=1 "
              "-s EXPORTED_RUNTIME_METHODS=\\\"['ccall','cwrap']\\\"  --preload-file a "
              "-o \\\"W/index.js\\\"\" > /dev/null 2>&1");
}

TEST_F(WebBuildTest, BlanksLeaveTheCommandAsItIs) {
    EXPECT_EQ(webCommand("ஒரு C.cpp", "I !", "O's", "", "W~/index.js"),
              "bash -c \"em++ \\\"ஒரு C.cpp\\\" \\\"O's/error_handler_web.o\\\" "
              "\\\"O's/nanovg_web.o\\\" -I\\\"I !\\\" -I\\\"I !/nanovg\\\" "
              "-std=c++17 -finput-charset=UTF-8 --bind "
              "-s USE_GLFW=3 -s FULL_ES2=1 -s WASM=1 -s ALLOW_MEMORY_GROWTH=1 "
              "-s EXPORTED_RUNTIME_METHODS=\\\"['ccall','cwrap']\\\"  "
              "-o \\\"W~/index.js\\\"\" > /dev/null 2>&1");
}

TEST_F(WebBuildTest, WhatTheShellsWouldReadIsEscapedForBoth) {
    const std::string command =
        webCommand("$a", "`b`", "\"c\"", " --preload-file \"d\\$\"", "e\\f");
    EXPECT_EQ(
        command.substr(0, command.find(" -I")),
        R"(bash -c "em++ \"\\\$a\" \"\\\"c\\\"/error_handler_web.o\" \"\\\"c\\\"/nanovg_web.o\")");
    EXPECT_NE(command.find(R"( -I\"\\\`b\\\`\" )"), std::string::npos) << command;
    EXPECT_NE(command.find(R"( --preload-file \"d\\\$\" -o \"e\\\\f\"")"), std::string::npos)
        << command;
}

TEST_F(WebBuildTest, DirectoriesAndFilesMayBeCalledAnything) {
    for (const std::string& name : kOddNames) {
        SCOPED_TRACE(name);
        const fs::path place = directory / "places" / fs::u8path(name);
        fs::create_directories(place / "cache");
        fs::create_directories(place / "work" / "வெளியீடு");
        fs::copy(directory / "app", place / "app", fs::copy_options::recursive);
        fs::current_path(place / "work");
        std::ofstream(place / "work" / fs::u8path(name + ".png")) << "x";
        tree = program(
            application(nullptr, widget("படம்", properties(entry("பாதை", text(name + ".png"))))));
        fs::remove(directory / "calls");

        const WebBuild odd{(place / "app").u8string(), (place / "cache").u8string()};
        EXPECT_TRUE(buildWebApplication(tree, "// நிரல்\n", odd));
        const std::string at = place.u8string();
        const std::string calls = read("calls");
        EXPECT_EQ(calls.substr(0, calls.find("[-std=")),
                  "[" + at + "/cache/வலை_வெளியீடு.cpp][" + at + "/app/திரட்டு/error_handler_web.o][" +
                      at + "/app/திரட்டு/nanovg_web.o][-I" + at + "/app/உள்ளடக்கம்][-I" + at +
                      "/app/உள்ளடக்கம்/nanovg]");
        EXPECT_EQ(calls.substr(std::min(calls.size(), calls.find("[--preload-file]"))),
                  "[--preload-file][" + name + ".png][-o][" + at + "/work/வெளியீடு/index.js]\n");
        for (const auto& entry : fs::recursive_directory_iterator(directory)) {
            EXPECT_NE(entry.path().filename(), kTraceOfARun);
        }
        fs::current_path(directory);
    }
}

TEST_F(WebBuildTest, CompilerIsSilentWhateverItSays) {
    compilerSays("echo சத்தம்; echo சத்தம் >&2; exit 1");
    EXPECT_FALSE(run());
    EXPECT_EQ(out, kFailure);
    EXPECT_EQ(err, "");
}

TEST_F(WebBuildTest, SuccessRaisesTheCounterAndThePageCarriesIt) {
    const int before = g_appVersion.load();
    EXPECT_TRUE(run());
    EXPECT_EQ(g_appVersion.load(), before + 1);
    EXPECT_NE(loadPage().find("let currentVersion = " + std::to_string(before + 1) + ";"),
              std::string::npos);
    EXPECT_EQ(loadPage().find("த<body><script async"), 0U);
}

TEST_F(WebBuildTest, CounterStartsAtOneAndFailuresLeaveIt) {
    EXPECT_EQ(kFirstNumber, 1);
    compilerSays("exit 1");
    EXPECT_FALSE(run());
    const std::string page = loadPage();
    EXPECT_NE(page.find("let currentVersion = 2;"), std::string::npos)
        << "stored before the compiler runs";
    EXPECT_FALSE(run());
    EXPECT_EQ(loadPage(), page);
    EXPECT_EQ(g_appVersion.load(), 1);
    compilerSays("exit 0");
    EXPECT_TRUE(run());
    EXPECT_EQ(loadPage(), page);
    EXPECT_EQ(g_appVersion.load(), 2);
}

TEST_F(WebBuildTest, OldOutputIsGoneBeforeTheCompilerRuns) {
    for (const char* name : {"html", "js", "wasm", "data"}) {
        write(std::string("வெளியீடு/index.") + name, "old");
    }
    write("வெளியீடு/other.txt", "kept");
    compilerSays("ls வெளியீடு >'" + here + "/seen'; echo new >வெளியீடு/index.js; exit 1");
    EXPECT_FALSE(run());
    EXPECT_EQ(read("seen"), "other.txt\n");
    EXPECT_EQ(read("வெளியீடு/index.js"), "new\n");
    EXPECT_FALSE(fs::exists(fs::u8path("வெளியீடு/index.html")));
}

TEST_F(WebBuildTest, OutputThatCannotBeRemovedThrows) {
    write("வெளியீடு/index.js/file", "a directory that isn't empty");
    EXPECT_THROW(buildWebApplication(tree, "", build), fs::filesystem_error);
    EXPECT_EQ(read("calls"), "");
}

TEST_F(WebBuildTest, MissingTemplate) {
    fs::remove("app/உள்ளடக்கம்/template.html");
    write("வெளியீடு/index.js", "old");
    EXPECT_FALSE(run("int x;\n"));
    EXPECT_EQ(err, "பிழை: template.html கோப்பு கிடைக்கவில்லை! '" + here +
                       "/app/உள்ளடக்கம்/template.html' உள்ளதா எனச் சரிபார்க்கவும்.\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(read("cache/வலை_வெளியீடு.cpp"), "int x;\n") << "written first";
    EXPECT_EQ(read("வெளியீடு/index.js"), "old");
    EXPECT_EQ(read("calls"), "");
    EXPECT_EQ(loadPage(), "");
    EXPECT_EQ(g_appVersion.load(), 1);
}

TEST_F(WebBuildTest, MissingVideoIsWarnedOfAndTheBuildGoesOn) {
    tree = program(application(head(properties(entry("பின்னணிகாணொளி", text("v.mp4"))))));
    EXPECT_TRUE(run());
    EXPECT_EQ(err,
              "\n⚠️ எச்சரிக்கை: v.mp4 என்ற கோப்பு "
              "காணப்படவில்லை! "
              "\n");
}

TEST_F(WebBuildTest, ProgramWithoutAnApplicationHasTheDefaultPage) {
    tree = program();
    EXPECT_TRUE(run());
    EXPECT_EQ(loadPage().find("பொழில் தளம்<body>"), 0U);
}

}  // namespace
