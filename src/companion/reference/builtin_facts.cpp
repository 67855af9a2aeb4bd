#include "companion/reference/builtin_facts.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "companion/check/calls_builtins.h"
#include "companion/reference/word_bytes.h"
#include "emitted_text.h"
#include "generator/known_words.h"
#include "generator/result_kinds.h"

namespace companion::reference {

namespace {

constexpr std::string_view kCast = "std::any_cast<";
constexpr std::string_view kCalled = "fn_";
constexpr std::string_view kCodePrefix = "பொழில்-";
constexpr std::size_t kCodeDigits = 3;

/// The emitted blocks that define what built-in calls call.
const std::string_view kBlocks[] = {
    emitted::any_to_string, emitted::conversion, emitted::element_access, emitted::files,
    emitted::input,         emitted::length,     emitted::removal,        emitted::rounding,
    emitted::scrolling,     emitted::text,       emitted::time,
};

/// std::any_cast<T>($A) -> T.
std::string castAround(std::string_view text, std::size_t mark) {
    const std::string_view before = text.substr(0, mark);
    const std::size_t cast = before.rfind(kCast);
    if (cast == std::string_view::npos) return "";
    const std::string_view type = before.substr(cast + kCast.size());
    const std::size_t end = type.find('>');
    return type.substr(end) == ">(" ? std::string(type.substr(0, end)) : "";
}

std::vector<ArgumentFact> argumentsIn(std::string_view text) {
    std::vector<ArgumentFact> arguments;
    for (char letter = 'A'; letter <= 'C'; letter++) {
        const std::size_t mark = text.find(std::string("$") + letter);
        if (mark != std::string_view::npos) arguments.push_back({letter, castAround(text, mark)});
    }
    return arguments;
}

std::set<std::string> calledIn(std::string_view text) {
    std::set<std::string> names;
    for (std::size_t at = text.find(kCalled); at != std::string_view::npos;
         at = text.find(kCalled, at + 1)) {
        const auto* const end = std::find_if_not(text.begin() + at, text.end(), isWordByte);
        names.insert(std::string(text.begin() + at, end));
    }
    return names;
}

/// The bodies of the functions `name` that the blocks define: from the line that opens one to a
/// brace at a line's begin.
std::string bodiesOf(const std::string& name) {
    std::string bodies;
    const std::string opening = " " + name + "(";
    for (const std::string_view block : kBlocks) {
        for (std::size_t at = block.find(opening); at != std::string_view::npos;
             at = block.find(opening, at + 1)) {
            const std::size_t line = block.rfind('\n', at) + 1;
            const bool isDefinition =
                block[line] != ' ' && block.find('{', at) < block.find(';', at);
            if (isDefinition) bodies += block.substr(at, block.find("\n}", at) - at);
        }
    }
    if (bodies.empty()) throw std::logic_error(name + " is defined nowhere");
    return bodies;
}

std::vector<std::string> codesRaisedBy(std::string_view text) {
    std::set<std::string> codes;
    for (const std::string& name : calledIn(text)) {
        const std::string bodies = bodiesOf(name);
        for (std::size_t at = bodies.find(kCodePrefix); at != std::string::npos;
             at = bodies.find(kCodePrefix, at + 1)) {
            codes.insert(bodies.substr(at, kCodePrefix.size() + kCodeDigits));
        }
    }
    return {codes.begin(), codes.end()};
}

}  // namespace

BuiltinFacts factsOf(std::string_view name) {
    const BuiltinCall* call = builtinCall(name);
    const std::string_view text = builtinText(name);
    if (call == nullptr || text.empty())
        throw std::logic_error(std::string(name) + " isn't built in");
    std::vector<std::string> codes = codesRaisedBy(text);
    if (call->most < kAnyCount) codes.emplace_back("பொழில்-331");
    std::sort(codes.begin(), codes.end());
    return {call->least, call->most, argumentsIn(text), kindOfCallResult(name, false), codes};
}

}  // namespace companion::reference
