// The words of the language by which places and names are told.
#pragma once

#include <string_view>

namespace companion::completion::words {

inline constexpr std::string_view kApplication = "வலைதளம்";
inline constexpr std::string_view kDefinitions = "வரையறை";
inline constexpr std::string_view kBody = "குமரி";
inline constexpr std::string_view kDatabase = "தரவுத்தளமேலாண்மை";
inline constexpr std::string_view kAnimation = "அசைவூட்டம்";
inline constexpr std::string_view kTarget = "இலக்கு";
inline constexpr std::string_view kStyle = "பாணி";
inline constexpr std::string_view kLambda = "வினை";
inline constexpr std::string_view kImport = "நூஇறக்கி";
inline constexpr std::string_view kForEach = "ஒவ்வொன்றாக";
inline constexpr std::string_view kIn = "இல்";
inline constexpr std::string_view kFunction = "செயல்";
inline constexpr std::string_view kConstructor = "துவக்கம்";
inline constexpr std::string_view kCatch = "பிடி";
inline constexpr std::string_view kEnumeration = "வகை";
inline constexpr std::string_view kStructures[] = {"கட்டமைப்பு", "வடிவமைப்பு"};
inline constexpr std::string_view kReceivers[] = {"தான்", "self"};

/// The block that `block` of `widget` is written for: பாணி is another name of two.
constexpr std::string_view blockOf(std::string_view block, std::string_view widget) {
    if (block != kStyle) return block;
    return widget == "உரைபொத்தான்" ? "உரைபொ_பாணி" : "உரைபாணி";
}

}  // namespace companion::completion::words
