// What is offered where ¦ stands in a source.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "companion/completion/completion.h"

namespace completion_test {

using companion::completion::CompletionItem;
using companion::completion::CompletionSettings;

struct Marked {
    std::string text;
    std::size_t offset;
};

inline Marked marked(std::string_view source) {
    constexpr std::string_view kMark = "¦";
    const std::size_t at = source.find(kMark);
    if (at == std::string_view::npos) throw std::logic_error("no ¦ in " + std::string(source));
    return {std::string(source.substr(0, at)) + std::string(source.substr(at + kMark.size())), at};
}

inline std::vector<CompletionItem> offered(std::string_view source,
                                           const CompletionSettings& settings = {},
                                           const companion::ModuleReader& readModule = {}) {
    const Marked place = marked(source);
    return companion::completion::completionsAt(place.text, place.offset, readModule, settings);
}

inline std::vector<std::string> labelsOf(const std::vector<CompletionItem>& items) {
    std::vector<std::string> labels;
    for (const CompletionItem& item : items) labels.push_back(item.label);
    return labels;
}

inline std::vector<std::string> labelsAt(std::string_view source) {
    return labelsOf(offered(source));
}

/// The place of `label` in the list, 0 first; -1 if it isn't there.
inline int rankIn(const std::vector<std::string>& labels, std::string_view label) {
    const auto found = std::find(labels.begin(), labels.end(), label);
    return found == labels.end() ? -1 : static_cast<int>(found - labels.begin());
}

inline std::string listed(const std::vector<std::string>& labels) {
    std::string text;
    for (std::size_t at = 0; at < labels.size() && at < 8; at++) text += " " + labels[at];
    return text;
}

}  // namespace completion_test
