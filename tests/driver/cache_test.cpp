// The cache directory: only what is ours is run, and a full disk is called one.
#include <unistd.h>

#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

constexpr uid_t kSomebodyElse = 65534;

const std::string kRedLine =
    "\033[1;31mபிழை: தொகுப்பதில் சிக்கல்! உன்னோட கோடை ஒருவாட்டி பாரு மச்சி.\033[0m\n";

class Cache : public Workplace {
protected:
    Cache() {
        fakeCompiler("echo ஓடியது");
        writeFileText(object, "");
        write("a.பொழில்", "அச்சிடு(1)\n");
    }

    void expectRefusalOf(const fs::path& directory) const {
        const ProcessResult run = compile({"a.பொழில்"});
        EXPECT_EQ(run.err, "பிழை: '" + directory.u8string() +
                               "' என்ற தற்காலிகக் கோப்புறை பிறருடையது, அல்லது பிறரும் மாற்றக்கூடியது. "
                               "அதிலிருந்து எதையும் இயக்குவது பாதுகாப்பல்ல. உமக்கே உரிய கோப்புறை ஒன்றை "
                               "TMPDIR-ல் குறிப்பிடவும்.\n");
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(compilerCalls().empty());
    }

    void expectARun() const {
        const ProcessResult run = compile({"a.பொழில்"});
        EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்") + "ஓடியது\n");
        EXPECT_EQ(run.err, "");
    }

    /// A run that can't make files larger than `kilobytes`, as if the disk were full then.
    ProcessResult compileWithRoomOf(int kilobytes, const std::string& arguments) const {
        ProcessOptions options;
        options.environment = environment();
        options.directory = work.u8string();
        return runCommand({"bash", "-c",
                           "trap '' XFSZ; ulimit -f " + std::to_string(kilobytes) + "; exec '" +
                               compiler.u8string() + "' " + arguments},
                          options);
    }

    std::string incomplete(const std::string& name) const {
        return "பிழை: '" + (cache / name).u8string() +
               "' என்ற கோப்பை முழுமையாக எழுத முடியவில்லை. வட்டில் இடம் உள்ளதா எனச் சரிபார்க்கவும்.\n";
    }

    static std::string full(const std::string& directory) {
        return "பிழை: '" + directory +
               "' கோப்புறை உள்ள வட்டில் இடம் போதவில்லை. தேவையற்ற கோப்புகளை நீக்கிவிட்டு மீண்டும் முயலவும்.\n";
    }
};

TEST_F(Cache, PlantedLinkIsRefused) {
    fs::create_directories(root / "elsewhere");
    fs::create_directory_symlink(root / "elsewhere", cache);
    expectRefusalOf(cache);
    EXPECT_TRUE(fs::is_empty(root / "elsewhere"));
    fs::remove(root / "elsewhere");  // a link to nothing would be made a directory
    expectRefusalOf(cache);
    EXPECT_FALSE(fs::exists(root / "elsewhere"));
}

TEST_F(Cache, DirectoryThatAllMayWriteIntoIsRefused) {
    fs::create_directories(cache);
    fs::permissions(cache, static_cast<fs::perms>(0777));
    expectRefusalOf(cache);
}

TEST_F(Cache, DirectoryOfAnotherUserIsRefused) {
    if (geteuid() != 0) GTEST_SKIP() << "only root gives directories away";
    fs::create_directories(cache);
    ASSERT_EQ(chown(cache.c_str(), kSomebodyElse, kSomebodyElse), 0);
    expectRefusalOf(cache);
}

TEST_F(Cache, TemporaryDirectoryOfAnotherUserIsRefused) {
    if (geteuid() != 0) GTEST_SKIP() << "only root gives directories away";
    ASSERT_EQ(chown((root / "tmp").c_str(), kSomebodyElse, kSomebodyElse), 0);
    expectRefusalOf(root / "tmp");
    EXPECT_FALSE(fs::exists(cache));
}

TEST_F(Cache, TemporaryDirectoryForAllMustBeSticky) {
    fs::permissions(root / "tmp", static_cast<fs::perms>(0777));
    expectRefusalOf(root / "tmp");
    fs::permissions(root / "tmp", static_cast<fs::perms>(01777));
    expectARun();
}

TEST_F(Cache, OwnGroupAndAnOpenMaskAreTrusted) {
    fs::permissions(root / "tmp", static_cast<fs::perms>(0775));
    const ProcessResult first =
        runCommand({"sh", "-c",
                    "umask 0; cd '" + work.u8string() + "' && TMPDIR='" +
                        (root / "tmp").u8string() + "' PATH='" + (root / "bin").u8string() +
                        "':\"$PATH\" exec '" + compiler.u8string() + "' a.பொழில்"});
    EXPECT_NE(first.out.find("ஓடியது\n"), std::string::npos) << first.err;
    EXPECT_EQ(fs::status(cache).permissions(), static_cast<fs::perms>(0775));
    expectARun();
}

TEST_F(Cache, TextThatDoesNotFitIsNotCompiled) {
    const ProcessResult run = compileWithRoomOf(8, "a.பொழில்");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, incomplete("generated.cpp"));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(compilerCalls().empty());
}

TEST_F(Cache, FullDiskIsNamedBeforeTheBuildIsBlamed) {
    fakeCompiler("", 1);
    const ProcessResult run = compileWithRoomOf(4000, "a.பொழில்");
    EXPECT_EQ(run.err, full(cache.u8string()) + kRedLine);
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்"));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(compilerCalls().size(), 1U);
}

TEST_F(Cache, FullDiskIsFoundByTryingIt) {
    fakeCompiler("", 1);
    const std::string mount = "mount -t tmpfs -o size=2m tmpfs '" + (root / "tmp").u8string() + "'";
    if (runCommand({"unshare", "-m", "sh", "-c", mount}).exitCode != 0) {
        GTEST_SKIP() << "no right to mount";
    }
    ProcessOptions options;
    options.environment = environment();
    options.directory = work.u8string();
    const ProcessResult run = runCommand(
        {"unshare", "-m", "sh", "-c",
         mount + " && '" + compiler.u8string() + "' a.பொழில் && ls '" + cache.u8string() + "'"},
        options);
    EXPECT_EQ(run.err, full(cache.u8string()) + kRedLine);
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்") + "generated.cpp\nதொகுப்பு_பூட்டு\n")
        << "and nothing of the trial is left";
}

TEST_F(Cache, MissingCompilerIsNamedBeforeTheBuildIsBlamed) {
    fs::remove(object);
    const std::string path = "PATH=" + (root / "empty").u8string();
    const ProcessResult run = compile({"a.பொழில்"}, {"", {path}, "", 60});
    EXPECT_EQ(run.err,
              "பிழை: நிரலைத் தொகுக்கத் தேவையான g++ இந்தக் கணினியில் கிடைக்கவில்லை! "
              "நிறுவ: sudo apt install g++\n" +
                  kRedLine);
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்"));
    EXPECT_EQ(run.exitCode, 0);
}

}  // namespace
