// What is prepared for em++: when a build hands it over, and how a build does without.
#include <sys/stat.h>

#include "web/odd_names.h"
#include "web/web_build_test.h"

namespace fs = std::filesystem;

namespace {

class WarmedWeb : public WebBuildTest {
protected:
    WarmedWeb() {
        for (const char* name : {"EMCC_CFLAGS", "EM_CONFIG", "EM_CACHE", "EM_LLVM_ROOT", "CPATH",
                                 "EM_COMPILER_WRAPPER", "CPLUS_INCLUDE_PATH"}) {
            unsetenv(name);
        }
        notesFlags("");
        write("system/header.h", "// ஒரு தலைப்பு\n");
        prepare(here + "/app");
    }

    /// An em++ that notes its flags of the environment, each time in a line of its own, and then
    /// runs `script`.
    void notesFlags(const std::string& script) const {
        compilerSays("printf '<%s>\\n' \"$EMCC_CFLAGS\" >>'" + here + "/flags'\n" + script);
    }

    /// A line of the list of what must be as it was.
    static std::string asFound(const std::string& path) {
        struct stat found = {};
        EXPECT_EQ(stat(path.c_str(), &found), 0) << path;
        return std::to_string(found.st_size) + " " + std::to_string(found.st_mtime) + " " + path +
               "\n";
    }

    /// What set-up leaves in the compiler's folder `app`.
    void prepare(const std::string& app) const {
        const std::string warmed = app + "/திரட்டு/warmed_web";
        fs::create_directories(fs::u8path(warmed));
        std::string fits = asFound(here + "/bin/em++");
        for (const char* name : {"/headers.h.pch", "/instances.o", "/runtime.o"}) {
            std::ofstream(fs::u8path(warmed + name)) << name;
            fits += asFound(warmed + name);
        }
        std::ofstream(fs::u8path(warmed + "/fits")) << fits << asFound(here + "/system/header.h");
    }

    /// The flags of each start of em++ in one build.
    std::string flags() const {
        fs::remove("flags");
        EXPECT_TRUE(run());
        return read("flags");
    }

