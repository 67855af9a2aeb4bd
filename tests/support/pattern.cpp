#include "support/pattern.h"

#include <regex>

struct Pattern::Compiled {
    std::regex expression;
};

namespace {

Match noted(const std::smatch& found) {
    return {{found.begin(), found.end()}, static_cast<std::size_t>(found.position())};
}

}  // namespace

Pattern::Pattern(const std::string& expression)
    : compiled(std::make_shared<Compiled>(Compiled{std::regex(expression)})) {}

bool Pattern::isIn(const std::string& text) const {
    return std::regex_search(text, compiled->expression);
}

bool Pattern::isWhole(const std::string& text) const {
    return std::regex_match(text, compiled->expression);
}

std::optional<Match> Pattern::first(const std::string& text) const {
    std::smatch found;
    if (!std::regex_search(text, found, compiled->expression)) return std::nullopt;
    return noted(found);
}

std::vector<Match> Pattern::all(const std::string& text) const {
    std::vector<Match> matches;
    for (std::sregex_iterator at(text.begin(), text.end(), compiled->expression), end; at != end;
         ++at) {
        matches.push_back(noted(*at));
    }
    return matches;
}

std::string Pattern::replaced(const std::string& text, const std::string& replacement) const {
    return std::regex_replace(text, compiled->expression, replacement);
}
