#include "companion/language_server/json.h"

#include <algorithm>
#include <limits>

namespace companion::language_server {

namespace {

/// A number of a place; whatever is too large means the end.
int placeNumber(const Json& value) {
    constexpr int kMost = std::numeric_limits<int>::max() / 2;
    if (value.is_number_unsigned()) {
        return static_cast<int>(
            std::min(value.get<std::uint64_t>(), static_cast<std::uint64_t>(kMost)));
    }
    if (value.is_number_integer()) {
        return static_cast<int>(
            std::clamp<std::int64_t>(value.get<std::int64_t>(), -1, std::int64_t{kMost}));
    }
    throw RequestFailure{codes::kInvalidParams, "a place wants whole numbers"};
}

}  // namespace

const Json& fieldOf(const Json& object, const char* name) {
    if (object.is_object()) {
        const auto found = object.find(name);
        if (found != object.end()) return *found;
    }
    throw RequestFailure{codes::kInvalidParams, std::string("missing: ") + name};
}

std::string textOf(const Json& object, const char* name) {
    const Json& value = fieldOf(object, name);
    if (!value.is_string()) {
        throw RequestFailure{codes::kInvalidParams, std::string("no text: ") + name};
    }
    return value.get<std::string>();
}

Position positionOf(const Json& params) {
    return {placeNumber(fieldOf(params, "line")), placeNumber(fieldOf(params, "character"))};
}

PositionRange rangeOf(const Json& value) {
    return {positionOf(fieldOf(value, "start")), positionOf(fieldOf(value, "end"))};
}

std::string documentUriOf(const Json& params) {
    return textOf(fieldOf(params, "textDocument"), "uri");
}

std::vector<TextChange> changesOf(const Json& params) {
    const Json& list = fieldOf(params, "contentChanges");
    if (!list.is_array()) throw RequestFailure{codes::kInvalidParams, "no list: contentChanges"};
    std::vector<TextChange> changes;
    for (const Json& entry : list) {
        TextChange change{std::nullopt, textOf(entry, "text")};
        const auto range = entry.find("range");
        if (range != entry.end() && !range->is_null()) change.range = rangeOf(*range);
        changes.push_back(std::move(change));
    }
    return changes;
}

int versionOf(const Json& document) {
    const auto found = document.find("version");
    if (found == document.end() || !found->is_number_integer()) return 0;
    return static_cast<int>(found->get<std::int64_t>());
}

Json jsonOf(Position position) {
    return {{"line", position.line}, {"character", position.character}};
}

Json jsonOf(PositionRange range) {
    return {{"start", jsonOf(range.start)}, {"end", jsonOf(range.end)}};
}

}  // namespace companion::language_server
