// An empty working directory for one test, with files that it writes.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

/// Makes a directory and works in it; leaves and removes it at the end.
class Workplace {
public:
    Workplace() : before(std::filesystem::current_path()) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "modules_XXXXXX").u8string();
        place = std::filesystem::u8path(mkdtemp(pattern.data()));
        std::filesystem::current_path(place);
    }
    ~Workplace() {
        std::filesystem::current_path(before);
        std::error_code ignored;
        std::filesystem::remove_all(place, ignored);
    }
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    std::filesystem::path path() const { return place; }

private:
    std::filesystem::path before;
    std::filesystem::path place;
};

/// Writes `text` to `path`, whose folders it makes.
inline void writeFile(const std::string& path, const std::string& text) {
    const std::filesystem::path file = std::filesystem::u8path(path);
    if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << text;
}
