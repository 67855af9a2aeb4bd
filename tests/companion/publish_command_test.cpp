// publish as a command, with an em++ that does as it is told.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "companion/publish/content_name.h"
#include "support/case_files.h"
#include "support/subprocess.h"
#include "web/scratch_directory.h"

namespace {

namespace fs = std::filesystem;

using companion::contentName;

const std::string kApplication =
    "வலைதளம் மலர்(\n    தலைமை(\n        இணைய_தலைப்பு: \"மலர்த் தளம்\"\n    )\n"
    "    குமரி(\n        உரை(\"வணக்கம்\")\n    )\n    வரையறை(\n        எண்ணிக்கை = 0\n    )\n)\n";

const std::string kDatabase =
    "    தரவுத்தளமேலாண்மை(\n        பயர்பேசு_அமைப்பு(\n"
    "            database_url: \"https://நூலகம்.example\"\n        )\n    )\n";

/// What stands behind -o, in $output.
const std::string kReadOutput =
    "while [ $# -gt 0 ]; do [ \"$1\" != -o ] || output=$2; shift; done\n";
const std::string kBuilt =
    "printf '%s' 'var PACKAGE_NAME=\"/x/index.data\";' >\"$output\"\n"
    "printf wasm >\"${output%.js}.wasm\"; printf data >\"${output%.js}.data\"\n";

const std::string kScript = "var PACKAGE_NAME=\"index.data\";";

class PublishCommand : public ScratchDirectory {
protected:
    PublishCommand() : home(directory / "வீடு"), work(directory / "வேலை யில்") {
        for (const char* folder : {"வீடு/திரட்டு", "bin", "tmp", "வேலை யில்"}) {
            fs::create_directories(directory / fs::u8path(folder));
        }
        fs::copy_file(fs::u8path(POZHIL_EXECUTABLE_DIR "/பொழில்-துணை"), home / "companion");
        fs::create_directory_symlink(fs::u8path(POZHIL_ROOT "/உள்ளடக்கம்"),
                                     home / fs::u8path("உள்ளடக்கம்"));
        write("வீடு/திரட்டு/error_handler_web.o", "");
        write("வீடு/திரட்டு/nanovg_web.o", "");
        write("வேலை யில்/மலர்.பொழில்", kApplication);
        fakeCompiler(kBuilt);
    }

    /// em++ notes its words in the file `words`, a line each, and then does `script`.
    void fakeCompiler(const std::string& script) const {
        write("bin/em++", "#!/bin/sh\nprintf '%s\\n' \"$@\" >'" + (directory / "words").u8string() +
                              "'\n" + kReadOutput + script);
        fs::permissions(directory / "bin/em++", fs::perms::owner_all);
    }

    ProcessOptions options() const {
        return {work.u8string(),
                {"TMPDIR=" + (directory / "tmp").u8string(),
                 "PATH=" + (directory / "bin").u8string() + ":/usr/bin:/bin", "LC_ALL=C.UTF-8"},
                "",
                120};
    }

    ProcessResult publish(const std::string& source, const std::string& folder) const {
        return runCommand({(home / "companion").u8string(), "வெளியிடு", source, folder}, options());
    }

    std::set<std::string> namesIn(const fs::path& folder) const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) {
            names.insert(entry.path().filename().u8string());
        }
        return names;
    }

    const fs::path home;
    const fs::path work;
};

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(PublishCommand, WritesAFolderWithAllThatVisitorsNeed) {
    const ProcessResult result = publish("மலர்.பொழில்", "என் தளம்");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    const auto names = namesIn(work / fs::u8path("என் தளம்"));
    for (const std::string& name :
         {contentName("index.js", kScript), contentName("index.wasm", "wasm"),
          contentName("index.data", "data")}) {
        EXPECT_EQ(names.count(name), 1U) << name;
        EXPECT_TRUE(holds(result.out, name)) << result.out;
        EXPECT_TRUE(holds(read("வேலை யில்/என் தளம்/index.html"), name)) << name;
    }
    EXPECT_TRUE(holds(read("வேலை யில்/என் தளம்/index.html"), "<title>மலர்த் தளம்</title>"));
    EXPECT_TRUE(holds(result.out, "சுருக்கினால்"));
    EXPECT_TRUE(holds(result.out, "மொத்தம்"));
    EXPECT_FALSE(holds(result.out, "தரவுத்தள"));
    EXPECT_TRUE(fs::is_empty(directory / "tmp/Pozhil_Cache") ||
                namesIn(directory / "tmp/Pozhil_Cache").count("publish") == 0);
}

TEST_F(PublishCommand, BuildsForRelease) {
    ASSERT_EQ(publish("மலர்.பொழில்", "தளம்").exitCode, 0);
    const std::string words = read("words");
    for (const char* word :
         {"-O2\n", "-g0\n", "ASSERTIONS=0\n", "--bind\n", "published_library.js\n"}) {
        EXPECT_TRUE(holds(words, word)) << word << words;
    }
}

