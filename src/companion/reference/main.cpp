// Writes the reference anew: reference_pages CHECKOUT. Files that no page or picture belongs to are
// removed.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

#include "companion/reference/reference.h"

namespace fs = std::filesystem;

namespace {

bool write(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream stream(path, std::ios::binary);
    stream << text;
    return static_cast<bool>(stream.flush());
}

void removeOthers(const fs::path& folder, const std::set<fs::path>& kept) {
    std::set<fs::path> others;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && kept.count(entry.path()) == 0) others.insert(entry.path());
    }
    for (const fs::path& other : others) fs::remove(other);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "reference_pages CHECKOUT\n";
        return 2;
    }
    const fs::path folder = fs::u8path(argv[1]) / "docs" / fs::u8path("குறிப்பேடு");
    std::set<fs::path> written;
    for (const auto& file :
         companion::reference::referenceFiles(companion::reference::readSurroundings(argv[1]))) {
        const fs::path path = folder / fs::u8path(file.path);
        if (!write(path, file.text)) {
            std::cerr << path << "\n";
            return 1;
        }
        written.insert(path);
    }
    removeOthers(folder, written);
    std::cout << written.size() << "\n";
    return 0;
}
