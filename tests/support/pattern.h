// Regular expressions for tests. Their library is a template, which each file that includes it
// builds anew: a fifth of what a unit of tests takes.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What was found: the whole text first, then the groups. One that took no part is empty.
struct Match {
    std::vector<std::string> groups;
    std::size_t position;  ///< In bytes.

    const std::string& operator[](std::size_t group) const { return groups.at(group); }
};

/// An expression in ECMAScript's form, as std::regex takes it, which throws what it throws.
class Pattern {
public:
    explicit Pattern(const std::string& expression);

    bool isIn(const std::string& text) const;
    bool isWhole(const std::string& text) const;
    std::optional<Match> first(const std::string& text) const;
    std::vector<Match> all(const std::string& text) const;
    /// `text` with each match replaced; "$1" in `replacement` is the first group.
    std::string replaced(const std::string& text, const std::string& replacement) const;

private:
    struct Compiled;
    std::shared_ptr<const Compiled> compiled;
};
