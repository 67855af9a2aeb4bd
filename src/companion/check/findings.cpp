#include "companion/check/findings.h"

#include <algorithm>
#include <tuple>

#include "companion/check/rules.h"

namespace companion {

namespace {

constexpr std::string_view kCommentMark = "ஃ";
constexpr std::string_view kOwnCodes = "துணை-";

}  // namespace

void Findings::add(std::string_view code, Range range, const std::vector<std::string>& parts) {
    const Rule& rule = ruleOf(code);
    std::string message = messageOf(rule, parts);
    if (rule.severity != Severity::Error) {
        message += " (தெரிந்தே எழுதியதா? வரியின் முடிவில்: ஃ " + std::string(code) + ")";
    }
    entries.push_back({range, rule.severity, std::string(code), std::move(message)});
}

void Findings::add(Severity severity, const std::string& code, Range range,
                   const std::string& message) {
    entries.push_back({range, severity, code, message});
}

bool Findings::hasErrors() const {
    return std::any_of(entries.begin(), entries.end(),
                       [](const Entry& entry) { return entry.severity == Severity::Error; });
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
    for (const Entry* entry : sorted) {
        const Place begin = source.placeOf(entry->range.begin);
        const Place end = source.placeOf(std::max(entry->range.begin, entry->range.end));
        findings.push_back({begin.line, begin.column, end.line, end.column, entry->severity,
                            entry->code, entry->message});
    }
    return findings;
}

/// A comment behind the finding, in its line, that names its code. The compiler's own refusals
/// can't be silenced.
bool Findings::isSilenced(const Entry& entry) const {
    if (entry.code.rfind(kOwnCodes, 0) != 0) return false;
    const Range line = source.rangeOfLine(source.placeOf(entry.range.begin).line);
    const std::string_view text = source.slice(line);
    const std::size_t comment = text.rfind(kCommentMark);
    return comment != std::string_view::npos &&
           text.find(entry.code, comment) != std::string_view::npos;
}

}  // namespace companion
