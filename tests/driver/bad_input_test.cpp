// Files that are no program: refused or taken, never a crash or an endless run.
#include <unistd.h>

#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

class BadInput : public Workplace {
protected:
    BadInput() {
        fakeCompiler("echo ஓடியது");
        writeFileText(object, "");
    }

    ProcessResult compileText(const std::string& text) const {
        write("a.பொழில்", text);
        return compile({"a.பொழில்"});
    }

    std::string generated() const { return readFileText(cache / "generated.cpp"); }

    const std::string ran = kBanner + titleOf("a.பொழில்") + "ஓடியது\n";
};

/// Passes if a report with `code` ended the run, and nothing else did.
testing::AssertionResult reported(const ProcessResult& run, const std::string& code) {
    if (run.exitCode == 1 && run.err.empty() && run.out.find(code) != std::string::npos) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "status " << run.exitCode << ", signal " << run.signal
                                       << ", timed out " << run.timedOut << "\n"
                                       << run.out.substr(0, 2000) << run.err.substr(0, 2000);
}

TEST_F(BadInput, EmptyFileIsAProgramThatDoesNothing) {
    const ProcessResult run = compileText("");
    EXPECT_EQ(run.out, ran);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(generated().find("int main() {\nreturn 0;\n}\n"), std::string::npos);
}

TEST_F(BadInput, NulByteEndsTheText) {
    const ProcessResult run = compileText(std::string("அச்சிடு(11)\n\0அச்சிடு(22)\n", 47));
    EXPECT_EQ(run.out, ran);
    EXPECT_NE(generated().find("11LL"), std::string::npos);
    EXPECT_EQ(generated().find("22LL"), std::string::npos);
}

TEST_F(BadInput, ByteOrderMarkAlone) { EXPECT_TRUE(reported(compileText("\xEF\xBB\xBF"), "")); }

TEST_F(BadInput, InvalidUtf8) {
    for (const std::string bytes :
         {"\xFF\xFE", "\x80", "\xC0\xAF", "\xE0\xAE", "\xF8\x88\x80\x80\x80", "\xED\xA0\x80"}) {
        EXPECT_TRUE(reported(compileText(bytes), "பொழில்-")) << testing::PrintToString(bytes);
        EXPECT_TRUE(reported(compileText("அச்சிடு(\"" + bytes), "பொழில்-102"))
            << testing::PrintToString(bytes);
    }
}

TEST_F(BadInput, TenMegabytesOfOneString) {
    const std::string text(10'000'000, 'x');
    const ProcessResult run = compileText("அச்சிடு(\"" + text + "\")");
    EXPECT_EQ(run.out, ran);
    EXPECT_NE(generated().find(text), std::string::npos);
}

TEST_F(BadInput, TenMegabytesOfOneLine) {
    std::string words;
    while (words.size() < 10'000'000) words += "அச்சிடு ";
    EXPECT_TRUE(reported(compileText(words), "பொழில்-"));
    EXPECT_TRUE(reported(compileText(std::string(10'000'000, '(')), "பொழில்-"));
    EXPECT_TRUE(reported(compileText(std::string(10'000'000, '7') + ".."), "பொழில்-"));
}

TEST_F(BadInput, TenMegabytesOfOneWord) {
    std::string word;
    while (word.size() < 10'000'000) word += "அ";
    EXPECT_TRUE(reported(compileText(word), "பொழில்-"));
}

TEST_F(BadInput, DirectoryInPlaceOfAFile) {
    fs::create_directory(work / "a.பொழில்");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "பிழை: 'a.பொழில்' என்ற கோப்பை திறக்க முடியவில்லை!\n");
}

TEST_F(BadInput, UnreadableFile) {
    write("a.பொழில்", "அச்சிடு(1)\n");
    fs::permissions(work / "a.பொழில்", fs::perms::none);
    std::vector<std::string> command = {compiler.u8string(), "a.பொழில்"};
    if (geteuid() == 0) {
        // root reads everything, so another user runs it.
        const std::vector<std::string> asNobody = {"setpriv", "--reuid=65534", "--regid=65534",
                                                   "--clear-groups"};
        command.insert(command.begin(), asNobody.begin(), asNobody.end());
    }
    const ProcessResult run = runCommand(command, {work.u8string(), environment(), "", 60});
    if (run.exitCode == 127) GTEST_SKIP() << "no setpriv to drop root's rights with";
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "பிழை: 'a.பொழில்' என்ற கோப்பை திறக்க முடியவில்லை!\n");
}

}  // namespace
