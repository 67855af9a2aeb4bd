// What visitors get: the page, the text of the program, and the fonts.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <sstream>
#include <stdexcept>

#include "companion/check/compiled_source.h"
#include "companion/publish/failure.h"
#include "companion/publish/fonts.h"
#include "companion/publish/published_page.h"
#include "companion/publish/release_text.h"
#include "companion/publish/starting_folder.h"
#include "companion/publish/web_release.h"
#include "files.h"
#include "generator/generator.h"
#include "support/case_files.h"
#include "support/pattern.h"
#include "web/scratch_directory.h"

namespace {

namespace fs = std::filesystem;

using companion::TamilFont;

const std::string kCompanions = POZHIL_ROOT "/உள்ளடக்கம்/";

std::string templateText() { return readText(kCompanions + "template.html"); }
std::string visitorsText() { return readText(kCompanions + "published.js"); }

const std::vector<companion::ProgramFile> kFiles = {{"index.js", "index.1.js", 10},
                                                    {"index.wasm", "index.2.wasm", 20},
                                                    {"index.data", "index.3.data", 30}};

std::string pageOf(const PageHead& head = {"த", "", "red"},
                   const std::vector<companion::FontFile>& fonts = {{400, "r.ttf"},
                                                                    {700, "b.ttf"}}) {
    return companion::publishedPage(templateText(), visitorsText(), head, kFiles, fonts);
}

int count(const std::string& text, const std::string& part) {
    int found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        found++;
    }
    return found;
}

TEST(PublishedPage, HasNothingOfTheDevelopmentServer) {
    const std::string page = pageOf();
    for (const char* gone :
         {"/version", "currentVersion", "no-store", "setInterval(() => {\n                fetch",
          "முனையத்தில் உள்ள", "முனையத்தில் பொழில்", "{{{", "}}}", "\"index.js\""}) {
        EXPECT_EQ(count(page, gone), 0) << gone;
    }
    EXPECT_EQ(count(page, "</body>"), 1);
    EXPECT_EQ(count(page, "<title>த</title>"), 1);
}

TEST(PublishedPage, LeadsToEachFileByItsAddress) {
    const std::string page = pageOf();
    EXPECT_EQ(count(page, "<script async type=\"text/javascript\" src=\"index.1.js\"></script>"),
              1);
    EXPECT_EQ(count(page, "'index.js': {address: 'index.1.js', bytes: 10}"), 1);
    EXPECT_EQ(count(page, "'index.wasm': {address: 'index.2.wasm', bytes: 20}"), 1);
    EXPECT_EQ(count(page, "'index.data': {address: 'index.3.data', bytes: 30}"), 1);
    EXPECT_EQ(count(page, "href=\"index.2.wasm\" as=\"fetch\" crossorigin>"), 1);
    EXPECT_EQ(count(page, "as=\"fetch\""), 2);
    EXPECT_EQ(count(page, "href=\"index.3.data\" as=\"fetch\" crossorigin>"), 1);
    EXPECT_EQ(count(page, "url(\"r.ttf\")"), 1);
    EXPECT_EQ(count(page, "url(\"b.ttf\")"), 1);
    EXPECT_EQ(count(pageOf({"த", "", "red"}, {}), "@font-face"), 0);
}

TEST(PublishedPage, HasItsStyleInTheHead) {
    const std::string page = pageOf();
    EXPECT_LT(page.find("@font-face"), page.find("</head>"));
    EXPECT_LT(page.find("rel=\"preload\""), page.find("</head>"));
}

TEST(PublishedPage, ReachesNothingOutside) {
    EXPECT_FALSE(Pattern("(src|href)=\"(https?:)?/").isIn(pageOf()));
    EXPECT_FALSE(Pattern("(https?:)?//[a-z0-9.-]+\\.[a-z]").isIn(pageOf()));
}

/// The names that stand at the margin of a section.
std::vector<std::string> definedIn(const std::string& section) {
    std::vector<std::string> names;
    std::istringstream lines(section);
    for (std::string line; std::getline(lines, line);) {
        for (const std::string kind : {"const ", "let ", "function "}) {
            const std::string begin = std::string(12, ' ') + kind;
            if (line.rfind(begin, 0) != 0) continue;
            const std::string rest = line.substr(begin.size());
            names.push_back(rest.substr(0, rest.find_first_of(" (;")));
        }
    }
    return names;
}

/// Not as a member of something else.
bool isAskedFor(const std::string& text, const std::string& name) {
    for (std::size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
        const auto isOfAName = [](char byte) {
            return std::isalnum(static_cast<unsigned char>(byte)) != 0;
        };
        const char before = text[at - 1];
        if (before != '.' && !isOfAName(before) && !isOfAName(text[at + name.size()])) return true;
    }
    return false;
}

