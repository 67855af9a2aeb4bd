// Where a name is declared and where it is used.
#include <algorithm>

#include "companion/language_server/features.h"
#include "companion/language_server/uris.h"
#include "files.h"

namespace companion::language_server {

namespace {

/// The module whose file an import's text names; null if it wasn't found.
const ModuleOutline* importedAt(const Analysis& analysis, const ModuleOutlines& modules,
                                const CodePiece& piece) {
    const auto index = static_cast<std::size_t>(&piece - analysis.code().pieces().data());
    if (piece.piece.kind != PieceKind::Text || index == 0 || index >= analysis.code().size() ||
        analysis.code().at(index - 1).text != "நூஇறக்கி" || piece.text.size() < 2) {
        return nullptr;
    }
    const std::string name(piece.text.substr(1, piece.text.size() - 2));
    for (const auto& module : modules) {
        for (const char* ending : {"", ".பொழில்"}) {
            if (hasEnding(module->path, "/" + tidyPath(name + ending, ""))) return module.get();
        }
        if (name == "வலைதளம்" && hasEnding(module->path, "/வலைதளம்.பொழில்")) return module.get();
    }
    return nullptr;
}

std::vector<Place> definitionInModules(const ModuleOutlines& modules, const std::string& key) {
    std::vector<Place> places;
    for (const auto& module : modules) {
        const Names names = namesOf(module->code, module->outline);
        if (const auto definition = names.definitionOf(key)) {
            places.push_back({uriOfPath(module->path), module->places.rangeOf(definition->range)});
        }
    }
    return places;
}

}  // namespace

std::vector<Place> definitionOf(const Analysis& analysis, const ModuleOutlines& modules,
                                std::size_t offset) {
    const NameUse* use = analysis.names().at(offset);
    if (use == nullptr) {
        const CodePiece* piece = analysis.code().pieceAt(offset);
        const ModuleOutline* module =
            piece == nullptr ? nullptr : importedAt(analysis, modules, *piece);
        if (module == nullptr) return {};
        return {{uriOfPath(module->path), {}}};
    }
    const KnownName& name = analysis.names().names[use->name];
    const auto own = analysis.names().definitionOf(name.key);
    if (own) return {{analysis.uri, analysis.places.rangeOf(own->range)}};
    return definitionInModules(modules, name.key);
}

std::vector<Place> referencesOf(const std::vector<AnalysisPointer>& program, std::size_t offset,
                                bool withDefinitions) {
    const Analysis& here = *program.front();
    const NameUse* use = here.names().at(offset);
    if (use == nullptr) return {};
    const KnownName& name = here.names().names[use->name];
    std::vector<Place> places;
    for (const AnalysisPointer& part : program) {
        if (name.isLocal && part.get() != &here) continue;
        for (const NameUse& other : part->names().usesOf(name.key)) {
            if (!withDefinitions && other.kind == UseKind::Definition) continue;
            places.push_back({part->uri, part->places.rangeOf(other.range)});
        }
    }
    return places;
}

std::vector<Highlight> highlightsOf(const Analysis& analysis, std::size_t offset) {
    const NameUse* use = analysis.names().at(offset);
    if (use == nullptr) return {};
    std::vector<Highlight> highlights;
    for (const NameUse& other : analysis.names().usesOf(analysis.names().names[use->name].key)) {
        highlights.push_back({other.range, other.kind != UseKind::Read});
    }
    return highlights;
}

}  // namespace companion::language_server