TEST_F(PublishCommand, TakesAssetsFromTheFolderOfTheApplication) {
    write("வேலை யில்/assets/font/Coiny-Regular.ttf", "");
    write("வேலை யில்/assets/font/Tamil-Regular.ttf", "");
    write("bin/where", "");
    fakeCompiler("pwd >'" + (directory / "bin/where").u8string() + "'\n" + kBuilt);
    ProcessOptions above = options();
    above.directory = directory.u8string();
    const ProcessResult result = runCommand(
        {(home / "companion").u8string(), "publish", "வேலை யில்/மலர்.பொழில்", "தளம்"}, above);
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(read("bin/where"), work.u8string() + "\n");
    EXPECT_TRUE(holds(read("words"), "--preload-file\nassets\n"));
    EXPECT_FALSE(holds(read("words"), "@"));
    EXPECT_TRUE(fs::exists(directory / fs::u8path("தளம்/index.html"))) << "from where one stands";
}

TEST_F(PublishCommand, TellsOfTheDatabase) {
    std::string text = kApplication;
    text.insert(text.find('\n') + 1, kDatabase);
    write("வேலை யில்/மலர்.பொழில்", text);
    const ProcessResult result = publish("மலர்.பொழில்", "தளம்");
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_TRUE(holds(result.out, "https://நூலகம்.example")) << result.out;
    EXPECT_TRUE(holds(result.out, "-database-compat.js")) << result.out;
    EXPECT_TRUE(holds(result.out, "-app-compat.js")) << result.out;
}

TEST_F(PublishCommand, StopsAtMistakesOfTheSource) {
    write("வேலை யில்/மலர்.பொழில்", "எண்ணிக்கை = (\n");
    const ProcessResult result = publish("மலர்.பொழில்", "தளம்");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(holds(result.err, "மலர்.பொழில்:1:")) << result.err;
    EXPECT_FALSE(fs::exists(work / fs::u8path("தளம்")));
    EXPECT_FALSE(fs::exists(directory / "words"));
}

TEST_F(PublishCommand, StopsAtAMistakeThatACommentSilences) {
    write("வேலை யில்/மலர்.பொழில்", "தொகை = அறியாதது(1)  ஃ துணை-200\n");
    const ProcessResult result = publish("மலர்.பொழில்", "தளம்");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(holds(result.err, "அறியாதது")) << result.err;
    EXPECT_FALSE(fs::exists(work / fs::u8path("தளம்")));
}

TEST_F(PublishCommand, RefusesAForeignFolderBeforeItBuilds) {
    write("வேலை யில்/கவிதைகள்/முதல்.txt", "theirs");
    const ProcessResult result = publish("மலர்.பொழில்", "கவிதைகள்");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(holds(result.err, "கவிதைகள்")) << result.err;
    EXPECT_EQ(namesIn(work / fs::u8path("கவிதைகள்")), std::set<std::string>{"முதல்.txt"});
    EXPECT_FALSE(fs::exists(directory / "words"));
}

TEST_F(PublishCommand, RefusesAFolderThatWouldBePacked) {
    fs::create_directory(work / "assets");
    EXPECT_EQ(publish("மலர்.பொழில்", "assets/தளம்").exitCode, 1);
    EXPECT_EQ(publish("மலர்.பொழில்", "assets").exitCode, 1);
    EXPECT_TRUE(fs::is_empty(work / "assets"));
    EXPECT_EQ(publish("மலர்.பொழில்", "assetsதளம்").exitCode, 0);
}

TEST_F(PublishCommand, LeavesTheFolderAsItWasWhenTheBuildFails) {
    ASSERT_EQ(publish("மலர்.பொழில்", "தளம்").exitCode, 0);
    const auto before = namesIn(work / fs::u8path("தளம்"));
    fakeCompiler("echo 'em++: error: no such thing'; exit 1");
    const ProcessResult result = publish("மலர்.பொழில்", "தளம்");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(holds(result.err, "em++: error: no such thing")) << result.err;
    EXPECT_EQ(namesIn(work / fs::u8path("தளம்")), before);
}

TEST_F(PublishCommand, SaysWhatIsMissing) {
    fs::remove(home / fs::u8path("திரட்டு/nanovg_web.o"));
    const ProcessResult result = publish("மலர்.பொழில்", "தளம்");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(holds(result.err, "scripts/setup_web.sh")) << result.err;
}

TEST_F(PublishCommand, IsUsedWithASourceAndAFolder) {
    const std::string companion = (home / "companion").u8string();
    EXPECT_EQ(runCommand({companion, "publish", "மலர்.பொழில்"}, options()).exitCode, 2);
    EXPECT_EQ(publish("இல்லை.பொழில்", "தளம்").exitCode, 2);
    EXPECT_EQ(publish("மலர்.பொழில்", "").exitCode, 2);
}

