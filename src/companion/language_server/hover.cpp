// What is told where the pointer rests: findings first, then the word.
#include <algorithm>

#include "companion/descriptions/properties_of.h"
#include "companion/language_server/features.h"

namespace companion::language_server {

namespace {

constexpr const char* kRule = "\n\n---\n\n";

void addPart(std::string& markdown, const std::string& part) {
    if (part.empty()) return;
    if (!markdown.empty()) markdown += kRule;
    markdown += part;
}

std::string findingsAt(const Analysis& analysis, std::size_t offset) {
    std::string markdown;
    for (const Finding& finding : analysis.findings()) {
        const bool isHere =
            finding.range.begin <= offset &&
            (offset < finding.range.end || finding.range.begin == finding.range.end);
        if (isHere) addPart(markdown, "**" + finding.code + "**\n\n" + finding.message);
    }
    return markdown;
}

template <typename Table>
auto rowOf(const Table& table, std::string_view word) {
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const auto& row) { return row.word == word; });
    return found == table.end() ? nullptr : &*found;
}

/// The property that `word` is in the widgets around it: the one of the innermost that reads it.
const PropertyDescription* propertyAround(const Code& code, std::size_t offset,
                                          std::string_view word) {
    std::vector<Opening> open = code.openAt(offset);
    for (auto opening = open.rbegin(); opening != open.rend(); ++opening) {
        if (!opening->word) continue;
        const std::string_view holder = code.at(*opening->word).text;
        for (const PropertyDescription* property : propertiesOf(holder)) {
            if (property->word == word) return property;
        }
        for (const PropertyDescription& property : propertyDescriptions()) {
            if (property.block == holder && property.word == word) return &property;
        }
    }
    return rowOf(propertyDescriptions(), word);
}

/// The head of a declaration with the comment above it.
std::string declaredMarkdown(const Code& code, const Declaration& declaration) {
    const Range head = declaration.head;
    std::string markdown = "```pozhil\n" +
                           std::string(code.text().substr(head.begin, head.end - head.begin)) +
                           "\n```";
    const std::string remarks = remarksAbove(code, declaration);
    if (!remarks.empty()) markdown += "\n\n" + remarks;
    return markdown;
}

bool declares(const Declaration& declaration, const KnownName& name) {
    if (declaration.name != name.text) return false;
    switch (declaration.kind) {
        case DeclarationKind::Application:
        case DeclarationKind::Section:
        case DeclarationKind::Widget: return false;
        case DeclarationKind::Method:
        case DeclarationKind::Field: return name.kind == NameKind::Member;
        case DeclarationKind::EnumerationMember: return name.kind == NameKind::EnumerationMember;
        default: return name.kind != NameKind::Member && name.kind != NameKind::EnumerationMember;
    }
}

std::string declaredMarkdown(const Analysis& analysis, const ModuleOutlines& modules,
                             const KnownName& name) {
    if (name.isLocal && name.kind != NameKind::Function) return "";
    for (const Declaration& declaration : analysis.outline()) {
        if (declares(declaration, name)) return declaredMarkdown(analysis.code(), declaration);
    }
    for (const auto& module : modules) {
        for (const Declaration& declaration : module->outline) {
            if (declares(declaration, name)) return declaredMarkdown(module->code, declaration);
        }
    }
    return "";
}

/// The word of a piece with what belongs to it: நிகழ்நேர.தரவுசேர் is one.
std::string wholeWord(const Code& code, const CodePiece& piece) {
    const auto index = static_cast<std::size_t>(&piece - code.pieces().data());
    constexpr std::string_view kCompound = "நிகழ்நேர";
    if (index >= 2 && code.at(index - 1).isMark(".") && code.at(index - 2).text == kCompound) {
        return std::string(kCompound) + "." + std::string(piece.text);
    }
    if (piece.text == kCompound && code.isMarkAt(index + 1, ".") && index + 2 < code.size()) {
        return std::string(kCompound) + "." + std::string(code.at(index + 2).text);
    }
    return std::string(piece.text);
}

std::string describedMarkdown(const Code& code, const CodePiece& piece) {
    const auto index = static_cast<std::size_t>(&piece - code.pieces().data());
    const std::string word = wholeWord(code, piece);
    const std::size_t offset = piece.piece.begin;
    const bool isKey = code.isMarkAt(index + 1, ":") && !code.openAt(offset).empty();
    if (isKey) {
        if (const auto* property = propertyAround(code, offset, word)) return markdownOf(*property);
    }
    for (const auto* table : {&wordDescriptions(), &widgetDescriptions()}) {
        if (const Description* row = rowOf(*table, word)) return markdownOf(*row);
    }
    if (const auto* value = rowOf(valueDescriptions(), word)) return markdownOf(*value);
    if (const auto* property = propertyAround(code, offset, word)) return markdownOf(*property);
    return "";
}

bool isComment(const CodePiece& piece) {
    return piece.piece.kind == PieceKind::Comment || piece.piece.kind == PieceKind::BlockComment;
}

}  // namespace

std::optional<Hover> hoverAt(const Analysis& analysis, const ModuleOutlines& modules,
                             std::size_t offset) {
    Hover hover{findingsAt(analysis, offset), {offset, offset}};
    const CodePiece* piece = analysis.code().pieceAt(offset);
    if (piece != nullptr && !isComment(*piece)) {
        hover.range = piece->range();
        const NameUse* use = analysis.names().at(offset);
        std::string word;
        if (use != nullptr) {
            word = declaredMarkdown(analysis, modules, analysis.names().names[use->name]);
        }
        if (word.empty() && piece->isWord()) word = describedMarkdown(analysis.code(), *piece);
        addPart(hover.markdown, word);
    }
    if (hover.markdown.empty()) return std::nullopt;
    return hover;
}

}  // namespace companion::language_server
