// Gathers what the rules find in one source.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "companion/check/finding.h"
#include "companion/check/source_text.h"

namespace companion {

class Findings {
public:
    /// `source` must outlive it.
    explicit Findings(const SourceText& source) : source(source) {}

    /// A finding of the rule `code`; `parts` fill the marks of its message.
    void add(std::string_view code, Range range, const std::vector<std::string>& parts = {});
    /// The same for a slip that can be put right by `correction` alone.
    void add(std::string_view code, Range range, const std::vector<std::string>& parts,
             Correction correction);
    /// One in other words: a refusal of the compiler.
    void add(Severity severity, const std::string& code, Range range, const std::string& message,
             std::optional<Correction> correction = std::nullopt);

    /// True if an error stands there that no comment silences.
    bool hasErrors() const;
    /// True if a rule whose code begins with `prefix` found something that touches `range`.
    bool holds(std::string_view prefix, Range range) const;

    /// All of them in the order of their places, each once, without those that a comment in their
    /// line names.
    std::vector<Finding> inOrder() const;

private:
    struct Entry {
        Range range;
        Severity severity;
        std::string code;
        std::string message;
        std::optional<Correction> correction;
    };
    bool isSilenced(const Entry& entry) const;
    std::string_view commentBehind(std::size_t offset) const;
    static bool isToldNearby(const std::vector<const Entry*>& sorted, std::size_t at);
    static bool isLeftOutFor(const Entry& entry, const Entry& other);

    const SourceText& source;
    std::vector<Entry> entries;
    mutable std::optional<Range> lastLine;  ///< The one that was looked at last.
    mutable std::string_view lastComment;
};

}  // namespace companion
