// Any bytes are an editor's session: a text, and changes at any places. Whatever the text becomes,
// each question about it is answered, with places that exist. The same bytes are also a message.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "companion/language_server/features.h"
#include "companion/language_server/json_repair.h"
#include "companion/language_server/server.h"
#include "companion/language_server/workspace.h"

namespace {

using namespace companion::language_server;

constexpr const char* kUri = "untitled:fuzz";
constexpr int kMostChanges = 4;

void require(bool holds, const char* what, const std::string& text) {
    if (holds) return;
    std::cerr << what << "\n--- text\n" << text << "\n---\n";
    std::abort();
}

/// Takes the input apart from its end, so that the text at its beginning stays a text.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size)
        : bytes(reinterpret_cast<const char*>(data), size) {}

    int number() {
        if (bytes.empty()) return 0;
        const auto value = static_cast<signed char>(bytes.back());
        bytes.remove_suffix(1);
        return value;
    }
    std::string slice(int length) {
        const std::size_t count =
            std::min(static_cast<std::size_t>(std::abs(length)), bytes.size());
        const std::string text(bytes.substr(bytes.size() - count));
        bytes.remove_suffix(count);
        return text;
    }
    std::string rest() const { return std::string(bytes); }

private:
    std::string_view bytes;
};

TextChange changeFrom(Input& input) {
    TextChange change;
    const Position start{input.number(), input.number()};
    change.range = PositionRange{start, {start.line + input.number(), input.number()}};
    change.text = input.slice(input.number());
    return change;
}

void requireRange(const Analysis& analysis, companion::Range range, const char* what) {
    const std::string& text = analysis.source.text;
    require(range.begin <= range.end && range.end <= text.size(), what, text);
}

/// To find the offset of a position costs as many steps as its line is long before it: of a long
/// text only some are looked at, others in each text.
bool isLookedAt(std::size_t offset, const std::string& text) {
    const std::size_t step = 1 + text.size() / 256;
    return offset % step == text.size() % step;
}

void checkPlaces(const Analysis& analysis) {
    const std::string& text = analysis.source.text;
    Position last;
    for (std::size_t offset = 0; offset <= text.size(); offset++) {
        const Position position = analysis.places.positionOf(offset);
        const bool goesOn = position.line > last.line ||
                            (position.line == last.line && position.character >= last.character);
        require(goesOn, "positions go back", text);
        if (isLookedAt(offset, text)) {
            require(analysis.places.offsetOf(position) <= offset, "a position lies behind", text);
        }
        last = position;
    }
}

void checkWhole(const Analysis& analysis) {
    const std::string& text = analysis.source.text;
    for (const companion::Finding& finding : analysis.findings()) {
        requireRange(analysis, finding.range, "a finding");
        if (finding.correction) requireRange(analysis, finding.correction->range, "a correction");
    }
    for (const Declaration& declaration : analysis.outline()) {
        requireRange(analysis, declaration.whole, "a declaration");
        requireRange(analysis, declaration.head, "a head");
        require(declaration.whole.begin <= declaration.nameRange.begin &&
                    declaration.nameRange.end <= declaration.whole.end,
                "a name outside of what it names", text);
    }
    std::size_t end = 0;
    for (const SemanticToken& token : semanticTokensOf(analysis)) {
        requireRange(analysis, token.range, "a token");
        require(token.range.begin >= end, "tokens overlap", text);
        end = token.range.end;
    }
    for (const FoldedLines& lines : foldedLinesOf(analysis)) {
        require(lines.first < lines.last && lines.last < analysis.places.lineCount(), "a fold",
                text);
    }
}

void checkAt(Workspace& workspace, const AnalysisPointer& analysis, std::size_t offset) {
    const auto modules = workspace.outlinesOf(*analysis);
    if (const auto hover = hoverAt(*analysis, modules, offset)) {
        requireRange(*analysis, hover->range, "a hover");
    }
    if (const auto signature = signatureAt(*analysis, modules, offset)) {
        for (const companion::Range range : signature->parameters) {
            require(range.begin < range.end && range.end <= signature->label.size(), "a parameter",
                    analysis->source.text);
        }
    }
    definitionOf(*analysis, modules, offset);
    const auto program = workspace.programAround(analysis);
    const auto uses = referencesOf(program, offset, true);
    require(uses.size() == highlightsOf(*analysis, offset).size(), "uses", analysis->source.text);
    const Renaming renaming = renamingOf(program, offset, "வேறுபெயர்");
    require(renaming.refusal.empty() || renaming.places.empty(), "a rename", analysis->source.text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    Server server;
    server.take(input.rest());
    while (server.work(Moment{})) {
    }

    std::vector<TextChange> changes;
    const int count = std::abs(input.number()) % (kMostChanges + 1);
    for (int i = 0; i < count; i++) changes.push_back(changeFrom(input));
    const auto place = static_cast<std::size_t>(std::abs(input.number())) * 31;

    Workspace workspace;
    workspace.open(kUri, 1, input.rest(), Moment{});
    for (std::size_t i = 0; i <= changes.size(); i++) {
        if (i > 0) workspace.change(kUri, static_cast<int>(i) + 1, {changes[i - 1]}, Moment{});
        const AnalysisPointer analysis = workspace.analysisOf(kUri);
        checkPlaces(*analysis);
        checkWhole(*analysis);
        const std::size_t length = analysis->source.text.size();
        for (const std::size_t offset : {place % (length + 1), length / 2, length}) {
            checkAt(workspace, analysis, offset);
        }
    }
    return 0;
}
