#include "staging.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

NativeProgram stage(const CaseFile& file, const std::string& lane) {
    const fs::path folder = fs::u8path(POZHIL_BUILD_DIR) / "staged" / lane / fs::u8path(file.name);
    fs::remove_all(folder);
    fs::create_directories(folder);
    const fs::path library = fs::u8path("தொகுப்புகள்");
    fs::create_directory_symlink(fs::u8path(POZHIL_ROOT) / library, folder / library);
    const fs::path source = folder / fs::u8path(file.source).filename();
    fs::copy_file(fs::u8path(file.source), source);
    return NativeProgram(lane + "_" + file.name, source.u8string());
}

std::string outputOf(const NativeProgram& program, const std::string& input) {
    const ProcessResult built = program.compile();
    EXPECT_EQ(built.exitCode, 0) << built.err;
    if (built.exitCode != 0) return "";
    const ProcessResult ran = program.run(input);
    EXPECT_FALSE(ran.timedOut);
    EXPECT_EQ(ran.exitCode, 0) << "signal " << ran.signal << "\n" << ran.err;
    EXPECT_EQ(ran.err, "");
    return ran.out;
}
