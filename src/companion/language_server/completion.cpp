#include "companion/language_server/completion.h"

#include <algorithm>

#include "companion/completion/completion.h"
#include "companion/completion/module_paths.h"
#include "companion/language_server/uris.h"

namespace companion::language_server {

namespace {

using completion::CompletionItem;
using completion::CompletionSettings;
using completion::ItemKind;

constexpr const char* kQuote = "\"";
constexpr int kSnippetFormat = 2;
constexpr int kAdjustIndentation = 2;
/// A list of folders is read at most so often.
constexpr std::chrono::seconds kFoldersAreKept{5};

int kindOf(ItemKind kind) {
    switch (kind) {
        case ItemKind::Keyword: return 14;
        case ItemKind::Operator: return 24;
        case ItemKind::Function: return 3;
        case ItemKind::Method: return 2;
        case ItemKind::Variable: return 6;
        case ItemKind::Field: return 5;
        case ItemKind::Structure: return 22;
        case ItemKind::Enumeration: return 13;
        case ItemKind::EnumerationMember: return 20;
        case ItemKind::Module: return 9;
        case ItemKind::Widget: return 7;
        case ItemKind::Property: return 10;
        case ItemKind::Value: return 12;
        case ItemKind::Colour: return 16;
        case ItemKind::Text: return 1;
    }
    return 1;
}

Json itemOf(const Session& session, const TextPlaces& places, const CompletionItem& item) {
    const bool isSnippet = session.completion.knowsSnippets && !item.snippet.empty();
    Json json = {{"label", item.label},
                 {"kind", kindOf(item.kind)},
                 {"filterText", item.filterText},
                 {"sortText", item.sortText},
                 {"textEdit",
                  {{"range", jsonOf(places.rangeOf(item.replaced))},
                   {"newText", isSnippet ? item.snippet : item.inserted}}}};
    if (!item.detail.empty()) json["detail"] = item.detail;
    if (!item.documentation.empty()) json["documentation"] = item.documentation;
    if (isSnippet) json["insertTextFormat"] = kSnippetFormat;
    if (isSnippet && session.completion.knowsIndentation) {
        json["insertTextMode"] = kAdjustIndentation;
    }
    return json;
}

/// The modules beside the document, in the open folders and in the library.
std::vector<std::string> modulePathsFor(Session& session, const std::string& path) {
    std::vector<std::string> folders = session.workspace.openFolders();
    if (!path.empty()) folders.insert(folders.begin(), folderOf(path));
    folders.push_back(completion::moduleLibraryFolder());
    std::vector<std::string> paths;
    for (const std::string& folder : folders) {
        for (std::string& module : completion::modulePathsIn(folder)) {
            const bool isKnown = std::find(paths.begin(), paths.end(), module) != paths.end();
            if (!isKnown) paths.push_back(std::move(module));
        }
    }
    return paths;
}

/// The same again while one types a path.
const std::vector<std::string>& keptModulePaths(Session& session, const std::string& path) {
    CompletionState& state = session.completion;
    const bool isOld = session.now - state.listedAt >= kFoldersAreKept || state.listedFor != path;
    if (!state.isListed || isOld) {
        state.modulePaths = modulePathsFor(session, path);
        state.isListed = true;
        state.listedAt = session.now;
        state.listedFor = path;
    }
    return state.modulePaths;
}

const Json* fieldIn(const Json& object, const char* name) {
    if (!object.is_object()) return nullptr;
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

/// True if the list opens because of the character `typed`.
bool wasOpenedBy(const Json& params, const char* typed) {
    const Json* context = fieldIn(params, "context");
    const Json* character = context == nullptr ? nullptr : fieldIn(*context, "triggerCharacter");
    return character != nullptr && *character == typed;
}

}  // namespace

/// The text alone is asked, not the compiler: an answer has to be there before the next letter.
Json answerCompletion(Session& session, const Json& params) {
    const Position position = positionOf(fieldOf(params, "position"));
    const auto& documents = session.workspace.openDocuments().all();
    const auto document = documents.find(documentUriOf(params));
    if (document == documents.end()) return nullptr;
    const std::string& text = *document->second->text();
    const std::string& path = document->second->path;
    const TextPlaces places(text);
    const std::size_t offset = places.offsetOf(position);

    CompletionSettings settings;
    settings.transliterates = session.completion.transliterates;
    settings.inTextsAlone = wasOpenedBy(params, kQuote);
    settings.modulePaths = [&] { return keptModulePaths(session, path); };
    Json items = Json::array();
    for (const CompletionItem& item : completion::completionsAt(
             text, offset, session.workspace.moduleReaderFor(path), settings)) {
        items.push_back(itemOf(session, places, item));
    }
    return {{"isIncomplete", true}, {"items", std::move(items)}};
}

/// A colon or parenthesis would open a list where the next key is the line's end, which chooses.
Json completionCapability() { return {{"triggerCharacters", {".", kQuote}}}; }

void readCompletionOptions(Session& session, const Json& params) {
    const Json* item = &params;
    for (const char* name : {"capabilities", "textDocument", "completion", "completionItem"}) {
        item = fieldIn(*item, name);
        if (item == nullptr) break;
    }
    if (item != nullptr) {
        const Json* snippets = fieldIn(*item, "snippetSupport");
        session.completion.knowsSnippets = snippets != nullptr && *snippets == true;
        const Json* modes = fieldIn(*item, "insertTextModeSupport");
        const Json* set = modes == nullptr ? nullptr : fieldIn(*modes, "valueSet");
        session.completion.knowsIndentation =
            set != nullptr && set->is_array() &&
            std::find(set->begin(), set->end(), kAdjustIndentation) != set->end();
    }
    const Json* capabilities = fieldIn(params, "capabilities");
    const Json* workspace = capabilities == nullptr ? nullptr : fieldIn(*capabilities, "workspace");
    const Json* asked = workspace == nullptr ? nullptr : fieldIn(*workspace, "configuration");
    session.completion.tellsSettings = asked != nullptr && *asked == true;
    if (const Json* options = fieldIn(params, "initializationOptions")) {
        readCompletionSettings(session, *options);
    }
}

void readCompletionSettings(Session& session, const Json& settings) {
    const Json* own = fieldIn(settings, "pozhil");
    const Json* value = fieldIn(own == nullptr ? settings : *own, "transliteration");
    if (value != nullptr && value->is_boolean()) {
        session.completion.transliterates = value->get<bool>();
    }
}

}  // namespace companion::language_server
