// Text files, in a directory of their own.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "emitted/endings.h"
#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    Files() {
        std::string pattern = (fs::temp_directory_path() / "pozhil files XXXXXX").u8string();
        directory = mkdtemp(pattern.data());
        previous = fs::current_path();
        fs::current_path(directory);
    }
    ~Files() override {
        fs::current_path(previous);
        fs::remove_all(directory);
    }

    static std::string contentOf(const std::string& path) {
        std::ifstream stream(path);
        std::stringstream text;
        text << stream.rdbuf();
        return text.str();
    }
    static std::any write(const std::string& path, const std::string& text) {
        return fn_கோப்பு_எழுது(path, text, "அ.பொழில்", 8);
    }
    static std::any append(const std::string& path, const std::string& text) {
        return fn_கோப்பு_சேர்(path, text, "அ.பொழில்", 8);
    }
    static std::string read(const std::string& path) {
        return std::any_cast<std::string>(fn_கோப்பு_படி(path, "அ.பொழில்", 8));
    }
    static bool exists(const std::string& path) {
        return std::any_cast<bool>(fn_கோப்பு_உள்ளதா(path));
    }
    static bool remove(const std::string& path) { return std::any_cast<bool>(fn_கோப்பு_அழி(path)); }

    fs::path directory;
    fs::path previous;
};

TEST_F(Files, AreWrittenAnewAndGiveNothingBack) {
    EXPECT_FALSE(write("அ.txt", "நீளமான வரி\n").has_value());
    EXPECT_EQ(contentOf("அ.txt"), "நீளமான வரி\n");
    write("அ.txt", "குறு");
    EXPECT_EQ(contentOf("அ.txt"), "குறு");
}

TEST_F(Files, AreAppendedToAndCreated) {
    EXPECT_FALSE(append("அ.txt", "ஒன்று").has_value());
    append("அ.txt", "\nஇரண்டு");
    EXPECT_EQ(contentOf("அ.txt"), "ஒன்று\nஇரண்டு");
}

TEST_F(Files, AreReadWhole) {
    std::ofstream("அ.txt") << "ஒன்று\n\nமூன்று\n";
    EXPECT_EQ(read("அ.txt"), "ஒன்று\n\nமூன்று\n");
    std::ofstream("empty.txt").flush();
    EXPECT_EQ(read("empty.txt"), "");
}

TEST_F(Files, AreFoundAndRemoved) {
    EXPECT_FALSE(exists("அ.txt"));
    EXPECT_FALSE(remove("அ.txt"));
    write("அ.txt", "");
    EXPECT_TRUE(exists("அ.txt"));
    EXPECT_TRUE(remove("அ.txt"));
    EXPECT_FALSE(fs::exists("அ.txt"));
}

TEST_F(Files, WithForbiddenPathsAreRefused) {
    for (const char* path : {"", "a//b", "//a", "a*", "*", "a?b"}) {
        EXPECT_EQ(codeOfEnding([&] { write(path, ""); }), "பொழில்-342") << path;
        EXPECT_EQ(codeOfEnding([&] { append(path, ""); }), "பொழில்-342") << path;
        EXPECT_EQ(codeOfEnding([&] { read(path); }), "பொழில்-342") << path;
    }
    EXPECT_TRUE(fs::is_empty(directory));
}

TEST_F(Files, AreFoundAndRemovedWithoutATestOfThePath) {
    fs::create_directory("a");
    std::ofstream("a/b") << "x";
    std::ofstream("c*?") << "x";
    EXPECT_TRUE(exists("a//b"));
    EXPECT_FALSE(exists("a//c"));
    EXPECT_FALSE(exists(""));
    EXPECT_TRUE(exists("c*?"));
    EXPECT_TRUE(remove("a//b"));
    EXPECT_FALSE(remove("a//b"));
    EXPECT_TRUE(remove("c*?"));
    EXPECT_FALSE(remove(""));
}

TEST_F(Files, ThatAreNotThereCantBeRead) {
    EXPECT_EQ(codeOfEnding([] { read("இல்லை.txt"); }), "பொழில்-341");
}

// It opens, and nothing comes out of it.
TEST_F(Files, ThatAreDirectoriesReadAsTheEmptyText) {
    fs::create_directory("அடைவு");
    EXPECT_TRUE(exists("அடைவு"));
    EXPECT_EQ(read("அடைவு"), "");
    EXPECT_EQ(codeOfEnding([] { write("அடைவு", "x"); }), "பொழில்-343");
}

TEST_F(Files, InAMissingDirectoryCantBeWritten) {
    EXPECT_EQ(codeOfEnding([] { write("இல்லை/அ.txt", "x"); }), "பொழில்-343");
    EXPECT_EQ(codeOfEnding([] { append("இல்லை/அ.txt", "x"); }), "பொழில்-343");
}

TEST_F(Files, TheNullDeviceIsRefusedByNameForReadingOnly) {
    EXPECT_EQ(codeOfEnding([] { read("/dev/null"); }), "பொழில்-344");
    EXPECT_EQ(read("/dev/../dev/null"), "");
    write("/dev/null", "x");
    EXPECT_TRUE(exists("/dev/null"));
}

TEST_F(Files, FailuresNameFileAndLine) {
    EXPECT_TRUE(endsAt([] { write("", ""); }, "அ.பொழில்", 8));
    EXPECT_TRUE(endsAt([] { append("a/b", ""); }, "அ.பொழில்", 8));
    EXPECT_TRUE(endsAt([] { read("இல்லை"); }, "அ.பொழில்", 8));
}

TEST_F(Files, OfModulesAreFoundInTheWorkingDirectory) {
    std::ofstream("என்.பொழில்") << "";
    EXPECT_EQ(fn_resolve_module_path("என்"), "என்.பொழில்");
    EXPECT_EQ(fn_resolve_module_path((directory / "என்").u8string()),
              (directory / "என்.பொழில்").u8string());
}

TEST_F(Files, OfModulesThatAreNowhereThrow) {
    try {
        fn_resolve_module_path("எங்கும்_இல்லை");
        FAIL() << "nothing thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "தொகுப்பு (Module) கிடைக்கவில்லை!");
    }
}

}  // namespace
