// The command as a user runs it: what it writes, what it leaves alone, what it tells.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "companion/commands.h"
#include "companion/format/written_file.h"
#include "support/case_files.h"

namespace {

namespace fs = std::filesystem;

const char* const kRagged = "அ=1\nஎனில் அ சமம் 1:\n  அச்சிடு( அ )\n";
const char* const kTidy = "அ = 1\nஎனில் அ சமம் 1:\n    அச்சிடு(அ)\n";

class FormatCommand : public testing::Test {
protected:
    FormatCommand() {
        std::string pattern = testing::TempDir() + "formatXXXXXX";
        folder = fs::u8path(mkdtemp(pattern.data()));
    }
    ~FormatCommand() override { fs::remove_all(folder); }

    std::string put(const char* name, const std::string& text) {
        std::ofstream(folder / fs::u8path(name)) << text;
        return (folder / fs::u8path(name)).u8string();
    }

    int run(const companion::Arguments& arguments) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = companion::runFormat(arguments);
        told = testing::internal::GetCapturedStdout();
        complained = testing::internal::GetCapturedStderr();
        return status;
    }

    int runOn(const std::string& input, companion::Arguments arguments) {
        std::istringstream stream(input);
        std::streambuf* former = std::cin.rdbuf(stream.rdbuf());
        const int status = run(arguments);
        std::cin.rdbuf(former);
        return status;
    }

    long filesInFolder() const {
        return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    }

    fs::path folder;
    std::string told;
    std::string complained;
};

ino_t fileNumber(const std::string& path) {
    struct stat state {};
    stat(path.c_str(), &state);
    return state.st_ino;
}

TEST_F(FormatCommand, WritesTheFileAndNamesIt) {
    const std::string path = put("அ.பொழில்", kRagged);
    EXPECT_EQ(run({path}), 0);
    EXPECT_EQ(readText(path), kTidy);
    EXPECT_EQ(told, path + "\n");
    EXPECT_EQ(complained, "");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(FormatCommand, DoesNotTouchATidyFile) {
    const std::string path = put("அ.பொழில்", kTidy);
    const ino_t before = fileNumber(path);
    EXPECT_EQ(run({path}), 0);
    EXPECT_EQ(fileNumber(path), before);
    EXPECT_EQ(told, "");
}

TEST_F(FormatCommand, OnlyLooksWhenAskedTo) {
    const std::string ragged = put("அ.பொழில்", kRagged);
    const std::string tidy = put("ஆ.பொழில்", kTidy);
    EXPECT_EQ(run({"--check", ragged, tidy}), 1);
    EXPECT_EQ(told, ragged + "\n");
    EXPECT_EQ(readText(ragged), kRagged);
    EXPECT_EQ(run({"--check", tidy}), 0);
}

TEST_F(FormatCommand, LeavesAWrongProgramAndGoesOn) {
    const std::string wrong = put("அ.பொழில்", "அ=1 + 2\n");
    const std::string ragged = put("ஆ.பொழில்", kRagged);
    EXPECT_EQ(run({wrong, ragged}), 1);
    EXPECT_EQ(readText(wrong), "அ=1 + 2\n");
    EXPECT_EQ(readText(ragged), kTidy);
    EXPECT_NE(complained.find(wrong), std::string::npos);
    EXPECT_EQ(std::count(complained.begin(), complained.end(), '\n'), 1);
}

TEST_F(FormatCommand, KeepsTheMode) {
    const std::string path = put("அ.பொழில்", kRagged);
    fs::permissions(fs::u8path(path), fs::perms{0750});
    EXPECT_EQ(run({path}), 0);
    EXPECT_EQ(readText(path), kTidy);
    EXPECT_EQ(fs::status(fs::u8path(path)).permissions(), fs::perms{0750});
}

TEST_F(FormatCommand, FollowsALink) {
    const std::string path = put("அ.பொழில்", kRagged);
    const fs::path link = folder / "link";
    fs::create_symlink(fs::u8path(path), link);
    EXPECT_EQ(run({link.u8string()}), 0);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(readText(path), kTidy);
}

TEST_F(FormatCommand, LosesNothingWhenTheDiskIsFull) {
    constexpr rlim_t kRoom = 4096;
    std::string text;
    while (text.size() < 2 * kRoom) text += kRagged;
    const std::string path = put("அ.பொழில்", text);
    struct rlimit former {};
    getrlimit(RLIMIT_FSIZE, &former);
    const struct rlimit full { kRoom, former.rlim_max };
    const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    const companion::Written written = companion::replaceFile(path, text, text + kTidy);
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, formerHandler);
    EXPECT_EQ(written, companion::Written::No);
    EXPECT_EQ(readText(path), text);
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(FormatCommand, KeepsWhatSomebodyElseWroteMeanwhile) {
    const std::string path = put("அ.பொழில்", "அ = 2\n");
    EXPECT_EQ(companion::replaceFile(path, kRagged, kTidy), companion::Written::IsChanged);
    EXPECT_EQ(readText(path), "அ = 2\n");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(FormatCommand, ServesEditorsOnTheirPipes) {
    EXPECT_EQ(runOn(kRagged, {"-"}), 0);
    EXPECT_EQ(told, kTidy);
    EXPECT_EQ(runOn("அ=1 + 2\n", {"-"}), 1);
    EXPECT_EQ(told, "");
    EXPECT_NE(complained, "");
    EXPECT_EQ(runOn(kRagged, {"--check", "-"}), 1);
    EXPECT_EQ(told, "");
}

TEST_F(FormatCommand, TellsWhatItCannotRead) {
    EXPECT_EQ(run({}), 2);
    EXPECT_EQ(run({"--unknown"}), 2);
    EXPECT_EQ(run({folder.u8string()}), 2);
    EXPECT_EQ(run({(folder / "missing").u8string()}), 2);
    EXPECT_NE(complained.find("missing"), std::string::npos);
}

}  // namespace
