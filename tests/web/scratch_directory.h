// A current directory of its own for a test that reads and writes by relative paths.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

class ScratchDirectory : public testing::Test {
protected:
    ScratchDirectory() : before(std::filesystem::current_path()) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "pozhil web XXXXXX").u8string();
        if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
        directory = std::filesystem::canonical(std::filesystem::u8path(pattern));
        std::filesystem::current_path(directory);
    }

    ~ScratchDirectory() override {
        std::filesystem::current_path(before);
        std::error_code ignored;
        std::filesystem::remove_all(directory, ignored);
    }

    /// Writes a file, with the directories above it.
    void write(const std::string& name, const std::string& bytes) const {
        const auto path = directory / std::filesystem::u8path(name);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }

    std::string read(const std::string& name) const {
        std::ifstream file(directory / std::filesystem::u8path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path directory;

private:
    std::filesystem::path before;
};
