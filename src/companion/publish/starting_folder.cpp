#include "companion/publish/starting_folder.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "companion/check/compiled_source.h"
#include "driver/phases.h"
#include "files.h"

namespace companion {

namespace fs = std::filesystem;

namespace {

/// What a source is, seen from the current folder.
struct Look {
    bool isParsed = false;
    bool isApplication = false;
    std::vector<std::string> modules;  ///< Read from this folder.
};

Look lookAt(const SourceText& source) {
    Look look;
    const CompiledSource compiled(source, [&](const std::string& path, std::string& text) {
        const bool isRead = readFile(path, text);
        if (isRead && fs::u8path(path).is_relative()) look.modules.push_back(path);
        return isRead;
    });
    look.isParsed = compiled.isParsed();
    look.isApplication = look.isParsed && holdsWebApp(compiled.program);
    return look;
}

bool needsThisFolder(const Look& look, const fs::path& beside) {
    const auto standsOnlyHere = [&](const std::string& name) {
        return fileExists(name) && !fileExists((beside / fs::u8path(name)).u8string());
    };
    return standsOnlyHere("assets") ||
           std::any_of(look.modules.begin(), look.modules.end(), standsOnlyHere);
}

}  // namespace

void goWhereItIsBuilt(const SourceText& source) {
    const fs::path here = fs::current_path();
    const fs::path beside = fs::absolute(fs::u8path(source.path)).parent_path();
    if (fs::equivalent(here, beside)) return;

    const Look look = lookAt(source);
    if (look.isParsed && (!look.isApplication || needsThisFolder(look, beside))) return;
    fs::current_path(beside);
    // A module that only lies there shows what the source is.
    if (!look.isParsed && !lookAt(source).isApplication) fs::current_path(here);
}

}  // namespace companion
