#include "companion/language_server/workspace.h"

#include <algorithm>

#include "companion/language_server/uris.h"

namespace companion::language_server {

void Workspace::changeFolders(const std::vector<std::string>& addedUris,
                              const std::vector<std::string>& removedUris) {
    for (const std::string& uri : removedUris) {
        const std::string path = pathOfUri(uri);
        auto& folders = modules.folders;
        folders.erase(std::remove(folders.begin(), folders.end(), path), folders.end());
    }
    for (const std::string& uri : addedUris) modules.folders.push_back(pathOfUri(uri));
}

void Workspace::open(const std::string& uri, int version, std::string text, Moment now) {
    const Document& document = documents.open(uri, version, std::move(text));
    State& state = states[uri];
    state.current.reset();
    schedule(state, now, now);
    forgetThoseThatAsked(document.path, now);
}

bool Workspace::change(const std::string& uri, int version, const std::vector<TextChange>& changes,
                       Moment now) {
    Document* document = documents.find(uri);
    if (document == nullptr) return false;
    document->change(version, changes);
    State& state = states[uri];
    state.current.reset();
    schedule(state, now + kRest, now);
    forgetThoseThatAsked(document->path, now);
    return true;
}

void Workspace::close(const std::string& uri, Moment now) {
    const Document* document = documents.find(uri);
    if (document == nullptr) return;
    const std::string path = document->path;
    documents.close(uri);
    states.erase(uri);
    forgetThoseThatAsked(path, now);
}

void Workspace::fileChanged(const std::string& uri, Moment now) {
    forgetThoseThatAsked(pathOfUri(uri), now);
}

/// Each change moves the check away, but only so far.
void Workspace::schedule(State& state, Moment due, Moment now) {
    if (!state.changedFirst) state.changedFirst = now;
    state.due = std::min(due, *state.changedFirst + kLongestWait);
}

/// What looked for a file at `path` may find something else now.
void Workspace::forgetThoseThatAsked(const std::string& path, Moment now) {
    if (path.empty()) return;
    for (auto& [uri, state] : states) {
        if (state.asked.count(path) == 0) continue;
        state.current.reset();
        schedule(state, now + kRest, now);
    }
}

AnalysisPointer Workspace::analysisOf(const std::string& uri) {
    const Document* document = documents.find(uri);
    if (document == nullptr) return nullptr;
    State& state = states[uri];
    if (state.current == nullptr) {
        state.current = std::make_shared<const Analysis>(*document, modules);
        state.asked = state.current->asked;
        if (state.current->compiled.isParsed()) state.parsed = state.current;
    }
    return state.current;
}

bool Workspace::analysisIs(const AnalysisPointer& analysis) const {
    const auto found = states.find(analysis->uri);
    return found != states.end() && found->second.current == analysis;
}

std::vector<std::unique_ptr<ModuleOutline>> Workspace::outlinesOf(const Analysis& analysis) const {
    const auto state = states.find(analysis.uri);
    const bool isWhole =
        analysis.compiled.isParsed() || state == states.end() || state->second.parsed == nullptr;
    std::vector<std::unique_ptr<ModuleOutline>> outlines;
    for (const FoundModule& module : isWhole ? analysis.modules : state->second.parsed->modules) {
        outlines.push_back(std::make_unique<ModuleOutline>(module));
    }
    return outlines;
}

std::vector<AnalysisPointer> Workspace::programAround(const AnalysisPointer& analysis) {
    std::vector<AnalysisPointer> program = {analysis};
    const auto isThere = [&](const std::string& path) {
        return std::any_of(program.begin(), program.end(),
                           [&](const AnalysisPointer& part) { return part->path == path; });
    };
    for (const FoundModule& module : analysis->modules) {
        if (isThere(module.path)) continue;
        const Document* open = documents.findByPath(module.path);
        program.push_back(
            open != nullptr ? analysisOf(open->uri)
                            : std::make_shared<const Analysis>(module.path, module.text, modules));
    }
    if (analysis->path.empty()) return program;
    for (const auto& [uri, document] : documents.all()) {
        if (isThere(document->path)) continue;
        const AnalysisPointer other = analysisOf(uri);
        const bool imports =
            std::any_of(other->modules.begin(), other->modules.end(),
                        [&](const FoundModule& module) { return module.path == analysis->path; });
        if (imports) program.push_back(other);
    }
    return program;
}

std::optional<Moment> Workspace::nextDue() const {
    std::optional<Moment> next;
    for (const auto& [uri, state] : states) {
        if (state.due && (!next || *state.due < *next)) next = state.due;
    }
    return next;
}

std::optional<std::string> Workspace::takeDue(Moment now) {
    std::optional<std::string> uri;
    std::optional<Moment> earliest;
    for (const auto& [name, state] : states) {
        if (!state.due || *state.due > now || (earliest && *earliest <= *state.due)) continue;
        earliest = state.due;
        uri = name;
    }
    if (!uri) return std::nullopt;
    states[*uri].due.reset();
    states[*uri].changedFirst.reset();
    return uri;
}

}  // namespace companion::language_server
