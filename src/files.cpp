#include "files.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

bool hasEnding(const std::string& text, const std::string& ending) {
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

std::string executableDirectory() {
    char buffer[4096];
    const ssize_t length = readlink("/proc/self/exe", buffer, sizeof(buffer));
    const std::string executable(buffer, length < 0 ? 0 : static_cast<std::size_t>(length));
    return executable.substr(0, executable.find_last_of("/\\"));
}

bool fileExists(const std::string& name) {
    std::error_code ignored;  // a name that no file can have names none
    return fs::exists(fs::u8path(name), ignored);
}

bool readFile(const std::string& path, std::string& text) {
    const fs::path file = fs::u8path(path);
    std::error_code ignored;
    if (fs::is_directory(file, ignored)) return false;  // a stream opens it and reads nothing
    std::ifstream stream(file);
    if (!stream.is_open()) return false;
    std::stringstream content;
    content << stream.rdbuf();
    text = content.str();
    return true;
}