/// What the rest of the page asks of the section is there in both.
TEST(PublishedPage, KnowsWhatTheRestOfThePageAsks) {
    const std::string development = templateText();
    const std::size_t from = development.find("// ---- The server ----");
    const std::size_t to = development.find("// ---- The window ----");
    ASSERT_LT(from, to);
    const std::string section = development.substr(from, to - from);
    const std::string rest = development.substr(0, from) + development.substr(to);

    int shared = 0;
    for (const std::string& name : definedIn(section)) {
        if (!isAskedFor(rest, name)) continue;
        shared++;
        const std::vector<std::string> visitors = definedIn(visitorsText());
        EXPECT_NE(std::find(visitors.begin(), visitors.end(), name), visitors.end()) << name;
    }
    EXPECT_GE(shared, 6);
}

TEST(PublishedPage, TakesATitleAsItStands) {
    const std::string title = "// ---- The window ----";
    EXPECT_EQ(count(pageOf({title, "", "red"}), "<title>" + title + "</title>"), 1);
}

TEST(PublishedPage, RefusesATemplateWithoutTheSection) {
    EXPECT_THROW(companion::publishedPage("<head></head><body></body>", "", {}, {}, {}),
                 companion::PublishFailure);
}

std::string generatedFrom(const std::string& text) {
    const companion::SourceText source("a.பொழில்", text);
    const companion::CompiledSource compiled(source, readFile);
    EXPECT_FALSE(compiled.refused.has_value());
    const Parser& parser = *compiled.parser;
    Generator generator(compiled.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, text, "a.பொழில்");
    return generator.generate();
}

std::string applicationWith(const std::string& shown, const std::string& database = "") {
    return "வலைதளம் மலர்(\n" + database +
           "    தலைமை(\n        இணைய_தலைப்பு: \"மலர்\"\n    )\n    குமரி(\n        உரை(\"" + shown +
           "\")\n    )\n    வரையறை(\n        எண்ணிக்கை = 0\n    )\n)\n";
}

TEST(ReleaseText, LosesTheFontOfTheNetAndTheLooksForErrors) {
    const std::string code = generatedFrom(applicationWith("வணக்கம்"));
    ASSERT_EQ(count(code, "fonts.googleapis"), 1);
    ASSERT_EQ(count(code, "| NVG_DEBUG"), 1);
    const std::string release = companion::releaseText(code, TamilFont::OfPage);
    EXPECT_EQ(count(release, "fonts.googleapis"), 0);
    EXPECT_EQ(count(release, "NVG_DEBUG"), 0);
    EXPECT_EQ(count(release, "font-feature-settings"), 1) << "the rest of the style stays";
    EXPECT_EQ(count(companion::releaseText(code, TamilFont::OfNet), "fonts.googleapis"), 1);
}

TEST(ReleaseText, KeepsWhatTheProgramItselfSays) {
    const std::string said = "NVG_STENCIL_STROKES | NVG_DEBUG";
    const std::string code = generatedFrom(applicationWith(said));
    ASSERT_GE(count(code, said), 2);
    const std::string release = companion::releaseText(code, TamilFont::OfPage);
    EXPECT_EQ(count(release, said), count(code, said) - 1);
    EXPECT_EQ(count(release, "nvgCreateGLES2(NVG_ANTIALIAS | NVG_STENCIL_STROKES)"), 1);
}

TEST(ReleaseText, IsNothingElse) {
    EXPECT_THROW(companion::releaseText("int main() {}", TamilFont::OfPage), std::logic_error);
}

TEST(ReleaseText, TellsWhichScriptsComeFromOtherHosts) {
    EXPECT_TRUE(companion::scriptsOfOtherHosts(generatedFrom(applicationWith("வணக்கம்"))).empty());
    const std::string database =
        "    தரவுத்தளமேலாண்மை(\n        பயர்பேசு_அமைப்பு(\n            database_url: \"https://a.example\"\n"
        "        )\n    )\n";
    const auto scripts =
        companion::scriptsOfOtherHosts(generatedFrom(applicationWith("வணக்கம்", database)));
    ASSERT_EQ(scripts.size(), 2U);
    for (const std::string& script : scripts) EXPECT_EQ(script.rfind("https://", 0), 0U) << script;
    EXPECT_NE(scripts[0], scripts[1]);
}

