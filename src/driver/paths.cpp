#include "driver/paths.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace fs = std::filesystem;

std::string getAppDirectory() {
    char buffer[4096];
    const ssize_t length = readlink("/proc/self/exe", buffer, sizeof(buffer));
    const std::string executable(buffer, length < 0 ? 0 : static_cast<std::size_t>(length));
    return executable.substr(0, executable.find_last_of("/\\"));
}

std::string getSafeMinGWPath(const std::string& path) { return path; }

void injectEmscriptenEnvironment(const std::string&) {}

std::string prepareCacheDirectory() {
    std::string directory =
        getSafeMinGWPath((fs::temp_directory_path() / "Pozhil_Cache").u8string());
    fs::create_directories(fs::u8path(directory));
    return directory;
}

int run_command(const std::string& command) {
    std::cout.flush();
    return std::system(command.c_str());
}

bool hasEnding(const std::string& text, const std::string& ending) {
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

bool fileExists(const std::string& name) { return fs::exists(fs::u8path(name)); }

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
