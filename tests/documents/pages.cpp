#include "pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>

#include "document_programs.h"
#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

const std::string kMarks = "```";

/// Kinds of fences, and what the file is called that one of them shows. An empty name: the lines
/// stand for themselves; "*": the fence tells the ending.
const std::map<std::string, std::string> kKinds = {
    {"பொழில்", ".பொழில்"},     {"வெளியீடு", ".out"}, {"அறிக்கை", ".report"},
    {"சரிபார்ப்பு", ".check"}, {"முறிவு", ".err"},  {"தொகுப்பி", ".says"},
    {"கோப்பு", "*"},          {"python", "*"},     {"sh", ""},
};

void collect(std::vector<std::string>& pages, const fs::path& folder) {
    if (!fs::exists(folder)) return;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".md") pages.push_back(entry.path().u8string());
    }
}

/// Lines `range` ("3-7") of a text.
std::string linesOf(const std::string& text, const std::string& range) {
    const std::size_t dash = range.find('-');
    const int first = std::stoi(range.substr(0, dash));
    const int last = dash == std::string::npos ? first : std::stoi(range.substr(dash + 1));
    std::istringstream lines(text);
    std::string part;
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        if (++number >= first && number <= last) part += line + "\n";
    }
    EXPECT_LE(last, number) << "lines " << range << " of " << number;
    return part;
}

std::string endedByOneLine(std::string text) {
    while (!text.empty() && text.back() == '\n') text.pop_back();
    return text.empty() ? text : text + "\n";
}

}  // namespace

std::vector<std::string> guidePages() {
    std::vector<std::string> pages;
    for (const char* folder : {"/docs/வழிகாட்டி", "/docs/guide"}) {
        collect(pages, fs::u8path(std::string(POZHIL_ROOT) + folder));
    }
    std::sort(pages.begin(), pages.end());
    return pages;
}

std::vector<std::string> allPages() {
    std::vector<std::string> pages;
    collect(pages, fs::u8path(POZHIL_ROOT "/docs"));
    for (const auto& entry : fs::directory_iterator(fs::u8path(POZHIL_ROOT))) {
        if (entry.path().extension() == ".md") pages.push_back(entry.path().u8string());
    }
    std::sort(pages.begin(), pages.end());
    return pages;
}

std::vector<Fence> fencesOf(const std::string& pageText) {
    std::vector<Fence> fences;
    std::istringstream lines(pageText);
    bool isInside = false;
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        number++;
        if (line.rfind(kMarks, 0) != 0) {
            if (isInside) fences.back().text += line + "\n";
            continue;
        }
        if (!isInside) {
            std::istringstream words(line.substr(kMarks.size()));
            Fence fence{number, "", "", ""};
            words >> fence.kind >> fence.name;
            fences.push_back(fence);
        }
        isInside = !isInside;
    }
    EXPECT_FALSE(isInside) << "a fence that isn't closed";
    return fences;
}

std::string contentOf(const Fence& fence) {
    const auto kind = kKinds.find(fence.kind);
    if (kind == kKinds.end()) {
        ADD_FAILURE() << "line " << fence.line << ": no fence is of the kind '" << fence.kind
                      << "'";
        return fence.text;
    }
    if (kind->second.empty()) return fence.text;
    const std::size_t colon = fence.name.find(':');
    std::string path = kDocumentPrograms + fence.name.substr(0, colon);
    if (kind->second != "*") path += kind->second;
    const std::string text = endedByOneLine(readText(path));
    return colon == std::string::npos ? text : linesOf(text, fence.name.substr(colon + 1));
}

std::string refilled(const std::string& pageText) {
    std::string page;
    std::istringstream lines(pageText);
    const std::vector<Fence> fences = fencesOf(pageText);
    std::size_t next = 0;
    bool isInside = false;
    for (std::string line; std::getline(lines, line);) {
        const bool isMark = line.rfind(kMarks, 0) == 0;
        if (isMark) isInside = !isInside;
        if (isMark || !isInside) page += line + "\n";
        if (isMark && isInside) page += contentOf(fences[next++]);
    }
    return page;
}
