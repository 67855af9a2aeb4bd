#include "driver/warmed_web.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <vector>

#include "driver/processes.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kCompiler = "em++";

/// By these users tell em++ or its clang what to do; headers made without them may not fit.
constexpr const char* kSettingsOfUsers[] = {
    "EMCC_CFLAGS",         "EM_CONFIG", "EM_CACHE",           "EM_LLVM_ROOT",
    "EM_COMPILER_WRAPPER", "CPATH",     "CPLUS_INCLUDE_PATH", "CCC_OVERRIDE_OPTIONS",
};

/// The headers, and the objects of what they use and of what they declare.
constexpr const char* kPrepared[] = {"/headers.h.pch", "/instances.o", "/runtime.o"};

/// A line of the list `fits`: "SIZE TIME PATH", the time in seconds.
struct Dependency {
    long long size = 0;
    long long time = 0;
    std::string path;
};

bool isSet(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0';
}

std::vector<Dependency> readDependencies(const std::string& list) {
    std::ifstream stream(fs::u8path(list));
    stream.imbue(std::locale::classic());
    std::vector<Dependency> dependencies;
    for (Dependency one;
         stream >> one.size >> one.time && stream.get() == ' ' && std::getline(stream, one.path);) {
        dependencies.push_back(one);
    }
    return dependencies;
}

bool isAsItWas(const Dependency& file) {
    struct stat now = {};
    return stat(file.path.c_str(), &now) == 0 && now.st_size == file.size &&
           now.st_mtime == file.time;
}

/// The place itself, to which links may lead; empty if there is none.
std::string placeOf(const std::string& path) {
    std::error_code ignored;
    return fs::canonical(fs::u8path(path), ignored).u8string();
}

/// The list begins with the compiler and the prepared files: where they lie now, not in a
/// folder from which they were moved or copied.
bool areFit(const std::vector<Dependency>& files, const std::string& directory) {
    if (files.size() <= 1 + std::size(kPrepared)) return false;
    if (files[0].path != placeOf(findProgram(kCompiler))) return false;
    for (std::size_t i = 0; i < std::size(kPrepared); i++) {
        if (files[1 + i].path != directory + kPrepared[i]) return false;
    }
    return std::all_of(files.begin(), files.end(), isAsItWas);
}

/// `path` as one word of a list of flags, which em++ reads as a shell would.
std::string asFlag(const std::string& path) {
    std::string flag = "'";
    for (const char byte : path) {
        if (byte == '\'') {
            flag += "'\"'\"'";
        } else {
            flag += byte;
        }
    }
    return flag + "'";
}

}  // namespace

bool g_isWarmedWebRefused = false;

std::string warmedSetting(const std::string& objectDirectory) {
    if (std::any_of(std::begin(kSettingsOfUsers), std::end(kSettingsOfUsers), isSet)) return "";
    const std::string directory = placeOf(objectDirectory + "/warmed_web");
    if (!areFit(readDependencies(directory + "/fits"), directory)) return "";
    return "EMCC_CFLAGS=-include " +
           asFlag(directory + "/headers.h") +  // clang adds the ending by itself
           " " + asFlag(directory + kPrepared[1]) + " " + asFlag(directory + kPrepared[2]);
}
