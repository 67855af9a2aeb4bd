// Names as readers see them: letters instead of bytes, and how far two names are from each other.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace companion {

/// A letter: its consonant or vowel, and the sign behind it if there is one.
struct Letter {
    std::string_view base;
    std::string_view sign;
};

/// The letters of `text`; both parts point into it.
std::vector<Letter> lettersOf(std::string_view text);

/// How many changes lead from one name to the other, in halves: another sign on the same letter,
/// or a letter that sounds alike, is half of a change.
int distanceBetween(std::string_view one, std::string_view other);

/// The name of `known` that `name` was most likely meant to be; nothing if none is near.
std::optional<std::string> nearestName(std::string_view name, const std::set<std::string>& known);

/// The same for a program that may ask often: each name is looked for once, and only so many.
class NearNames {
public:
    explicit NearNames(std::set<std::string> known) : known(std::move(known)) {}
    std::optional<std::string> to(const std::string& name) const;

private:
    static constexpr std::size_t kMostAsked = 50;
    std::set<std::string> known;
    mutable std::map<std::string, std::optional<std::string>> asked;
};

}  // namespace companion
