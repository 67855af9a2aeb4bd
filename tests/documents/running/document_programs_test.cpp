// The programs of the guide as users run them: each prints what the guide shows, stops with the
// report or the words that it shows, or is refused so. The programs of a chapter are built as one.
// POZHIL_REWRITE=1 writes outputs without typed text, reports, and what g++ says.
#include "../document_programs.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "../../companion/programs_in_one.h"
#include "../transcript.h"
#include "support/case_files.h"
#include "support/generated_text.h"
#include "support/side_by_side.h"

namespace fs = std::filesystem;

namespace {

bool isRewriting() { return std::getenv("POZHIL_REWRITE") != nullptr; }

void writeText(const std::string& path, const std::string& text) {
    std::ofstream(fs::u8path(path)) << text;
}

/// The report names the program by the name under which all of a chapter are built.
std::string withOwnName(std::string text, const DocumentProgram& program) {
    const std::string common = kProgramName;
    for (std::size_t at = 0; (at = text.find(common, at)) != std::string::npos;) {
        const std::string own = program.name + ".பொழில்";
        text.replace(at, common.size(), own);
        at += own.size();
    }
    return text;
}

/// A copy of a chapter's folder, with the module library where its programs look for it.
std::string stagedChapter(const std::string& chapter) {
    const std::string folder = POZHIL_BUILD_DIR "/documents/" + chapter + "/";
    fs::remove_all(fs::u8path(folder));
    fs::create_directories(fs::u8path(folder));
    const auto options = fs::copy_options::recursive;
    fs::copy(fs::u8path(kDocumentPrograms + chapter), fs::u8path(folder), options);
    fs::create_directory_symlink(fs::u8path(POZHIL_ROOT "/தொகுப்புகள்"),
                                 fs::u8path(folder + "தொகுப்புகள்"));
    return folder;
}

/// The generated text, or the report of a refusal with status 1. The front end ends the process
/// when it refuses, so it has one of its own.
ProcessResult translate(const DocumentProgram& program, const std::string& folder) {
    return runForked([&] {
        fs::current_path(fs::u8path(folder));
        const std::string text = generate(readText(program.source), kProgramName);
        std::fwrite(text.data(), 1, text.size(), stdout);
        return 0;
    });
}

void expectText(const DocumentProgram& program, const std::string& extension,
                const std::string& actual) {
    expectGolden({program.name, program.source, program.besides(extension)}, actual);
}

void expectRefusal(const DocumentProgram& program, const ProcessResult& refused) {
    EXPECT_EQ(refused.exitCode, 1) << program.source;
    EXPECT_FALSE(program.has(".out")) << program.source << " is refused, so it prints nothing";
    // A program that the check alone explains needs no report.
    if (program.has(".check") && !program.has(".report")) return;
    EXPECT_TRUE(isRewriting() || program.has(".report")) << refused.out;
    expectText(program, ".report", withOwnName(plainReport(refused.out), program));
}

/// What comes of each run may differ: then a pattern is held, and the shown run fits it too.
void expectOutput(const DocumentProgram& program, const std::string& printed) {
    if (program.has(".like")) {
        const std::string pattern = readText(program.besides(".like"));
        if (isRewriting()) writeText(program.besides(".out"), printed);
        EXPECT_TRUE(isLike(printed, pattern)) << program.source << "\n"
                                              << sideBySide(pattern, printed);
        EXPECT_TRUE(isLike(readText(program.besides(".out")), pattern)) << program.source;
        return;
    }
    const std::string shown = program.has(".out") ? readText(program.besides(".out")) : "";
    const Transcript transcript = readTranscript(shown);
    if (transcript.typed.empty()) return expectText(program, ".out", printed);
    EXPECT_TRUE(printed == transcript.printed) << program.source << "\n"
                                               << sideBySide(transcript.printed, printed);
}

void expectRun(const DocumentProgram& program, const ProcessResult& ran) {
    EXPECT_FALSE(ran.timedOut) << program.source;
    const RunText text = splitAtReport(withOwnName(ran.out, program));
    if (ran.signal != 0) {
        EXPECT_TRUE(isRewriting() || program.has(".err")) << program.source << "\n" << ran.err;
        expectText(program, ".err", ran.err);
    } else {
        EXPECT_EQ(ran.exitCode, text.report.empty() ? 0 : 1) << program.source << "\n" << ran.err;
        EXPECT_FALSE(program.has(".err")) << program.source << " isn't broken off";
    }
    if (!text.report.empty()) {
        EXPECT_TRUE(isRewriting() || program.has(".report")) << text.report;
        expectText(program, ".report", text.report);
    } else {
        EXPECT_FALSE(program.has(".report")) << program.source << " runs to its end";
    }
    if (!text.printed.empty() || program.has(".out")) expectOutput(program, text.printed);
}

std::string typedInto(const DocumentProgram& program) {
    return program.has(".out") ? readTranscript(readText(program.besides(".out"))).typed : "";
}

/// g++'s own words, each line of which is found in what the build shows.
void expectWords(const DocumentProgram& program, const std::string& text,
                 const std::string& folder) {
    const std::string generated = folder + program.name + ".cpp";
    writeText(generated, text);
    const ProcessResult read = runNativeCompiler({"-fsyntax-only", generated});
    EXPECT_NE(read.exitCode, 0) << program.source << " is taken by g++";
    std::string first;
    std::istringstream said(read.err);
    for (std::string line; std::getline(said, line) && first.empty();) {
        const std::size_t error = line.find("error: ");
        if (error != std::string::npos) first = line.substr(error) + "\n";
    }
    if (isRewriting()) writeText(program.besides(".says"), first);
    std::istringstream lines(readText(program.besides(".says")));
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_NE(read.err.find(line), std::string::npos) << program.source << ": " << line << "\n"
                                                          << read.err;
    }
    EXPECT_GT(count, 0) << program.source;
}

