// The values of the protocol as JSON. The library's header is large: only what speaks JSON includes
// this.
#pragma once

#if !__has_include(<nlohmann/json.hpp>)
#error "nlohmann/json.hpp is missing: install nlohmann-json3-dev"
#endif

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "companion/language_server/documents.h"
#include "companion/language_server/text_places.h"

namespace companion::language_server {

using Json = nlohmann::json;

/// A request can't be answered: the code of the protocol and words for the log or the user.
struct RequestFailure {
    int code;
    std::string message;
};

namespace codes {
inline constexpr int kParseError = -32700;
inline constexpr int kInvalidRequest = -32600;
inline constexpr int kMethodNotFound = -32601;
inline constexpr int kInvalidParams = -32602;
inline constexpr int kInternalError = -32603;
inline constexpr int kServerNotInitialized = -32002;
inline constexpr int kRequestFailed = -32803;
inline constexpr int kRequestCancelled = -32800;
}  // namespace codes

// What a message holds; a field that is missing or of another kind is a RequestFailure.
const Json& fieldOf(const Json& object, const char* name);
std::string textOf(const Json& object, const char* name);
Position positionOf(const Json& params);
PositionRange rangeOf(const Json& value);
std::string documentUriOf(const Json& params);
std::vector<TextChange> changesOf(const Json& params);
/// 0 for a version that is missing or no number.
int versionOf(const Json& document);

Json jsonOf(Position position);
Json jsonOf(PositionRange range);

}  // namespace companion::language_server
