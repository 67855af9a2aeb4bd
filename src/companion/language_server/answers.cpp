// The answers to requests as JSON, a function a method, and the table of all of them.
#include <algorithm>

#include "companion/format/format.h"
#include "companion/language_server/completion.h"
#include "companion/language_server/session.h"
#include "companion/language_server/uris.h"

namespace companion::language_server {

namespace {

/// A document and a place in it; null where the client asks for one that it hasn't opened.
struct Asked {
    AnalysisPointer analysis;
    std::size_t offset = 0;
};

AnalysisPointer documentAsked(Session& session, const Json& params) {
    return session.workspace.analysisOf(documentUriOf(params));
}

Asked placeAsked(Session& session, const Json& params) {
    const Position position = positionOf(fieldOf(params, "position"));
    Asked asked{documentAsked(session, params)};
    if (asked.analysis != nullptr) asked.offset = asked.analysis->places.offsetOf(position);
    return asked;
}

ModuleOutlines outlinesOf(const Session& session, const Asked& asked) {
    return session.workspace.outlinesOf(*asked.analysis);
}

Json jsonOf(const Place& place) { return {{"uri", place.uri}, {"range", jsonOf(place.range)}}; }

Json jsonOf(const std::vector<Place>& places) {
    Json list = Json::array();
    for (const Place& place : places) list.push_back(jsonOf(place));
    return list;
}

// ---- Words ----

Json answerHover(Session& session, const Json& params) {
    const Asked asked = placeAsked(session, params);
    if (asked.analysis == nullptr) return nullptr;
    const auto hover = hoverAt(*asked.analysis, outlinesOf(session, asked), asked.offset);
    if (!hover) return nullptr;
    return {{"contents", {{"kind", "markdown"}, {"value", hover->markdown}}},
            {"range", jsonOf(asked.analysis->places.rangeOf(hover->range))}};
}

/// Parameters are told by their text: offsets in a label would be in UTF-16.
Json answerSignatureHelp(Session& session, const Json& params) {
    const Asked asked = placeAsked(session, params);
    if (asked.analysis == nullptr) return nullptr;
    const auto signature = signatureAt(*asked.analysis, outlinesOf(session, asked), asked.offset);
    if (!signature) return nullptr;
    Json parameters = Json::array();
    for (const Range range : signature->parameters) {
        parameters.push_back(
            {{"label", signature->label.substr(range.begin, range.end - range.begin)}});
    }
    return {{"signatures", Json::array({{{"label", signature->label},
                                         {"documentation", signature->summary},
                                         {"parameters", parameters}}})},
            {"activeSignature", 0},
            {"activeParameter", signature->active}};
}

/// Five numbers a token: lines and units since the one before, units, type, modifiers.
Json answerSemanticTokens(Session& session, const Json& params) {
    const AnalysisPointer analysis = documentAsked(session, params);
    if (analysis == nullptr) return nullptr;
    std::vector<int> data;
    Position last;
    for (const SemanticToken& token : semanticTokensOf(*analysis)) {
        const PositionRange range = analysis->places.rangeOf(token.range);
        const bool isSameLine = range.start.line == last.line;
        const int units = range.end.character - range.start.character;
        data.insert(data.end(), {range.start.line - last.line,
                                 range.start.character - (isSameLine ? last.character : 0), units,
                                 static_cast<int>(token.type), token.isDeclaration ? 1 : 0});
        last = range.start;
    }
    return {{"data", data}};
}

// ---- Structure ----

int symbolKindOf(DeclarationKind kind) {
    switch (kind) {
        case DeclarationKind::Function: return 12;
        case DeclarationKind::Method: return 6;
        case DeclarationKind::Structure: return 23;
        case DeclarationKind::AbstractStructure: return 11;
        case DeclarationKind::Enumeration: return 10;
        case DeclarationKind::EnumerationMember: return 22;
        case DeclarationKind::Field: return 8;
        case DeclarationKind::Variable: return 13;
        case DeclarationKind::Application: return 2;
        case DeclarationKind::Section: return 3;
        case DeclarationKind::Widget: return 19;
    }
    return 13;
}

Json symbolOf(const Analysis& analysis, const Declaration& declaration) {
    return {{"name", declaration.name},
            {"kind", symbolKindOf(declaration.kind)},
            {"range", jsonOf(analysis.places.rangeOf(declaration.whole))},
            {"selectionRange", jsonOf(analysis.places.rangeOf(declaration.nameRange))}};
}

/// The symbols that stand in `parent`, with those in them. They come behind it, at `next`.
Json symbolsIn(const Analysis& analysis, std::optional<std::size_t> parent, std::size_t& next,
               int depth) {
    constexpr int kDeepest = 100;  // deeper ones stand beside each other
    Json symbols = Json::array();
    const auto& outline = analysis.outline();
    while (next < outline.size() && (outline[next].parent == parent ||
                                     (depth >= kDeepest && outline[next].parent >= parent))) {
        const std::size_t own = next++;
        Json symbol = symbolOf(analysis, outline[own]);
        if (depth < kDeepest) {
            Json children = symbolsIn(analysis, own, next, depth + 1);
            if (!children.empty()) symbol["children"] = std::move(children);
        }
        symbols.push_back(std::move(symbol));
    }
    return symbols;
}

Json flatSymbolsOf(const Analysis& analysis) {
    Json symbols = Json::array();
    for (const Declaration& declaration : analysis.outline()) {
        Json symbol = {
            {"name", declaration.name},
            {"kind", symbolKindOf(declaration.kind)},
            {"location", jsonOf(Place{analysis.uri, analysis.places.rangeOf(declaration.whole)})}};
        if (declaration.parent) {
            symbol["containerName"] = analysis.outline()[*declaration.parent].name;
        }
        symbols.push_back(std::move(symbol));
    }
    return symbols;
}

Json answerDocumentSymbol(Session& session, const Json& params) {
    const AnalysisPointer analysis = documentAsked(session, params);
    if (analysis == nullptr) return nullptr;
    if (!session.knowsNestedSymbols) return flatSymbolsOf(*analysis);
    std::size_t next = 0;
    return symbolsIn(*analysis, std::nullopt, next, 0);
}

Json answerFoldingRange(Session& session, const Json& params) {
    const AnalysisPointer analysis = documentAsked(session, params);
    if (analysis == nullptr) return nullptr;
    Json list = Json::array();
    for (const FoldedLines& lines : foldedLinesOf(*analysis)) {
        Json range = {{"startLine", lines.first}, {"endLine", lines.last}};
        if (lines.isComment) range["kind"] = "comment";
        list.push_back(std::move(range));
    }
    return list;
}

// ---- Names ----

Json answerDefinition(Session& session, const Json& params) {
    const Asked asked = placeAsked(session, params);
    if (asked.analysis == nullptr) return nullptr;
    return jsonOf(definitionOf(*asked.analysis, outlinesOf(session, asked), asked.offset));
}

Json answerReferences(Session& session, const Json& params) {
    const Asked asked = placeAsked(session, params);
    if (asked.analysis == nullptr) return nullptr;
    const auto context = params.find("context");
    const bool withDefinitions = context == params.end() || !context->is_object() ||
                                 !context->contains("includeDeclaration") ||
                                 (*context)["includeDeclaration"] != false;
    return jsonOf(referencesOf(session.workspace.programAround(asked.analysis), asked.offset,
                               withDefinitions));
}

Json answerDocumentHighlight(Session& session, const Json& params) {
    constexpr int kRead = 2;
    constexpr int kWrite = 3;
    const Asked asked = placeAsked(session, params);
    if (asked.analysis == nullptr) return nullptr;
    Json list = Json::array();
    for (const Highlight& highlight : highlightsOf(*asked.analysis, asked.offset)) {
        list.push_back({{"range", jsonOf(asked.analysis->places.rangeOf(highlight.range))},
                        {"kind", highlight.isWrite ? kWrite : kRead}});
    }
    return list;
}

Json answerPrepareRename(Session& session, const Json& params) {
    const Asked asked = placeAsked(session, params);
    if (asked.analysis == nullptr) return nullptr;
    const RenamedName found =
        renamedNameAt(session.workspace.programAround(asked.analysis), asked.offset);
    if (!found.use) throw RequestFailure{codes::kRequestFailed, found.refusal};
    const Range range = found.use->range;
    return {{"range", jsonOf(asked.analysis->places.rangeOf(range))},
            {"placeholder", std::string(asked.analysis->source.slice(range))}};
}

Json answerRename(Session& session, const Json& params) {
    const std::string newName = textOf(params, "newName");
    const Asked asked = placeAsked(session, params);
    if (asked.analysis == nullptr) return nullptr;
    const Renaming renaming =
        renamingOf(session.workspace.programAround(asked.analysis), asked.offset, newName);
    if (!renaming.refusal.empty()) {
        throw RequestFailure{codes::kRequestFailed, renaming.refusal};
    }
    Json changes = Json::object();
    for (const Place& place : renaming.places) {
        changes[place.uri].push_back({{"range", jsonOf(place.range)}, {"newText", newName}});
    }
    return {{"changes", changes}};
}

// ---- Changes ----

/// One edit between the first line that changes and the last, so that a cursor elsewhere stays.
Json editsBetween(const Analysis& analysis, const std::string& after) {
    const std::string& before = analysis.source.text;
    if (before == after) return Json::array();
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t same = 0;
    while (same < shorter && before[same] == after[same]) same++;
    const std::size_t line = same == 0 ? std::string::npos : before.rfind('\n', same - 1);
    const std::size_t head = line == std::string::npos ? 0 : line + 1;
    std::size_t tail = 0;
    while (tail < shorter - head &&
           before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        tail++;
    }
    while (tail > 0 && before[before.size() - tail - 1] != '\n') tail--;
    const Range range{head, before.size() - tail};
    return Json::array({{{"range", jsonOf(analysis.places.rangeOf(range))},
                         {"newText", after.substr(head, after.size() - tail - head)}}});
}

Json answerFormatting(Session& session, const Json& params) {
    const AnalysisPointer analysis = documentAsked(session, params);
    if (analysis == nullptr) return nullptr;
    const auto result = formatted(analysis->source.text);
    if (!result) return nullptr;
    return editsBetween(*analysis, *result);
}

std::string titleOf(const Analysis& analysis, const Correction& correction) {
    constexpr std::size_t kLongestShown = 60;
    const std::string before(analysis.source.slice(correction.range));
    const bool isShown =
        before.size() <= kLongestShown && before.find_first_not_of(" \t\r\n") != std::string::npos;
    if (correction.text.empty()) return "இந்தக் குறியை அழி";
    if (before.empty()) return "'" + correction.text + "' சேர்";
    if (correction.text.find_first_not_of(' ') == std::string::npos) return "வெற்றிடமாக மாற்று";
    if (!isShown) return "'" + correction.text + "' என மாற்று";
    return "'" + before + "' → '" + correction.text + "' என மாற்று";
}

Json quickFixOf(const Analysis& analysis, const Finding& finding) {
    const Correction& correction = *finding.correction;
    const Json edit = {{"range", jsonOf(analysis.places.rangeOf(correction.range))},
                       {"newText", correction.text}};
    return {{"title", titleOf(analysis, correction)},
            {"kind", "quickfix"},
            {"isPreferred", true},
            {"diagnostics", Json::array({diagnosticOf(analysis, finding)})},
            {"edit", {{"changes", {{analysis.uri, Json::array({edit})}}}}}};
}

/// True if the client asks for quick fixes, or for whatever there is.
bool wantsQuickFixes(const Json& params) {
    const auto context = params.find("context");
    if (context == params.end() || !context->is_object()) return true;
    const auto only = context->find("only");
    if (only == context->end() || !only->is_array()) return true;
    static const Json kEverything = "";
    return std::any_of(only->begin(), only->end(),
                       [](const Json& kind) { return kind == "quickfix" || kind == kEverything; });
}

Json answerCodeAction(Session& session, const Json& params) {
    const PositionRange asked = rangeOf(fieldOf(params, "range"));
    const AnalysisPointer analysis = documentAsked(session, params);
    Json actions = Json::array();
    if (analysis == nullptr || !session.knowsCodeActions || !wantsQuickFixes(params)) {
        return actions;
    }
    const Range range = analysis->places.rangeOf(asked);
    for (const Finding& finding : analysis->findings()) {
        const bool isThere = finding.range.begin <= range.end && range.begin <= finding.range.end;
        if (isThere && finding.correction) actions.push_back(quickFixOf(*analysis, finding));
    }
    return actions;
}

// ---- Beginning ----

/// The value at the end of `path`; null where something is missing on the way.
const Json* lookUp(const Json& value, std::initializer_list<const char*> path) {
    const Json* at = &value;
    for (const char* name : path) {
        if (!at->is_object()) return nullptr;
        const auto found = at->find(name);
        if (found == at->end()) return nullptr;
        at = &*found;
    }
    return at;
}

bool isTrue(const Json& params, std::initializer_list<const char*> path) {
    const Json* value = lookUp(params, path);
    return value != nullptr && value->is_boolean() && value->get<bool>();
}

std::vector<std::string> foldersOf(const Json& params) {
    std::vector<std::string> folders;
    const auto add = [&](const Json* value, bool isUri) {
        if (value == nullptr || !value->is_string()) return;
        const auto text = value->get<std::string>();
        const std::string path = isUri ? pathOfUri(text) : text;
        if (!path.empty()) folders.push_back(path);
    };
    const Json* list = lookUp(params, {"workspaceFolders"});
    if (list != nullptr && list->is_array()) {
        for (const Json& folder : *list) add(lookUp(folder, {"uri"}), true);
    }
    if (folders.empty()) add(lookUp(params, {"rootUri"}), true);
    if (folders.empty()) add(lookUp(params, {"rootPath"}), false);
    return folders;
}

Json capabilitiesFor(const Session& session) {
    Json rename = true;
    if (session.preparesRenames) rename = {{"prepareProvider", true}};
    return {
        {"positionEncoding", "utf-16"},
        {"textDocumentSync", {{"openClose", true}, {"change", 2}, {"save", true}}},
        {"hoverProvider", true},
        {"completionProvider", completionCapability()},
        {"signatureHelpProvider", {{"triggerCharacters", {"(", ","}}}},
        {"definitionProvider", true},
        {"referencesProvider", true},
        {"documentHighlightProvider", true},
        {"documentSymbolProvider", true},
        {"foldingRangeProvider", true},
        {"renameProvider", rename},
        {"documentFormattingProvider", true},
        {"codeActionProvider", {{"codeActionKinds", {"quickfix"}}}},
        {"semanticTokensProvider",
         {{"legend", {{"tokenTypes", semanticTokenTypes()}, {"tokenModifiers", {"declaration"}}}},
          {"full", true}}},
    };
}

}  // namespace

Json answerInitialize(Session& session, const Json& params) {
    session.workspace.setFolders(foldersOf(params));
    session.knowsNestedSymbols = isTrue(params, {"capabilities", "textDocument", "documentSymbol",
                                                 "hierarchicalDocumentSymbolSupport"});
    session.knowsCodeActions = lookUp(params, {"capabilities", "textDocument", "codeAction",
                                               "codeActionLiteralSupport"}) != nullptr;
    session.preparesRenames =
        isTrue(params, {"capabilities", "textDocument", "rename", "prepareSupport"});
    readCompletionOptions(session, params);
    session.registersWatchers = isTrue(
        params, {"capabilities", "workspace", "didChangeWatchedFiles", "dynamicRegistration"});
    return {{"capabilities", capabilitiesFor(session)}, {"serverInfo", {{"name", "பொழில்-துணை"}}}};
}

/// A hint is shown as information: editors show their own hints as a few dots.
Json diagnosticOf(const Analysis& analysis, const Finding& finding) {
    int severity = 1;
    if (finding.severity == Severity::Warning) severity = 2;
    if (finding.severity == Severity::Hint) severity = 3;
    Json diagnostic = {{"range", jsonOf(analysis.places.rangeOf(finding.range))},
                       {"severity", severity},
                       {"source", "பொழில்"},
                       {"message", finding.message}};
    if (!finding.code.empty()) diagnostic["code"] = finding.code;
    return diagnostic;
}

const std::vector<Question>& questions() {
    static const std::vector<Question> rows = {
        {"textDocument/hover", answerHover},
        {"textDocument/completion", answerCompletion},
        {"textDocument/signatureHelp", answerSignatureHelp},
        {"textDocument/semanticTokens/full", answerSemanticTokens},
        {"textDocument/documentSymbol", answerDocumentSymbol},
        {"textDocument/foldingRange", answerFoldingRange},
        {"textDocument/definition", answerDefinition},
        {"textDocument/references", answerReferences},
        {"textDocument/documentHighlight", answerDocumentHighlight},
        {"textDocument/prepareRename", answerPrepareRename},
        {"textDocument/rename", answerRename},
        {"textDocument/formatting", answerFormatting},
        {"textDocument/codeAction", answerCodeAction},
    };
    return rows;
}

}  // namespace companion::language_server
