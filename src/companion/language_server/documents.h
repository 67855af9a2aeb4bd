// The open documents as the editor has them, not as they stand on the disk.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "companion/language_server/text_places.h"

namespace companion::language_server {

/// One change: a stretch and what stands in its place; without a stretch the whole text.
struct TextChange {
    std::optional<PositionRange> range;
    std::string text;
};

class Document {
public:
    Document(std::string uri, int version, std::string text);

    /// The changes follow each other: each tells places of the text that the one before left.
    void change(int version, const std::vector<TextChange>& changes);

    const std::string uri;
    const std::string path;  ///< Empty for a document that is no file.

    int version() const { return number; }
    /// Never changed: what holds it keeps it, even when the document goes on.
    const std::shared_ptr<const std::string>& text() const { return held; }

private:
    int number;
    std::shared_ptr<const std::string> held;
};

class Documents {
public:
    /// A document that is open already is opened anew.
    Document& open(const std::string& uri, int version, std::string text);
    void close(const std::string& uri) { documents.erase(uri); }

    /// Null for a document that isn't open.
    Document* find(const std::string& uri);
    const Document* findByPath(const std::string& path) const;

    const std::map<std::string, std::unique_ptr<Document>>& all() const { return documents; }

private:
    std::map<std::string, std::unique_ptr<Document>> documents;
};

}  // namespace companion::language_server
