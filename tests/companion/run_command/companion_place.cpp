#include "companion/run_command/companion_place.h"

#include <cstdlib>

namespace fs = std::filesystem;

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

CompanionPlace::CompanionPlace() {
    executable = home / "பொழில்-துணை";
    fs::copy_file(fs::u8path(POZHIL_EXECUTABLE_DIR) / "பொழில்-துணை", executable);
    ownCache = root / "own cache";
    settings = withQuickTitle(environment());
    settings.push_back("XDG_CACHE_HOME=" + ownCache.u8string());
    writeFileText(object, "");
}

void CompanionPlace::useRealCompiler() const {
    fs::copy_file(fs::u8path(POZHIL_BUILD_DIR) / "programs" / "error_handler_native_linux.o",
                  object, fs::copy_options::overwrite_existing);
    const fs::path warmed = fs::u8path(POZHIL_ROOT "/உள்ளடக்கம்/nanovg");
    if (fs::exists(warmed)) fs::create_directory_symlink(warmed, home / "உள்ளடக்கம்" / "nanovg");
}

ProcessResult CompanionPlace::companion(const std::vector<std::string>& arguments,
                                        ProcessOptions options) const {
    std::vector<std::string> command = {executable.u8string()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    std::vector<std::string> all = settings;
    all.insert(all.end(), options.environment.begin(), options.environment.end());
    options.environment = all;
    options.directory = from.u8string();
    return runCommand(command, options);
}

LiveProcess CompanionPlace::startCompanion(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = {executable.u8string()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return {command, from, settings, root};
}

std::vector<fs::path> CompanionPlace::projectFolders() const {
    std::vector<fs::path> folders;
    for (const auto& entry : fs::directory_iterator(ownCache / "pozhil" / "projects")) {
        folders.push_back(entry.path());
    }
    return folders;
}
