#include "companion/language_server/analysis.h"

#include "companion/language_server/uris.h"

namespace companion::language_server {

Analysis::Analysis(const Document& document, const Modules& modules)
    : Analysis(document.uri, document.path, document.version(), *document.text(), modules) {}

Analysis::Analysis(std::string path, std::string text, const Modules& modules)
    : Analysis(uriOfPath(path), path, 0, std::move(text), modules) {}

Analysis::Analysis(std::string uri, std::string path, int version, std::string text,
                   const Modules& modules)
    : uri(std::move(uri)),
      path(std::move(path)),
      version(version),
      // The compiler tells by an empty name that a fault is a module's.
      source(this->path.empty() ? "?" + this->uri : this->path, std::move(text)),
      places(source.text),
      compiled(source, modules.readerFor(this->path, &asked, &this->modules)) {}

const std::vector<Finding>& Analysis::findings() const {
    if (!foundFindings) foundFindings = checkSource(compiled);
    return *foundFindings;
}

const Code& Analysis::code() const {
    if (!readCode) readCode.emplace(source.text);
    return *readCode;
}

const std::vector<Declaration>& Analysis::outline() const {
    if (!readOutline) readOutline = outlineOf(code());
    return *readOutline;
}

const Names& Analysis::names() const {
    if (!foundNames) {
        foundNames = compiled.isParsed() ? namesOf(compiled) : namesOf(code(), outline());
    }
    return *foundNames;
}

}  // namespace companion::language_server
