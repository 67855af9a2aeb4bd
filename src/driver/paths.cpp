#include "driver/paths.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

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

std::string inQuotes(const std::string& path) { return "\"" + path + "\""; }
