// Built programs, found again by what they were built from.
#include "companion/run/program_store.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "companion/run/digest.h"
#include "files.h"

namespace {

namespace fs = std::filesystem;

using companion::AskedModule;
using companion::Digest;
using companion::NotingReader;
using companion::ProgramStore;

void fillFile(const fs::path& path, const std::string& text) { std::ofstream(path) << text; }

class Store : public testing::Test {
protected:
    Store() {
        std::string pattern = (fs::temp_directory_path() / "pozhil store XXXXXX").u8string();
        if (mkdtemp(pattern.data()) == nullptr) ADD_FAILURE() << "no temporary directory";
        root = fs::u8path(pattern);
        for (const char* part : {"kept", "app", "app/திரட்டு", "build"}) {
            fs::create_directories(root / fs::u8path(part));
        }
        fillFile(object(), "object");
        fillFile(module(), "நூல்");
    }
    ~Store() override {
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }

    fs::path object() const { return root / fs::u8path("app/திரட்டு/error_handler_native_linux.o"); }
    std::string module() const { return (root / "m").u8string(); }

    ProgramStore store(const std::string& source = "a.பொழில்") const {
        return {(root / "kept").u8string(), (root / "app").u8string(), source};
    }

    /// Keeps a program whose text says what it is.
    std::string keep(const ProgramStore& store, const std::string& sourceText,
                     const std::vector<std::string>& modules = {}) const {
        const fs::path built = root / "build" / "program";
        fillFile(built, "program of " + sourceText);
        fs::permissions(built, fs::perms::owner_all);
        NotingReader reader;
        for (const std::string& path : modules) {
            std::string text;
            reader(path, text);
        }
        return store.keep(built.u8string(), sourceText, reader.asked);
    }

    static std::string textOf(const std::optional<std::string>& program) {
        std::string text = "none";
        if (program) readFile(*program, text);
        return text;
    }

    std::size_t countKept() const {
        std::size_t count = 0;
        for (const auto& entry : fs::directory_iterator(root / "kept")) {
            count += entry.path().filename().u8string().rfind("நிரல்-", 0) == 0 ? 1U : 0U;
        }
        return count;
    }

    fs::path root;
};

TEST_F(Store, FindsWhatItKept) {
    EXPECT_FALSE(store().find("text"));
    const std::string kept = keep(store(), "text");
    EXPECT_EQ(store().find("text"), kept);
    EXPECT_EQ(textOf(kept), "program of text");
    EXPECT_FALSE(fs::exists(root / "build" / "program")) << "it was moved, not copied";
}

TEST_F(Store, FindsNothingForAnotherTextOrPath) {
    keep(store(), "text");
    EXPECT_FALSE(store().find("text "));
    EXPECT_FALSE(store("./a.பொழில்").find("text")) << "a program carries the path of its source";
}

TEST_F(Store, FindsNothingIfAModuleChanges) {
    const std::string absent = (root / "absent").u8string();
    keep(store(), "text", {absent, module()});
    EXPECT_TRUE(store().find("text"));
    fillFile(module(), "வேறு");
    EXPECT_FALSE(store().find("text"));
    fillFile(module(), "நூல்");
    EXPECT_TRUE(store().find("text"));
    fillFile(absent, "");
    EXPECT_FALSE(store().find("text")) << "an empty module is another thing than none";
}

TEST_F(Store, KeepsWhatTheModuleWasWhenItWasRead) {
    NotingReader reader;
    std::string text;
    EXPECT_TRUE(reader(module(), text));
    fillFile(module(), "வேறு");
    EXPECT_TRUE(reader(module(), text));
    EXPECT_EQ(text, "நூல்");
    ASSERT_EQ(reader.asked.size(), 1U);
    fillFile(root / "build" / "program", "");
    store().keep((root / "build" / "program").u8string(), "text", reader.asked);
    EXPECT_FALSE(store().find("text"));
}

TEST_F(Store, FindsNothingIfWhatBuildsItChanges) {
    keep(store(), "text");
    fillFile(object(), "another object");
    EXPECT_FALSE(store().find("text"));
}

TEST_F(Store, ForgetsWhatASourceWasBefore) {
    keep(store(), "one");
    keep(store(), "two");
    EXPECT_EQ(countKept(), 1U);
    EXPECT_FALSE(store().find("one"));
    EXPECT_TRUE(store().find("two"));
}

TEST_F(Store, DoesNotGrowWithTheNumberOfSources) {
    for (int i = 0; i < 12; i++) keep(store("a" + std::to_string(i) + ".பொழில்"), "text");
    EXPECT_EQ(countKept(), 8U);
    EXPECT_TRUE(store("a11.பொழில்").find("text")) << "the last";
}

TEST_F(Store, IsNotFilledWithWhatItCannotFindAgain) {
    const std::string built = keep(store(), "text", {"line\nend"});
    EXPECT_EQ(built, (root / "build" / "program").u8string());
    EXPECT_EQ(countKept(), 0U);
}

TEST(DigestOfPieces, TellsThemApart) {
    EXPECT_EQ(Digest().add("ab").add("c").text(), Digest().add("ab").add("c").text());
    EXPECT_NE(Digest().add("ab").add("c").text(), Digest().add("a").add("bc").text());
    EXPECT_NE(Digest().add("a").text(), Digest().add("b").text());
    EXPECT_NE(Digest().text(), Digest().add("").text());
    EXPECT_EQ(Digest().add("a").text().size(), 32U);
}

}  // namespace
