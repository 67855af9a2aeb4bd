#include "companion/publish/release_text.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace companion {

namespace {

/// A piece of the fixed text, and what stands in its place.
struct Edit {
    std::string_view from;
    std::string_view to;
};

constexpr Edit kFontOfNet = {
    "@import url('https://fonts.googleapis.com/css2?family=Noto+Sans+Tamil:wght@400;700&display=swap');",
    ""};

/// To look for errors means to wait for the graphics processor, many times in each frame.
constexpr Edit kLooksForErrors = {"NVG_STENCIL_STROKES | NVG_DEBUG", "NVG_STENCIL_STROKES"};

/// The fixed text stands behind the program's own, in which the same may be written.
void apply(const Edit& edit, std::string& code) {
    const std::size_t at = code.rfind(edit.from);
    if (at == std::string::npos) {
        throw std::logic_error("not in the text: " + std::string(edit.from));
    }
    code.replace(at, edit.from.size(), edit.to);
}

bool endsIn(const std::string& text, std::string_view ending) {
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

}  // namespace

std::string releaseText(std::string code, TamilFont font) {
    apply(kLooksForErrors, code);
    if (font == TamilFont::OfPage) apply(kFontOfNet, code);
    return code;
}

std::vector<std::string> scriptsOfOtherHosts(const std::string& code) {
    constexpr std::string_view kBegin = ".src = 'https://";
    constexpr std::size_t kBeforeAddress = std::string_view(".src = '").size();
    std::vector<std::string> addresses;
    for (std::size_t at = code.find(kBegin); at != std::string::npos;
         at = code.find(kBegin, at + 1)) {
        const std::size_t begin = at + kBeforeAddress;
        const std::string address = code.substr(begin, code.find('\'', begin) - begin);
        const bool isNew =
            std::find(addresses.begin(), addresses.end(), address) == addresses.end();
        if (endsIn(address, ".js") && isNew) addresses.push_back(address);
    }
    return addresses;
}

}  // namespace companion
