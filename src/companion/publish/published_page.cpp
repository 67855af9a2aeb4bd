#include "companion/publish/published_page.h"

#include <sstream>
#include <string_view>

#include "companion/publish/failure.h"
#include "files.h"
#include "writing/marks.h"

namespace companion {

namespace {

// The section of the template about the server, and the one behind it.
constexpr std::string_view kServerSection = "            // ---- The server ----\n";
constexpr std::string_view kNextSection = "            // ---- The window ----\n";
constexpr std::string_view kFilesMark = "கோப்புகள்";
constexpr std::string_view kHeadEnd = "</head>";

/// Names and addresses are plain letters, so they stand in quotes as they are.
std::string filesAsScript(const std::vector<ProgramFile>& files) {
    std::ostringstream text;
    text << "{\n";
    for (const ProgramFile& file : files) {
        text << "                '" << file.name << "': {address: '" << file.address
             << "', bytes: " << file.bytes << "},\n";
    }
    text << "            }";
    return text.str();
}

std::string filledVisitors(const std::string& visitors, const std::vector<ProgramFile>& files) {
    std::ostringstream filled;
    fillMarks(filled, visitors, kPageMarks, [&](std::string_view name) {
        if (name != kFilesMark) return false;
        filled << filesAsScript(files);
        return true;
    });
    return filled.str();
}

void replaceServer(std::string& page, const std::string& visitors) {
    const std::size_t from = page.find(kServerSection);
    const std::size_t to = page.find(kNextSection);
    if (from == std::string::npos || to == std::string::npos || to < from ||
        page.find(kHeadEnd) == std::string::npos) {
        throw PublishFailure(
            "பிழை: பக்கத்தின் வார்ப்பு (template.html) இந்தப் பதிப்புக்கு உரியதல்ல. பொழிலை "
            "மீண்டும் நிறுவு.");
    }
    page.replace(from, to - from, visitors);
}

/// Asked for at once, not only when the script or the style asks for them.
void writePreloads(std::ostream& out, const std::vector<ProgramFile>& files,
                   const std::vector<FontFile>& fonts) {
    for (const ProgramFile& file : files) {
        if (hasEnding(file.name, ".js")) continue;
        out << "    <link rel=\"preload\" href=\"" << file.address
            << "\" as=\"fetch\" crossorigin>\n";
    }
    if (fonts.empty()) return;
    out << "    <link rel=\"preload\" href=\"" << fonts.front().address
        << "\" as=\"font\" type=\"font/ttf\" crossorigin>\n";
}

void writeFonts(std::ostream& out, const std::vector<FontFile>& fonts) {
    if (fonts.empty()) return;
    out << "    <style>\n";
    for (const FontFile& font : fonts) {
        out << "        @font-face {\n"
            << "            font-family: \"Noto Sans Tamil\"; font-weight: " << font.weight
            << "; font-display: swap;\n            src: url(\"" << font.address
            << "\") format(\"truetype\");\n        }\n";
    }
    out << "    </style>\n";
}

}  // namespace

std::string publishedPage(std::string page, const std::string& visitors, const PageHead& head,
                          const std::vector<ProgramFile>& files,
                          const std::vector<FontFile>& fonts) {
    // Ahead of the head's values, which may hold anything.
    replaceServer(page, filledVisitors(visitors, files));
    std::ostringstream extra;
    writePreloads(extra, files, fonts);
    writeFonts(extra, fonts);
    page.insert(page.find(kHeadEnd), extra.str());
    for (const ProgramFile& file : files) {
        if (hasEnding(file.name, ".js")) insertScript(page, file.address);
    }
    return fillPageHead(std::move(page), head);
}

}  // namespace companion