/// Programs of another language beside ours print the same.
void expectSameFromPython(const DocumentProgram& program, const std::string& folder) {
    ProcessOptions options;
    options.directory = folder;
    options.input = typedInto(program);
    const ProcessResult ran = runCommand({"python3", program.name + ".py"}, options);
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_EQ(ran.out, readTranscript(readText(program.besides(".out"))).printed) << program.source;
}

/// A run in a copy of the chapter's folder, away from what others write.
ProcessResult runThere(const ProgramsInOne& programs, int number, const DocumentProgram& program) {
    const auto options = fs::copy_options::recursive | fs::copy_options::overwrite_existing;
    fs::copy(fs::u8path(kDocumentPrograms + program.chapter),
             fs::u8path(programs.runFolder(number)), options);
    return programs.run(number, typedInto(program), 60);
}

void expectChapter(const std::string& chapter) {
    const std::string folder = stagedChapter(chapter);
    ProgramsInOne together("documents_" + chapter);
    std::map<int, DocumentProgram> running;
    for (const DocumentProgram& program : documentPrograms(chapter)) {
        // The browser's tests open applications; of one that is refused the report is shown.
        if (program.isApplication() && !program.has(".report")) continue;
        const ProcessResult translated = translate(program, folder);
        if (translated.exitCode != 0) {
            expectRefusal(program, translated);
        } else if (program.has(".says")) {
            expectWords(program, translated.out, folder);
        } else if (program.has(".out") || program.has(".report") || program.has(".err") ||
                   (isRewriting() && !program.has(".check") && !isImported(program))) {
            const int number = together.add(readText(program.source), translated.out);
            running.emplace(number, program);
        }
    }
    ASSERT_EQ(running.empty() ? "" : together.build(), "");
    for (const auto& [number, program] : running) {
        expectRun(program, runThere(together, number, program));
        if (program.has(".py")) expectSameFromPython(program, folder);
    }
}

class Chapter : public testing::Test {
public:
    explicit Chapter(std::string chapter) : chapter(std::move(chapter)) {}
    void TestBody() override { expectChapter(chapter); }

private:
    std::string chapter;
};

const bool registered = [] {
    for (const std::string& chapter : documentChapters()) {
        testing::RegisterTest("Chapter", chapter.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                              [=]() -> testing::Test* { return new Chapter(chapter); });
    }
    return true;
}();

}  // namespace
