// Another name for something, everywhere at once; refused where the program would become another
// one, or none.
#include <algorithm>

#include "companion/check/names_uses.h"
#include "companion/language_server/features.h"
#include "companion/language_server/uris.h"
#include "lexer/characters.h"

namespace companion::language_server {

namespace {

constexpr const char* kNothingHere = "இங்கே மாற்றக்கூடிய பெயர் எதுவும் இல்லை.";
constexpr const char* kNotYet =
    "நிரலில் ஒரு பிழை உள்ளது; அதனால் எல்லா இடங்களும் தெரியவில்லை. முதலில் அதைச் சரிசெய்யுங்கள், பிறகு பெயரை மாற்றலாம்.";

std::string quotedName(std::string_view name) { return "'" + std::string(name) + "'"; }

bool noModule(const std::string&, std::string&) { return false; }

/// What the compiler says of `name` as a variable's; nothing if it takes it.
std::optional<std::string> refusalOfName(const std::string& name) {
    const SourceText source(name, name + " = 1\n");
    const CompiledSource compiled(source, noModule);
    const bool isOneWord = std::none_of(name.begin(), name.end(), [](char byte) {
        return isAsciiMark(static_cast<unsigned char>(byte));
    });
    // What the scanner says of a word is of its spelling.
    if (isOneWord && !name.empty() && !compiled.isScanned() && compiled.refused) {
        return compiled.refused->message + " " + compiled.refused->fix;
    }
    const bool isOneName = !compiled.refused && !compiled.tokens.empty() &&
                           compiled.tokens.front().type == TokenType::IDENTIFIER &&
                           compiled.tokens.front().text == name;
    if (isOneName) return std::nullopt;
    return "பெயர் ஒரே சொல்லாக, எழுத்திலோ '_' குறியிலோ தொடங்கவேண்டும்.";
}

/// A module that came with the compiler and declares the name.
bool isOfLibrary(const Analysis& here, const std::string& path) {
    return std::any_of(here.modules.begin(), here.modules.end(), [&](const FoundModule& module) {
        return module.isOfLibrary && module.path == path;
    });
}

bool isGivenByLanguage(const KnownName& name) {
    if (name.kind != NameKind::Member) return isReceiverName(name.text);
    return isInputMember(name.text) || isWordOfLanguage(name.text);
}

bool isUsed(const std::vector<AnalysisPointer>& program, const std::string& text) {
    return std::any_of(program.begin(), program.end(), [&](const AnalysisPointer& part) {
        const auto& names = part->names().names;
        return std::any_of(names.begin(), names.end(),
                           [&](const KnownName& name) { return name.text == text; });
    });
}

/// The text of `analysis` with the new name at the places.
std::string renamedText(const Analysis& analysis, const std::vector<NameUse>& uses,
                        const std::string& newName) {
    std::string text = analysis.source.text;
    for (auto use = uses.rbegin(); use != uses.rend(); ++use) {
        text.replace(use->range.begin, use->range.end - use->range.begin, newName);
    }
    return text;
}

/// What the compiler would say behind the rename and doesn't say now.
std::string refusalBehind(const Analysis& analysis, const std::vector<NameUse>& uses,
                          const std::string& newName) {
    if (analysis.compiled.refused) return "";
    const SourceText renamed(analysis.source.path, renamedText(analysis, uses, newName));
    const CompiledSource compiled(renamed, [&](const std::string& name, std::string& text) {
        for (const FoundModule& module : analysis.modules) {
            const std::string path = "/" + tidyPath(name, "");
            if (module.path.size() < path.size() ||
                module.path.compare(module.path.size() - path.size(), path.size(), path) != 0) {
                continue;
            }
            text = module.text;
            return true;
        }
        return false;
    });
    if (!compiled.refused) return "";
    return quotedName(newName) + " எனப் பெயரிட்டால் பொழில் நிரலை ஏற்காது: " + compiled.refused->message +
           " " + compiled.refused->fix;
}

}  // namespace

RenamedName renamedNameAt(const std::vector<AnalysisPointer>& program, std::size_t offset) {
    const Analysis& here = *program.front();
    if (!here.compiled.isParsed()) return {std::nullopt, kNotYet};
    const NameUse* use = here.names().at(offset);
    if (use == nullptr) return {std::nullopt, kNothingHere};
    const KnownName& name = here.names().names[use->name];
    if (isGivenByLanguage(name)) {
        return {std::nullopt, quotedName(name.text) + " பொழில் தரும் பெயர்; அதை மாற்ற முடியாது."};
    }
    bool isDeclared = false;
    for (const AnalysisPointer& part : program) {
        if (name.isLocal && part.get() != &here) continue;
        if (part->names().usesOf(name.key).empty()) continue;
        if (isOfLibrary(here, part->path)) {
            return {std::nullopt, quotedName(name.text) +
                                      " பொழிலோடு வரும் நூலில் உள்ள பெயர்; அதை இங்கே மாற்ற முடியாது."};
        }
        if (!part->compiled.isParsed()) return {std::nullopt, kNotYet};
        isDeclared = isDeclared || part->names().definitionOf(name.key).has_value();
    }
    if (!isDeclared) {
        return {std::nullopt, quotedName(name.text) +
                                  " எங்கே உருவாகிறது என்று தெரியவில்லை; அதனால் அதை மாற்ற முடியாது."};
    }
    return {*use, ""};
}

Renaming renamingOf(const std::vector<AnalysisPointer>& program, std::size_t offset,
                    const std::string& newName) {
    const RenamedName found = renamedNameAt(program, offset);
    if (!found.use) return {{}, found.refusal};
    const Analysis& here = *program.front();
    const KnownName& name = here.names().names[found.use->name];
    if (name.text == newName) return {};
    if (isWordOfLanguage(newName)) {
        return {{}, quotedName(newName) + " பொழிலின் சொல்; வேறு பெயர் கொடுங்கள்."};
    }
    if (const auto refusal = refusalOfName(newName)) {
        return {{}, quotedName(newName) + " பெயராக முடியாது: " + *refusal};
    }
    if (isUsed(program, newName)) {
        return {{},
                quotedName(newName) +
                    " என்ற பெயர் நிரலில் ஏற்கெனவே உள்ளது; இரண்டும் ஒன்றாகிவிடும். வேறு பெயர் கொடுங்கள்."};
    }
    Renaming renaming;
    bool isOnlyHere = true;
    for (const AnalysisPointer& part : program) {
        if (name.isLocal && part.get() != &here) continue;
        for (const NameUse& use : part->names().usesOf(name.key)) {
            renaming.places.push_back({part->uri, part->places.rangeOf(use.range)});
            isOnlyHere = isOnlyHere && part.get() == &here;
        }
    }
    if (!isOnlyHere) return renaming;
    const std::string refusal = refusalBehind(here, here.names().usesOf(name.key), newName);
    return refusal.empty() ? renaming : Renaming{{}, refusal};
}

}  // namespace companion::language_server
