// The programs of the guide as users run them: each prints what the guide shows, stops with the
// report or the words that it shows, or is refused so. All are built as one.
// POZHIL_REWRITE=1 writes outputs without typed text, reports, and what g++ says.
#include "../document_programs.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "../../companion/cases_in_one.h"
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

/// Where the copy of a chapter's folder stands.
std::string chapterFolder(const std::string& chapter) {
    return POZHIL_BUILD_DIR "/documents/" + chapter + "/";
}

/// A copy of a chapter's folder, with the module library where its programs look for it.
std::string stagedChapter(const std::string& chapter) {
    const std::string folder = chapterFolder(chapter);
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
    expectText(program, ".report", withOwnName(plainReport(refused.out), program.name + ".பொழில்"));
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
    const RunText text = splitAtReport(withOwnName(ran.out, program.name + ".பொழில்"));
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

/// Whether the program is to run: refused ones aside, those of which something is shown.
bool isRun(const DocumentProgram& program) {
    return program.has(".out") || program.has(".report") || program.has(".err") ||
           (isRewriting() && !program.has(".check") && !isImported(program));
}

/// The programs of all chapters that are asked for, translated and built together.
class Guide {
public:
    struct Translated {
        DocumentProgram program;
        ProcessResult text;  ///< Or the refusal.
        int number = -1;     ///< In the executable; -1 outside of it.
    };

    Guide() : together("documents_" + *chaptersToRun().begin()) {
        for (const std::string& chapter : chaptersToRun()) {
            const std::string folder = stagedChapter(chapter);
            std::vector<Translated>& programs = chapters[chapter];
            for (const DocumentProgram& program : documentPrograms(chapter)) {
                // The browser's tests open applications; of one that is refused the report is
                // shown.
                if (program.isApplication() && !program.has(".report")) continue;
                programs.push_back(translated(program, folder));
            }
        }
        complaint = together.build();
    }

    const std::vector<Translated>& programsOf(const std::string& chapter) const {
        return chapters.at(chapter);
    }

    std::string complaint;
    ProgramsInOne together;

private:
    static std::set<std::string> chaptersToRun() {
        const std::set<std::string> wanted = testsToRun();
        std::set<std::string> chosen;
        for (const std::string& chapter : documentChapters()) {
            if (wanted.count(chapter) != 0) chosen.insert(chapter);
        }
        return chosen;
    }

    Translated translated(const DocumentProgram& program, const std::string& folder) {
        Translated result{program, translate(program, folder)};
        if (result.text.exitCode == 0 && !program.has(".says") && isRun(program)) {
            EXPECT_FALSE(together.meetsCommonName(result.text.out)) << program.source;
            result.number = together.add(readText(program.source), result.text.out);
        }
        return result;
    }

    std::map<std::string, std::vector<Translated>> chapters;
};

void expectChapter(const std::string& chapter) {
    static const Guide guide;
    ASSERT_EQ(guide.complaint, "");
    const std::string folder = chapterFolder(chapter);
    for (const auto& [program, text, number] : guide.programsOf(chapter)) {
        if (text.exitCode != 0) {
            expectRefusal(program, text);
        } else if (program.has(".says")) {
            expectWords(program, text.out, folder);
        } else if (number >= 0) {
            expectRun(program, runThere(guide.together, number, program));
            if (program.has(".py")) expectSameFromPython(program, folder);
        }
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
