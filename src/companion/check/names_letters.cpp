#include "companion/check/names_letters.h"

#include <algorithm>
#include <unordered_map>

#include "lexer/utf8.h"

namespace companion {

namespace {

constexpr int kChange = 2;
constexpr int kHalfChange = 1;

/// Letters that are taken for each other, by ear or by eye, with the number of their group.
const std::unordered_map<std::string_view, int> kAlike = {
    {"ந", 1}, {"ன", 1}, {"ண", 1}, {"ல", 2}, {"ள", 2}, {"ழ", 2}, {"ர", 3}, {"ற", 3}, {"அ", 4},
    {"ஆ", 4}, {"இ", 5}, {"ஈ", 5}, {"உ", 6}, {"ஊ", 6}, {"எ", 7}, {"ஏ", 7}, {"ஒ", 8}, {"ஓ", 8},
};

/// Vowel signs, the dot, and the mark of length: what sits on the letter before it.
bool isSign(std::string_view codePoint) {
    if (codePoint.size() != 3 || codePoint[0] != '\xE0') return false;
    if (codePoint[1] == '\xAF') return codePoint[2] <= '\x8D' || codePoint[2] == '\x97';
    return codePoint[1] == '\xAE' && codePoint[2] >= '\xBE';
}

bool areAlike(std::string_view one, std::string_view other) {
    const auto group = kAlike.find(one);
    if (group == kAlike.end()) return false;
    const auto same = kAlike.find(other);
    return same != kAlike.end() && same->second == group->second;
}

int costOf(const Letter& one, const Letter& other) {
    const int sign = one.sign == other.sign ? 0 : kHalfChange;
    if (one.base == other.base) return sign;
    return areAlike(one.base, other.base) ? std::min(kHalfChange + sign, kChange) : kChange;
}

/// A name of few letters is near to many: less is allowed.
int allowedDistance(std::size_t letters) {
    if (letters < 2) return 0;
    if (letters < 3) return kHalfChange;
    return letters < 6 ? kChange : 2 * kChange;
}

/// True if the number of their bytes alone keeps two names `distance` halves apart: half of a
/// change brings one sign, or half of a letter with its sign.
bool differInLength(std::string_view one, std::string_view other, int distance) {
    constexpr std::size_t kBytesOfHalf = 3;
    const std::size_t longer = std::max(one.size(), other.size());
    const std::size_t shorter = std::min(one.size(), other.size());
    return longer - shorter > kBytesOfHalf * static_cast<std::size_t>(distance - 1);
}

}  // namespace

std::vector<Letter> lettersOf(std::string_view text) {
    std::vector<Letter> letters;
    std::size_t at = 0;
    for (const std::string_view codePoint : splitCodePoints(text)) {
        if (isSign(codePoint) && !letters.empty()) {
            Letter& last = letters.back();
            const std::size_t begin = at - last.sign.size();
            last.sign = text.substr(begin, last.sign.size() + codePoint.size());
        } else {
            letters.push_back({codePoint, {}});
        }
        at += codePoint.size();
    }
    return letters;
}

int distanceBetween(std::string_view one, std::string_view other) {
    const std::vector<Letter> from = lettersOf(one);
    const std::vector<Letter> to = lettersOf(other);
    std::vector<int> row(to.size() + 1);
    for (std::size_t i = 0; i <= to.size(); i++) row[i] = static_cast<int>(i) * kChange;
    for (const Letter& letter : from) {
        int diagonal = row[0];
        row[0] += kChange;
        for (std::size_t i = 0; i < to.size(); i++) {
            const int replaced = diagonal + costOf(letter, to[i]);
            diagonal = row[i + 1];
            row[i + 1] = std::min({replaced, row[i] + kChange, diagonal + kChange});
        }
    }
    return row.back();
}

std::optional<std::string> nearestName(std::string_view name, const std::set<std::string>& known) {
    std::optional<std::string> nearest;
    int smallest = allowedDistance(lettersOf(name).size()) + 1;
    for (const std::string& candidate : known) {
        if (candidate == name || differInLength(name, candidate, smallest)) continue;
        const int distance = distanceBetween(name, candidate);
        if (distance >= smallest) continue;
        smallest = distance;
        nearest = candidate;
    }
    return nearest;
}

std::optional<std::string> NearNames::to(const std::string& name) const {
    const auto found = asked.find(name);
    if (found != asked.end()) return found->second;
    if (asked.size() >= kMostAsked) return std::nullopt;
    return asked[name] = nearestName(name, known);
}

}  // namespace companion