TEST_F(PublishCommand, EndsInOrderByCtrlC) {
    const std::string begun = (directory / "begun").u8string();
    fakeCompiler("touch \"$output\"; echo $$ >'" + begun + "'; exec sleep 100");
    const std::string script =
        "\"$0\" publish மலர்.பொழில் தளம் & tool=$!\n"
        "while [ ! -s '" +
        begun +
        "' ]; do sleep 0.05; done\n"
        "kill -INT $tool; wait $tool; status=$?\n"
        "for look in $(seq 200); do\n"
        "    state=$(sed 's/.*) //; s/ .*//' /proc/$(cat '" +
        begun +
        "')/stat 2>/dev/null)\n"
        "    [ \"${state:-Z}\" != Z ] || exit $status\n"
        "    sleep 0.05\n"
        "done\nexit 99\n";
    const ProcessResult result =
        runCommand({"sh", "-c", script, (home / "companion").u8string()}, options());
    EXPECT_EQ(result.exitCode, 130) << result.err;
    EXPECT_EQ(namesIn(work), std::set<std::string>{"மலர்.பொழில்"});
    EXPECT_EQ(namesIn(directory / "tmp/Pozhil_Cache").count("publish"), 0U);
}

TEST_F(PublishCommand, TakesTurns) {
    fakeCompiler("[ ! -e '" + (directory / "busy").u8string() + "' ] || exit 1\n: >'" +
                 (directory / "busy").u8string() + "'\nsleep 0.3\nrm '" +
                 (directory / "busy").u8string() + "'\n" + kBuilt);
    const std::string script =
        "\"$0\" publish மலர்.பொழில் தளம் & one=$!\n\"$0\" publish மலர்.பொழில் தளம் & other=$!\n"
        "wait $one || exit 1; wait $other || exit 2\n";
    const ProcessResult result =
        runCommand({"sh", "-c", script, (home / "companion").u8string()}, options());
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(namesIn(work / fs::u8path("தளம்")).count("index.html"), 1U);
}

class PublishedProgram : public PublishCommand {
protected:
    /// g++ notes its words, and its output is a script that greets, unless `refusal` ends it.
    void fakeNative(const std::string& refusal = "") const {
        write("வேலை யில்/கூட்டல்.பொழில்", "எண்ணிக்கை = 1\n");
        write("bin/g++", "#!/bin/sh\nprintf '%s\\n' \"$@\" >>'" + (directory / "words").u8string() +
                             "'\n" + refusal + kReadOutput +
                             "printf '#!/bin/sh\\necho வணக்கம்\\n' >\"$output\"\n");
        fs::permissions(directory / "bin/g++", fs::perms::owner_all);
        write("வீடு/திரட்டு/error_handler_native_linux.o", "");
    }

    /// The precompiled text stands beside the companion.
    void warm() const {
        fs::remove(home / fs::u8path("உள்ளடக்கம்"));
        write("வீடு/உள்ளடக்கம்/nanovg/held_instances.h", "");
        write("வீடு/src/warmed_header.h", "");
    }
};

TEST_F(PublishedProgram, RunsByItself) {
    fakeNative();
    const ProcessResult result = publish("கூட்டல்.பொழில்", "நிரல்கள்");
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(namesIn(work / fs::u8path("நிரல்கள்")),
              (std::set<std::string>{".pozhil-published", "கூட்டல்"}));
    EXPECT_EQ(runCommand({(work / fs::u8path("நிரல்கள்/கூட்டல்")).u8string()}).out, "வணக்கம்\n");
    for (const char* word : {"-O2\n", "-fwrapv\n", "-static\n"}) {
        EXPECT_TRUE(holds(read("words"), word)) << word;
    }
    EXPECT_FALSE(holds(read("words"), "-include\n"));
}

TEST_F(PublishedProgram, IsMadeWithTheTextOfTheCompilersOwnBuilds) {
    fakeNative();
    warm();
    ASSERT_EQ(publish("கூட்டல்.பொழில்", "நிரல்கள்").exitCode, 0);
    EXPECT_TRUE(holds(read("words"), "-include\n" + home.u8string() + "/src/warmed_header.h\n"));
}

TEST_F(PublishedProgram, IsMadeWithoutWhereThatDoesNotFit) {
    fakeNative("case \"$*\" in *-include*) echo 'does not fit' >&2; exit 1;; esac\n");
    warm();
    const ProcessResult result = publish("கூட்டல்.பொழில்", "நிரல்கள்");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(fs::exists(work / fs::u8path("நிரல்கள்/கூட்டல்")));
}

}  // namespace
