#include "document_programs.h"

#include <algorithm>
#include <filesystem>

#include "support/case_files.h"

namespace fs = std::filesystem;

const char* const kDocumentPrograms = POZHIL_ROOT "/docs/நிரல்கள்/";

std::string DocumentProgram::besides(const std::string& extension) const {
    return fs::u8path(source).replace_extension(fs::u8path(extension)).u8string();
}

bool DocumentProgram::has(const std::string& extension) const {
    return fs::exists(fs::u8path(besides(extension)));
}

bool DocumentProgram::isApplication() const {
    const std::string text = "\n" + readText(source);
    return text.find("\nவலைதளம் ") != std::string::npos;
}

bool DocumentProgram::isWrong() const {
    return has(".report") || has(".check") || has(".says") || has(".err");
}

std::vector<std::string> documentChapters() {
    std::vector<std::string> chapters;
    if (!fs::exists(fs::u8path(kDocumentPrograms))) return chapters;
    for (const auto& entry : fs::directory_iterator(fs::u8path(kDocumentPrograms))) {
        if (entry.is_directory()) chapters.push_back(entry.path().filename().u8string());
    }
    std::sort(chapters.begin(), chapters.end());
    return chapters;
}

std::vector<DocumentProgram> documentPrograms(const std::string& chapter) {
    std::vector<DocumentProgram> programs;
    for (const auto& entry : fs::directory_iterator(fs::u8path(kDocumentPrograms + chapter))) {
        const fs::path& path = entry.path();
        if (path.extension() != fs::u8path(".பொழில்")) continue;
        programs.push_back({chapter, path.stem().u8string(), path.u8string()});
    }
    std::sort(
        programs.begin(), programs.end(),
        [](const DocumentProgram& a, const DocumentProgram& b) { return a.source < b.source; });
    return programs;
}

std::vector<DocumentProgram> allDocumentPrograms() {
    std::vector<DocumentProgram> all;
    for (const std::string& chapter : documentChapters()) {
        for (DocumentProgram& program : documentPrograms(chapter)) {
            all.push_back(std::move(program));
        }
    }
    return all;
}

bool isImported(const DocumentProgram& program) {
    const std::vector<DocumentProgram> others = documentPrograms(program.chapter);
    return std::any_of(others.begin(), others.end(), [&](const DocumentProgram& other) {
        const std::string text = readText(other.source);
        return text.find("நூஇறக்கி \"" + program.name + "\"") != std::string::npos ||
               text.find("நூஇறக்கி \"" + program.name + ".பொழில்\"") != std::string::npos;
    });
}
