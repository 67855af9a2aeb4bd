#include "mistakes/mistake.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

const char* const kMistakesLane = "companion/mistakes";

fs::path mistakesRoot() { return fs::u8path(POZHIL_ROOT) / "tests" / kMistakesLane; }

std::string mistakeBesides(const CaseFile& file, const char* extension) {
    return fs::u8path(file.source).replace_extension(extension).u8string();
}

/// "refused CODE LINE", "native LINE", "right".
Truth readTruth(const std::string& path) {
    Truth truth;
    std::istringstream words(fs::exists(fs::u8path(path)) ? readText(path) : "");
    words >> truth.kind;
    if (truth.kind == "refused" || truth.kind == "reported") words >> truth.code;
    words >> truth.line;
    int line = 0;
    for (std::string word; words >> word >> line;) {
        if (word == "or") {
            truth.otherLine = line;
        } else {
            truth.furtherLines.push_back(line);
        }
    }
    return truth;
}

}  // namespace

bool Mistake::isApplication() const { return readText(source).rfind("வலைதளம்", 0) == 0; }

std::vector<Mistake> findMistakes(const std::string& topic) {
    std::vector<Mistake> mistakes;
    for (const CaseFile& file : findCases(kMistakesLane, ".truth")) {
        const fs::path path = fs::u8path(file.source);
        const std::string folder = path.parent_path().filename().u8string();
        if (!topic.empty() && folder != topic) continue;
        const std::string input = mistakeBesides(file, ".in");
        mistakes.push_back({folder + "/" + path.stem().u8string(),
                            path.parent_path().u8string() + "/", file.source, file.expected,
                            fs::exists(fs::u8path(input)) ? readText(input) : "",
                            readTruth(file.expected)});
    }
    return mistakes;
}

std::vector<std::string> mistakeTopics() {
    std::set<std::string> topics;
    for (const auto& entry : fs::directory_iterator(mistakesRoot())) {
        if (entry.is_directory()) topics.insert(entry.path().filename().u8string());
    }
    return {topics.begin(), topics.end()};
}

std::vector<std::string> findStrayMistakeFiles() {
    std::set<std::string> known;
    for (const CaseFile& file : findCases(kMistakesLane, ".truth")) {
        known.insert({file.source, file.expected, mistakeBesides(file, ".in")});
    }
    std::vector<std::string> strays;
    for (const auto& topic : fs::directory_iterator(mistakesRoot())) {
        if (!topic.is_directory()) continue;
        for (const auto& entry : fs::directory_iterator(topic)) {
            const std::string path = entry.path().u8string();
            if (!entry.is_directory() && known.count(path) == 0) strays.push_back(path);
        }
    }
    return strays;
}

std::string describe(const Truth& truth) {
    std::string text = truth.kind;
    if (!truth.code.empty()) text += " " + truth.code;
    if (truth.kind != "right") text += " " + std::to_string(truth.line);
    if (truth.otherLine != 0) text += " or " + std::to_string(truth.otherLine);
    for (const int line : truth.furtherLines) text += "\nalso " + std::to_string(line);
    return text;
}

bool runs(const Truth& truth) {
    const char* const kinds[] = {"stops", "reported", "endless", "wrong", "right"};
    return std::find(std::begin(kinds), std::end(kinds), truth.kind) != std::end(kinds);
}
