// An import of the very file that it stands in.
#include <filesystem>

#include "companion/check/emission/walk.h"
#include "files.h"

namespace companion {

std::optional<Range> findImportOfItself(const CompiledSource& compiled) {
    const std::string own = std::filesystem::u8path(compiled.source.path).filename().u8string();
    for (std::size_t at = 0; at + 1 < compiled.tokens.size(); at++) {
        const Token& path = compiled.tokens[at + 1];
        if (compiled.tokens[at].text != "நூஇறக்கி" || path.type != TokenType::STRING) continue;
        if (path.text == own || path.text + ".பொழில்" == own) {
            return compiled.rangeOfToken(static_cast<int>(at) + 1);
        }
    }
    return std::nullopt;
}

}  // namespace companion
