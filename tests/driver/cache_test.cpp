// The cache directory: only what is ours is run.
#include <unistd.h>

#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

constexpr uid_t kSomebodyElse = 65534;

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

}  // namespace
