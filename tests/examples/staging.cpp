#include "staging.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

std::vector<CaseFile> staged(const std::vector<CaseFile>& cases, const std::string& lane) {
    std::vector<CaseFile> copies = cases;
    const fs::path library = fs::u8path("தொகுப்புகள்");
    for (CaseFile& file : copies) {
        const fs::path folder =
            fs::u8path(POZHIL_BUILD_DIR) / "staged" / lane / fs::u8path(file.name);
        fs::remove_all(folder);
        fs::create_directories(folder);
        fs::create_directory_symlink(fs::u8path(POZHIL_ROOT) / library, folder / library);
        const fs::path source = folder / fs::u8path(file.source).filename();
        fs::copy_file(fs::u8path(file.source), source);
        file.source = source.u8string();
    }
    return copies;
}

std::string outputOf(const ProcessResult& ran) {
    EXPECT_FALSE(ran.timedOut);
    EXPECT_EQ(ran.exitCode, 0) << "signal " << ran.signal << "\n" << ran.err;
    EXPECT_EQ(ran.err, "");
    return ran.out;
}