    std::string handedOver() const {
        const std::string warmed = here + "/app/திரட்டு/warmed_web";
        return "<-include '" + warmed + "/headers.h' '" + warmed + "/instances.o' '" + warmed +
               "/runtime.o'>\n";
    }
};

const std::string kBare = "<>\n";

TEST_F(WarmedWeb, IsHandedOverByTheEnvironmentAlone) {
    EXPECT_EQ(flags(), handedOver());
    const std::string command = read("calls");
    fs::remove_all("app/திரட்டு/warmed_web");
    fs::remove("calls");
    EXPECT_EQ(flags(), kBare);
    EXPECT_EQ(read("calls"), command);
    EXPECT_EQ(std::getenv("EMCC_CFLAGS"), nullptr) << "for em++, not for what runs beside it";
}

TEST_F(WarmedWeb, EmptySettingOfTheUserIsNone) {
    setenv("EMCC_CFLAGS", "", 1);
    EXPECT_EQ(flags(), handedOver());
}

TEST_F(WarmedWeb, SettingsOfTheUserStand) {
    setenv("EMCC_CFLAGS", "-O2 -DMINE", 1);
    EXPECT_EQ(flags(), "<-O2 -DMINE>\n");
    unsetenv("EMCC_CFLAGS");
    setenv("CPLUS_INCLUDE_PATH", "/mine", 1);
    EXPECT_EQ(flags(), kBare);
    unsetenv("CPLUS_INCLUDE_PATH");
    EXPECT_EQ(flags(), handedOver());
}

TEST_F(WarmedWeb, IsLeftOutWhenOneOfItsFilesIsAnother) {
    for (const char* file :
         {"app/திரட்டு/warmed_web/headers.h.pch", "app/திரட்டு/warmed_web/instances.o",
          "app/திரட்டு/warmed_web/runtime.o", "system/header.h", "bin/em++"}) {
        SCOPED_TRACE(file);
        const auto time = fs::last_write_time(fs::u8path(file));
        const std::string text = read(file);
        fs::last_write_time(fs::u8path(file), time + std::chrono::hours(1));
        EXPECT_EQ(flags(), kBare) << "later";
        std::ofstream(fs::u8path(file), std::ios::app) << "\n";
        fs::last_write_time(fs::u8path(file), time);
        EXPECT_EQ(flags(), kBare) << "longer";
        std::ofstream(fs::u8path(file)) << text;
        fs::last_write_time(fs::u8path(file), time);
        EXPECT_EQ(flags(), handedOver());
    }
}

TEST_F(WarmedWeb, IsLeftOutWhereOneOfItsFilesIsMissing) {
    for (const char* file :
         {"app/திரட்டு/warmed_web/headers.h.pch", "app/திரட்டு/warmed_web/instances.o",
          "app/திரட்டு/warmed_web/runtime.o", "app/திரட்டு/warmed_web/fits", "system/header.h"}) {
        SCOPED_TRACE(file);
        const fs::path path = fs::u8path(file);
        fs::rename(path, "aside");
        EXPECT_EQ(flags(), kBare);
        fs::rename("aside", path);
        EXPECT_EQ(flags(), handedOver());
    }
}

TEST_F(WarmedWeb, IsLeftOutByAListThatNamesTooLittle) {
    const std::string list = read("app/திரட்டு/warmed_web/fits");
    for (std::size_t lines = 0, end = 0; lines < 5; lines++, end = list.find('\n', end) + 1) {
        write("app/திரட்டு/warmed_web/fits", list.substr(0, end));
        EXPECT_EQ(flags(), kBare) << lines;
    }
    write("app/திரட்டு/warmed_web/fits", "தெரியாத எழுத்து\n" + list);
    EXPECT_EQ(flags(), kBare);
}

TEST_F(WarmedWeb, IsForOneCompilerAlone) {
    write("other/em++", read("bin/em++"));
    fs::permissions("other/em++", static_cast<fs::perms>(0755));
    setenv("PATH", (here + "/other:" + here + "/bin:" + path).c_str(), 1);
    EXPECT_EQ(flags(), kBare);
    setenv("PATH", (here + "/bin:" + here + "/other:" + path).c_str(), 1);
    EXPECT_EQ(flags(), handedOver());
    fs::create_symlink(here + "/bin", "link");
    setenv("PATH", (here + "/link:" + path).c_str(), 1);
    EXPECT_EQ(flags(), handedOver());
}

TEST_F(WarmedWeb, StaysBehindWhenTheFolderIsCopiedOrMoved) {
    fs::copy("app", "copied", fs::copy_options::recursive);
    const WebBuild copied{here + "/copied", here + "/cache"};
    EXPECT_TRUE(buildWebApplication(tree, "", copied));
    EXPECT_EQ(read("flags"), kBare);
    fs::rename("app", "moved");
    fs::remove("flags");
    const WebBuild moved{here + "/moved", here + "/cache"};
    EXPECT_TRUE(buildWebApplication(tree, "", moved));
    EXPECT_EQ(read("flags"), kBare);
}

TEST_F(WarmedWeb, IsFoundBehindALink) {
    fs::create_directory("linked");
    for (const char* companion : {"உள்ளடக்கம்", "திரட்டு"}) {
        fs::create_directory_symlink(directory / "app" / fs::u8path(companion),
                                     directory / "linked" / fs::u8path(companion));
    }
    EXPECT_TRUE(buildWebApplication(tree, "", {here + "/linked", here + "/cache"}));
    EXPECT_EQ(read("flags"), handedOver());
}

TEST_F(WarmedWeb, RefusedByTheCompilerItIsLeftOutFromThenOn) {
    notesFlags("[ -z \"$EMCC_CFLAGS\" ]");
    prepare(here + "/app");
    const int before = g_appVersion.load();
    EXPECT_EQ(flags(), handedOver() + kBare);
    EXPECT_EQ(g_appVersion.load(), before + 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "");
    EXPECT_EQ(flags(), kBare) << "refused once in the life of a watch";
}

TEST_F(WarmedWeb, IsNotToBlameForASourceThatFails) {
    notesFlags("[ ! -e '" + here + "/broken' ]");
    prepare(here + "/app");
    write("broken", "");
    EXPECT_FALSE(run());
    EXPECT_EQ(read("flags"), handedOver() + kBare);
    fs::remove("broken");
    EXPECT_EQ(flags(), handedOver());
}

/// By the words that em++ makes of its flags.
TEST_F(WarmedWeb, MayLieInAFolderOfAnyName) {
    for (const std::string& name : kOddNames) {
        if (name.find('\n') != std::string::npos) continue;  // its list has a line for each file
        SCOPED_TRACE(name);
        const std::string app = here + "/places/" + name;
        fs::create_directories(fs::u8path(app));
        fs::copy("app/உள்ளடக்கம்", fs::u8path(app + "/உள்ளடக்கம்"));
        notesFlags("eval \"set -- $EMCC_CFLAGS\"; printf '%s\\n' \"$@\" >'" + here + "/words'");
        prepare(app);
        const WebBuild odd{app, here + "/cache"};
        EXPECT_TRUE(buildWebApplication(tree, "", odd));
        const std::string warmed = app + "/திரட்டு/warmed_web";
        EXPECT_EQ(read("words"), "-include\n" + warmed + "/headers.h\n" + warmed +
                                     "/instances.o\n" + warmed + "/runtime.o\n");
    }
}

TEST_F(WarmedWeb, IsLeftOutWhereAFolderHasALineEndInItsName) {
    const std::string app = here + "/a\nb";
    fs::create_directories(fs::u8path(app));
    fs::copy("app/உள்ளடக்கம்", fs::u8path(app + "/உள்ளடக்கம்"));
    prepare(app);
    EXPECT_TRUE(buildWebApplication(tree, "", {app, here + "/cache"}));
    EXPECT_EQ(read("flags"), kBare);
}

}  // namespace
