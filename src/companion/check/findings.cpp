#include "companion/check/findings.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include "companion/check/rules.h"

namespace companion {

namespace {

constexpr std::string_view kCommentMark = "ஃ";
constexpr std::string_view kOwnCodes = "துணை-";
constexpr std::string_view kMarkCodes = "துணை-1";

/// Rules that see one slip from two sides: by its words, and by what must come of it.
struct SameSlip {
    std::string_view told;
    std::string_view left;  ///< Left out where `told` stands at the same place.
};
constexpr SameSlip kSameSlips[] = {
    {"துணை-511", "துணை-592"}, {"துணை-525", "துணை-406"}, {"துணை-517", "துணை-516"},
    {"துணை-521", "துணை-582"}, {"துணை-521", "துணை-581"}, {"துணை-522", "துணை-581"},
    {"துணை-522", "துணை-583"}, {"துணை-535", "துணை-583"}, {"துணை-523", "துணை-583"},
    {"துணை-523", "துணை-582"}, {"துணை-524", "துணை-583"},
};

}  // namespace

void Findings::add(std::string_view code, Range range, const std::vector<std::string>& parts) {
    const Rule& rule = ruleOf(code);
    std::string message = messageOf(rule, parts);
    if (rule.severity != Severity::Error) {
        message += " (தெரிந்தே எழுதியதா? வரியின் முடிவில்: ஃ " + std::string(code) + ")";
    }
    entries.push_back({range, rule.severity, std::string(code), std::move(message), {}});
}

void Findings::add(std::string_view code, Range range, const std::vector<std::string>& parts,
                   Correction correction) {
    add(code, range, parts);
    entries.back().correction = std::move(correction);
}

void Findings::add(Severity severity, const std::string& code, Range range,
                   const std::string& message, std::optional<Correction> correction) {
    entries.push_back({range, severity, code, message, std::move(correction)});
}

bool Findings::hasErrors() const {
    return std::any_of(entries.begin(), entries.end(), [&](const Entry& entry) {
        return entry.severity == Severity::Error && !isSilenced(entry);
    });
}

bool Findings::holds(std::string_view prefix, Range range) const {
    return std::any_of(entries.begin(), entries.end(), [&](const Entry& entry) {
        return std::string_view(entry.code).substr(0, prefix.size()) == prefix &&
               entry.range.begin <= range.end && range.begin <= entry.range.end;
    });
}

std::vector<Finding> Findings::inOrder() const {
    std::vector<const Entry*> sorted;
    for (const Entry& entry : entries) {
        if (!isSilenced(entry)) sorted.push_back(&entry);
    }
    const auto key = [](const Entry* entry) {
        return std::tie(entry->range.begin, entry->range.end, entry->code, entry->message);
    };
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const Entry* a, const Entry* b) { return key(a) < key(b); });
    sorted.erase(std::unique(sorted.begin(), sorted.end(),
                             [&](const Entry* a, const Entry* b) { return key(a) == key(b); }),
                 sorted.end());

    std::vector<Finding> findings;
    for (std::size_t at = 0; at < sorted.size(); at++) {
        const Entry* entry = sorted[at];
        if (isToldNearby(sorted, at)) continue;
        const Place begin = source.placeOf(entry->range.begin);
        const Place end = source.placeOf(std::max(entry->range.begin, entry->range.end));
        const Range range{entry->range.begin, std::max(entry->range.begin, entry->range.end)};
        findings.push_back({begin.line, begin.column, end.line, end.column, entry->severity,
                            entry->code, entry->message, range, entry->correction});
    }
    return findings;
}

/// What overlaps a finding stands beside it in the order of the places.
bool Findings::isToldNearby(const std::vector<const Entry*>& sorted, std::size_t at) {
    constexpr std::size_t kReach = 12;
    const std::size_t first = at < kReach ? 0 : at - kReach;
    const std::size_t last = std::min(sorted.size(), at + kReach);
    for (std::size_t other = first; other < last; other++) {
        if (other != at && isLeftOutFor(*sorted[at], *sorted[other])) return true;
    }
    return false;
}

/// One slip is told once: a warning gives way to an error at its very place.
bool Findings::isLeftOutFor(const Entry& entry, const Entry& other) {
    const auto isSlip = [](const Entry& told, const Entry& left) {
        return std::any_of(std::begin(kSameSlips), std::end(kSameSlips), [&](const SameSlip& slip) {
            return told.code == slip.told && left.code == slip.left;
        });
    };
    const bool overlaps =
        entry.range.begin < other.range.end && other.range.begin < entry.range.end;
    if (overlaps && isSlip(other, entry)) return true;
    const bool followsFromMark = other.code.rfind(kMarkCodes, 0) == 0 &&
                                 entry.code.rfind(kMarkCodes, 0) != 0 &&
                                 other.severity == Severity::Error;
    if (overlaps && followsFromMark && entry.severity != Severity::Error) return true;
    const bool isSamePlace =
        entry.range.begin == other.range.begin && entry.range.end == other.range.end;
    const bool isMark = entry.code.rfind(kMarkCodes, 0) == 0;  // it is why the other stands there
    return isSamePlace && !isMark && entry.severity == Severity::Warning &&
           other.severity == Severity::Error && !isSlip(entry, other);
}

/// A comment behind the finding, in its line, that names its code. The compiler's own refusals
/// can't be silenced.
bool Findings::isSilenced(const Entry& entry) const {
    if (entry.code.rfind(kOwnCodes, 0) != 0) return false;
    return commentBehind(entry.range.begin).find(entry.code) != std::string_view::npos;
}

/// The comment at the end of the line of `offset`. A line may hold thousands of findings.
std::string_view Findings::commentBehind(std::size_t offset) const {
    const bool isKnown = lastLine && lastLine->begin <= offset && offset <= lastLine->end;
    if (!isKnown) {
        lastLine = source.rangeOfLine(source.placeOf(offset).line);
        const std::string_view text = source.slice(*lastLine);
        lastComment = text.substr(std::min(text.rfind(kCommentMark), text.size()));
    }
    return lastComment;
}

}  // namespace companion
