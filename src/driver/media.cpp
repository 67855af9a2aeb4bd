#include "driver/media.h"

#include <algorithm>
#include <iostream>

#include "driver/page.h"
#include "driver/paths.h"
#include "syntax/application.h"
#include "syntax/literals.h"

namespace {

/// The whole folder is packed, so what lies in it needs no flag of its own.
constexpr const char* kAssets = "assets";

constexpr const char* kPackedEndings[] = {
    ".png", ".jpg", ".jpeg", ".mp4", ".gif", ".ttf", ".otf", ".woff", ".woff2",
};

/// To em++ an "@" divides a name from the one that the program sees, and two are one of the name's
/// own.
std::string withoutDivision(const std::string& path) {
    std::string name;
    for (const char byte : path) name.append(byte == '@' ? 2 : 1, byte);
    return name;
}

bool isUnderAssets(const std::string& path) { return path.rfind("assets/", 0) == 0; }

bool isPacked(const std::string& path) {
    return std::any_of(std::begin(kPackedEndings), std::end(kPackedEndings),
                       [&](const char* ending) { return hasEnding(path, ending); });
}

/// Adds the property `key` of `widget` if it is a string.
void collectLiteral(const WidgetNode& widget, const char* key, std::set<std::string>& paths) {
    const auto found = widget.properties.find(key);
    if (found == widget.properties.end()) return;
    const auto* text = dynamic_cast<const StringLiteral*>(found->second.get());
    if (text != nullptr) paths.insert(text->value);
}

std::string videoFlag(const Program& program) {
    const std::string video = extractHeaderProperty(program, "பின்னணிகாணொளி");
    if (video.empty()) return "";
    if (fileExists(video)) return preloadFlag(video);
    std::cerr << "\n⚠️ எச்சரிக்கை: " << video
              << " என்ற கோப்பு காணப்படவில்லை! \n";
    return "";
}

}  // namespace

void collectImagePaths(const Statement* node, std::set<std::string>& paths) {
    if (const auto* app = dynamic_cast<const WebAppNode*>(node)) {
        collectImagePaths(app->header.get(), paths);
        collectImagePaths(app->body.get(), paths);
    } else if (const auto* widget = dynamic_cast<const WidgetNode*>(node)) {
        if (widget->name == "படம்") collectLiteral(*widget, "பாதை", paths);
        collectLiteral(*widget, "சின்னம்", paths);
        if (!widget->textStyle.fontFamily.empty()) paths.insert(widget->textStyle.fontFamily);
        for (const auto& child : widget->children) collectImagePaths(child.get(), paths);
    }
}

std::string base64_encode_logo(const std::vector<unsigned char>& bytes) {
    constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - at);
        unsigned group = 0;
        for (std::size_t i = 0; i < 3; i++) group = group << 8 | (i < count ? bytes[at + i] : 0U);
        for (std::size_t i = 0; i < 4; i++) {
            text += i <= count ? kAlphabet[group >> (18 - 6 * i) & 63U] : '=';
        }
    }
    return text;
}

/// An argument that begins with an "@" is a file of arguments, whatever stands before it.
std::string preloadFlag(const std::string& path, const std::string& name) {
    std::string argument = (path.rfind('@', 0) == 0 ? "./" : "") + withoutDivision(path);
    if (!name.empty()) argument += "@" + withoutDivision(name);
    return " --preload-file " + asOneWord(argument);
}

std::string preloadFlags(const Program& program) {
    std::set<std::string> paths;
    for (const auto& statement : program.statements) collectImagePaths(statement.get(), paths);

    std::string flags;
    if (fileExists(kAssets)) flags += preloadFlag(kAssets);
    for (const std::string& path : paths) {
        if (isUnderAssets(path)) continue;
        if (isPacked(path) && fileExists(path)) flags += preloadFlag(path);
    }
    return flags + videoFlag(program);
}
