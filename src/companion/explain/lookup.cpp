#include "companion/explain/lookup.h"

#include <algorithm>
#include <cctype>

#include "companion/descriptions/description.h"
#include "companion/explain/pages.h"
#include "companion/explain/spelling.h"
#include "lexer/utf8.h"

namespace companion {

namespace {

constexpr std::size_t kMostNear = 5;
constexpr int kMostChanges = 2;
constexpr std::size_t kCodeDigits = 3;

bool isAllLatin(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::string inLowerCase(std::string_view text) {
    std::string lower(text);
    for (char& byte : lower) {
        byte = static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
    }
    return lower;
}

/// What is left of `அச்சிடு(...)`, `எனில்:` and `.சேர்`: the word.
std::string_view bareWord(std::string_view asked) {
    while (!asked.empty() && asked.front() == '.') asked.remove_prefix(1);
    const std::size_t end = asked.find_first_of("(:");
    return end == 0 ? asked : asked.substr(0, end);
}

/// Calls `look` with every word, every property and every value, in their order.
template <typename Look>
void eachDescription(Look look) {
    for (const auto* words : {&wordDescriptions(), &widgetDescriptions()}) {
        for (const Description& word : *words) look(word);
    }
    for (const PropertyDescription& property : propertyDescriptions()) look(property);
    for (const ValueDescription& value : valueDescriptions()) look(value);
}

/// Gathers the pages of what fits. What is told of one property is one page.
template <typename Fits>
class FittingPages {
public:
    explicit FittingPages(Fits fits) : fits(fits) {}
    template <typename Described>
    void operator()(const Described& described) {
        if (fits(described)) pages.push_back(pageOf(described));
    }
    void operator()(const PropertyDescription& property) {
        if (!fits(property)) return;
        const auto same = [&](const auto& known) { return known.at(0).word == property.word; };
        const auto known = std::find_if(properties.begin(), properties.end(), same);
        if (known == properties.end()) {
            properties.push_back({property});
        } else {
            known->push_back(property);
        }
    }
    std::vector<Page> all() {
        for (const auto& meanings : properties) pages.push_back(pageOf(meanings));
        return std::move(pages);
    }

private:
    Fits fits;
    std::vector<Page> pages;
    std::vector<std::vector<PropertyDescription>> properties;
};

template <typename Fits>
std::vector<Page> pagesWhere(Fits fits) {
    FittingPages<Fits> found(fits);
    eachDescription([&](const auto& described) { found(described); });
    return found.all();
}

/// True if one of the names, which commas separate, is `asked`.
bool namesInclude(std::string_view names, std::string_view asked) {
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(','), names.size());
        if (names.substr(0, end) == asked) return true;
        names.remove_prefix(std::min(end + 1, names.size()));
        while (!names.empty() && names.front() == ' ') names.remove_prefix(1);
    }
    return false;
}

/// The three digits that a code ends in; empty if `asked` is no code.
std::string_view digitsOf(std::string_view asked) {
    if (asked.size() < kCodeDigits) return {};
    const std::string_view digits = asked.substr(asked.size() - kCodeDigits);
    const bool areDigits = std::all_of(digits.begin(), digits.end(), [](char byte) {
        return std::isdigit(static_cast<unsigned char>(byte)) != 0;
    });
    return areDigits ? digits : std::string_view();
}

/// True if `asked` is the code of `digits` behind either prefix.
bool isCode(std::string_view asked, std::string_view digits, const char* tamil, const char* latin) {
    const std::string lower = inLowerCase(asked);
    return lower == tamil + std::string(digits) || lower == latin + std::string(digits);
}

std::vector<Page> pagesForCode(std::string_view asked) {
    const std::string_view digits = digitsOf(asked);
    if (digits.empty()) return {};
    const bool isBare = digits.size() == asked.size();
    std::vector<Page> pages;
    if (isBare || isCode(asked, digits, "பொழில்-", "pozhil-")) {
        for (const CodeDescription& code : codeDescriptions()) {
            if (code.digits == digits) pages.push_back(pageOf(code));
        }
    }
    if (isBare || isCode(asked, digits, "துணை-", "thunai-")) {
        for (const Rule& rule : allRules()) {
            if (digitsOf(rule.code) == digits) pages.push_back(pageOf(rule));
        }
    }
    return pages;
}

}  // namespace

std::vector<Page> pagesFor(std::string_view asked) {
    auto pages = pagesForCode(asked);
    if (!pages.empty()) return pages;
    for (const std::string_view word :
         {asked, bareWord(asked), asked.substr(asked.rfind('.') + 1)}) {
        if (word.empty()) continue;
        pages = pagesWhere([&](const auto& described) { return described.word == word; });
        if (!pages.empty()) return pages;
    }
    if (!isAllLatin(asked)) return {};
    const std::string lower = inLowerCase(bareWord(asked));
    pages =
        pagesWhere([&](const auto& described) { return namesInclude(described.english, lower); });
    if (!pages.empty()) return pages;
    for (const std::string& sound : soundsOf(lower)) {
        pages = pagesWhere([&](const auto& described) {
            return !sound.empty() && soundOf(described.word) == sound;
        });
        if (!pages.empty()) break;
    }
    return pages;
}

std::vector<std::string> nearestTo(std::string_view asked) {
    const std::string word(bareWord(asked));
    const bool bySound = isAllLatin(word);
    const std::string wanted = bySound ? soundOf(inLowerCase(word)) : word;
    const auto length = static_cast<int>(splitCodePoints(wanted).size());
    std::vector<std::pair<int, std::string>> near;
    eachDescription([&](const auto& described) {
        const std::string known = bySound ? soundOf(described.word) : std::string(described.word);
        const int distance = editDistance(known, wanted);
        if (distance <= kMostChanges && 2 * distance < length) {
            near.emplace_back(distance, std::string(described.word));
        }
    });
    std::stable_sort(near.begin(), near.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string> words;
    for (auto& entry : near) {
        const bool isKnown = std::find(words.begin(), words.end(), entry.second) != words.end();
        if (!isKnown && words.size() < kMostNear) words.push_back(std::move(entry.second));
    }
    return words;
}

}  // namespace companion
