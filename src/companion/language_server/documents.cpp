#include "companion/language_server/documents.h"

#include "companion/language_server/uris.h"

namespace companion::language_server {

Document::Document(std::string uri, int version, std::string text)
    : uri(std::move(uri)),
      path(pathOfUri(this->uri)),
      number(version),
      held(std::make_shared<const std::string>(std::move(text))) {}

void Document::change(int version, const std::vector<TextChange>& changes) {
    std::string text = *held;
    for (const TextChange& change : changes) {
        if (!change.range) {
            text = change.text;
            continue;
        }
        const Range range = TextPlaces(text).rangeOf(*change.range);
        text.replace(range.begin, range.end - range.begin, change.text);
    }
    number = version;
    held = std::make_shared<const std::string>(std::move(text));
}

Document& Documents::open(const std::string& uri, int version, std::string text) {
    auto& place = documents[uri];
    place = std::make_unique<Document>(uri, version, std::move(text));
    return *place;
}

Document* Documents::find(const std::string& uri) {
    const auto found = documents.find(uri);
    return found == documents.end() ? nullptr : found->second.get();
}

const Document* Documents::findByPath(const std::string& path) const {
    if (path.empty()) return nullptr;
    for (const auto& [uri, document] : documents) {
        if (document->path == path) return document.get();
    }
    return nullptr;
}

}  // namespace companion::language_server