TEST(ReleaseScript, LosesThePlaceOfItsBuild) {
    const std::string script =
        "var PACKAGE_NAME=\"/home/வேலன்/x/index.data\";f(\"datafile_/home/வேலன்/x/index.data\");"
        "loadPackage({\"package_uuid\":\"3b42ad66-52dc\"})";
    const std::string clean = companion::withoutTraces(script);
    EXPECT_EQ(count(clean, "வேலன்"), 0);
    EXPECT_EQ(count(clean, "3b42ad66"), 0);
    EXPECT_EQ(count(clean, "f(\"datafile_index.data\")"), 1);
    EXPECT_EQ(companion::withoutTraces("var a=1;"), "var a=1;");
}

using Fonts = ScratchDirectory;

TEST_F(Fonts, OfThePageAreAllThereOrNone) {
    write("one/NotoSansTamil-Regular.ttf", "regular");
    EXPECT_TRUE(companion::findPageFonts({"none", "one"}).empty());
    write("two/NotoSansTamil-Bold.ttf", "bold");
    write("two/NotoSansTamil-Regular.ttf", "another");
    const auto fonts = companion::findPageFonts({"none", "one", "two"});
    ASSERT_EQ(fonts.size(), 2U);
    EXPECT_EQ(fonts[0].weight, 400);
    EXPECT_EQ(fonts[0].content, "regular");
    EXPECT_EQ(fonts[1].weight, 700);
    EXPECT_EQ(fonts[1].content, "bold");
}

TEST_F(Fonts, OfTheProgramComeFromAStoreWhereItsFolderLacksThem) {
    write("assets/font/Coiny-Regular.ttf", "its own");
    write("store/Coiny-Regular.ttf", "another");
    auto lacking = companion::lackingProgramFonts({"store"});
    ASSERT_EQ(lacking.size(), 1U);
    EXPECT_EQ(lacking[0].name, "assets/font/Tamil-Regular.ttf");
    EXPECT_EQ(lacking[0].path, "");
    write("system/NotoSansTamil-Regular.ttf", "alike");
    EXPECT_EQ(companion::lackingProgramFonts({"store", "system"})[0].path,
              "system/NotoSansTamil-Regular.ttf");
    write("store/Tamil-Regular.ttf", "itself");
    EXPECT_EQ(companion::lackingProgramFonts({"store", "system"})[0].path,
              "store/Tamil-Regular.ttf");
}

class StartingFolder : public ScratchDirectory {
protected:
    /// Where `path` is built, from here.
    std::string placeOf(const std::string& path) const {
        std::string text;
        EXPECT_TRUE(readFile(path, text));
        companion::goWhereItIsBuilt({path, text});
        const std::string place = fs::relative(fs::current_path(), directory).u8string();
        fs::current_path(directory);
        return place;
    }
};

TEST_F(StartingFolder, OfAnApplicationIsItsOwn) {
    write("தளம்/a.பொழில்", applicationWith("வணக்கம்"));
    EXPECT_EQ(placeOf("தளம்/a.பொழில்"), "தளம்");
    write("a.பொழில்", applicationWith("வணக்கம்"));
    EXPECT_EQ(placeOf("a.பொழில்"), ".");
}

TEST_F(StartingFolder, IsHereWhereOnlyHereItsAssetsAre) {
    write("தளம்/a.பொழில்", applicationWith("வணக்கம்"));
    write("assets/a.png", "");
    EXPECT_EQ(placeOf("தளம்/a.பொழில்"), ".");
    write("தளம்/assets/a.png", "");
    EXPECT_EQ(placeOf("தளம்/a.பொழில்"), "தளம்");
}

TEST_F(StartingFolder, IsWhereItsModulesAre) {
    write("தளம்/a.பொழில்", "நூஇறக்கி \"உதவி.பொழில்\"\n" + applicationWith("வணக்கம்"));
    write("தளம்/உதவி.பொழில்", "எண்ணிக்கை = 1\n");
    EXPECT_EQ(placeOf("தளம்/a.பொழில்"), "தளம்");
    fs::remove(fs::u8path("தளம்/உதவி.பொழில்"));
    write("உதவி.பொழில்", "எண்ணிக்கை = 1\n");
    EXPECT_EQ(placeOf("தளம்/a.பொழில்"), ".");
}

TEST_F(StartingFolder, OfAConsoleProgramIsHere) {
    write("கணக்கு/a.பொழில்", "எண்ணிக்கை = 1\n");
    EXPECT_EQ(placeOf("கணக்கு/a.பொழில்"), ".");
    write("கணக்கு/b.பொழில்", "எண்ணிக்கை = (\n");
    EXPECT_EQ(placeOf("கணக்கு/b.பொழில்"), ".");
}

}  // namespace
