// The reference, docs/குறிப்பேடு: its files are what the tables give, no other lies there, and every
// word of the compiler's has its place in it. POZHIL_REWRITE=1 makes the files anew.
#include "companion/reference/reference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "companion/commands.h"
#include "companion/reference/builtin_facts.h"
#include "companion/reference/curves.h"
#include "companion/reference/entries.h"
#include "companion/reference/markdown.h"
#include "companion/reference/where.h"
#include "emitted_text.h"
#include "error_codes.h"
#include "generator/known_words.h"
#include "lexer/word_tables.h"
#include "links.h"
#include "support/case_files.h"
#include "support/pattern.h"
#include "syntax/alignment.h"
#include "ui/colours.h"
#include "ui/widget_frame.h"

namespace {

namespace fs = std::filesystem;
using namespace companion::reference;

const fs::path kFolder = fs::u8path(POZHIL_ROOT "/docs/குறிப்பேடு");

const std::vector<ReferenceFile>& files() {
    static const std::vector<ReferenceFile> all = referenceFiles(readSurroundings(POZHIL_ROOT));
    return all;
}

const std::string& textOf(const std::string& path) {
    static const std::string none;
    const auto found = std::find_if(files().begin(), files().end(),
                                    [&](const ReferenceFile& file) { return file.path == path; });
    EXPECT_NE(found, files().end()) << path;
    return found == files().end() ? none : found->text;
}

bool isRewriting() { return std::getenv("POZHIL_REWRITE") != nullptr; }

// ---- The files ----

TEST(Reference, IsMadeFromTheTables) {
    for (const ReferenceFile& file : files()) {
        const fs::path path = kFolder / fs::u8path(file.path);
        if (isRewriting()) fs::create_directories(path.parent_path());
        expectGolden({file.path, file.path, path.u8string()}, file.text);
    }
    EXPECT_GT(files().size(), 80U);
}

TEST(Reference, HoldsNoOtherFiles) {
    std::set<fs::path> known;
    for (const ReferenceFile& file : files()) {
        EXPECT_TRUE(known.insert(kFolder / fs::u8path(file.path)).second) << file.path;
    }
    std::vector<fs::path> others;
    for (const auto& entry : fs::recursive_directory_iterator(kFolder)) {
        if (entry.is_regular_file() && known.count(entry.path()) == 0) others.push_back(entry);
    }
    for (const fs::path& other : others) {
        if (isRewriting()) {
            fs::remove(other);
        } else {
            ADD_FAILURE() << other << " belongs to no page";
        }
    }
}

// ---- Where words are explained ----

std::set<std::string> wordsWithAPage() {
    std::set<std::string> words;
    for (const Entry& entry : allEntries()) words.insert(entry.word);
    return words;
}

std::set<std::string> curvesOfPrograms() {
    static const Pattern row("\\{\"([^\"]+)\",");
    std::set<std::string> curves;
    for (const Match& match : row.all(std::string(emitted::animation))) curves.insert(match[1]);
    return curves;
}

/// All words that scanner, generator, web form and catalogue know.
std::set<std::string> wordsOfTheCompiler() {
    std::set<std::string> words = curvesOfPrograms();
    for (const auto* table : {&kFirstWords, &IF_KEYWORDS, &WEB_KEYWORDS, &ANIMATION_KEYWORDS,
                              &OPERATOR_KEYWORDS, &ASSIGN_KEYWORDS, &INC_DEC_KEYWORDS}) {
        for (const auto& row : *table) words.insert(row.first);
    }
    for (const auto& names : {builtinNames(), inputCallNames(), inputPropertyNames(),
                              timeFieldNames(), widgetWords(), colourNames(), alignmentWords()}) {
        words.insert(names.begin(), names.end());
    }
    for (const auto& row : பிழை_அகராதி) words.insert(row.first);
    return words;
}

TEST(Reference, ExplainsEveryWordOfTheCompiler) {
    const std::set<std::string> explained = wordsWithAPage();
    const std::set<std::string> words = wordsOfTheCompiler();
    for (const std::string& word : words) EXPECT_EQ(explained.count(word), 1U) << word;
    EXPECT_GT(words.size(), 300U);
}

TEST(Reference, HasTheAnchorOfEachEntry) {
    std::map<std::string, std::set<std::string>> anchors;
    for (const ReferenceFile& file : files()) anchors[file.path] = anchorsOf(file.text);
    for (const Entry& entry : allEntries()) {
        ASSERT_EQ(anchors.count(entry.page), 1U) << entry.word << ": " << entry.page;
        if (entry.anchor.empty()) continue;
        EXPECT_EQ(anchors[entry.page].count(entry.anchor), 1U) << entry.page << "#" << entry.anchor;
    }
}

TEST(Reference, NamesEachEntryInTheTableOfAllWords) {
    const std::string& where = textOf(pages::kWhere);
    for (const Entry& entry : allEntries()) {
        EXPECT_NE(where.find("| " + linkTo(entry, pages::kWhere) + " |"), std::string::npos)
            << entry.word;
    }
}

TEST(Reference, TellsWhichReservedWordsAreNoNames) {
    const std::string& page = textOf(pages::kReserved);
    EXPECT_NE(page.find("`தெளிவு` | [`பொழில்-"), std::string::npos);
    EXPECT_NE(page.find("`மூலம்` | ஏற்கப்படும் |"), std::string::npos);
}

// ---- The guide's chapters ----

Chapter chapter(const std::string& file, const std::string& code, const std::string& text) {
    return {file, file, code, text};
}

std::string firstChapterOf(EntryKind kind, std::string_view word,
                           const std::vector<Chapter>& chapters) {
    const Chapter* found = chapterOf(entryOf(kind, word), chapters);
    return found == nullptr ? "" : found->file;
}

TEST(ReferenceWhere, FindsTheFirstUseOfAWord) {
    const std::vector<Chapter> chapters = {
        chapter("01", "அச்சிடு(\"நீளம்\") ஃ சுற்று\n", "நீளம் பற்றி"),
        chapter("02", "சுற்று அ.நீளம் சிறிது 3:\n", ""),
        chapter("03", "அ = நீளம்(ஆ)\nஉரை(\"அ\", நிறம்: \"சிவப்பு\")\n", "பொழில்-203"),
    };
    EXPECT_EQ(firstChapterOf(EntryKind::Keyword, "அச்சிடு", chapters), "01");
    EXPECT_EQ(firstChapterOf(EntryKind::Keyword, "சுற்று", chapters), "02");
    EXPECT_EQ(firstChapterOf(EntryKind::Member, "நீளம்", chapters), "02");
    EXPECT_EQ(firstChapterOf(EntryKind::BuiltIn, "நீளம்", chapters), "03");
    EXPECT_EQ(firstChapterOf(EntryKind::Widget, "உரை", chapters), "03");
    EXPECT_EQ(firstChapterOf(EntryKind::Property, "நிறம்", chapters), "03");
    EXPECT_EQ(firstChapterOf(EntryKind::Colour, "சிவப்பு", chapters), "03");
    EXPECT_EQ(firstChapterOf(EntryKind::Code, "பொழில்-203", chapters), "03");
    EXPECT_EQ(firstChapterOf(EntryKind::Mark, "=", chapters), "03");
    EXPECT_EQ(firstChapterOf(EntryKind::Mark, "ஃ", chapters), "01");
    EXPECT_EQ(firstChapterOf(EntryKind::Mark, "{", chapters), "");
    EXPECT_EQ(firstChapterOf(EntryKind::BuiltIn, "பிளவு", chapters), "");
}

void writeFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
}

TEST(ReferenceWhere, ReadsChaptersWithTheirPrograms) {
    const fs::path root = fs::u8path(POZHIL_BUILD_DIR "/reference_chapters");
    fs::remove_all(root);
    const fs::path guide = root / "docs" / fs::u8path("வழிகாட்டி");
    writeFile(guide / fs::u8path("02_சுற்று.md"), "# இரண்டு\n");
    writeFile(guide / fs::u8path("01_முதல்.md"),
              "# முதல் `நிரல்`\n\nசொல் `கூட்டு`.\n\n```பொழில் 01/அ\nகழி\n```\n\n```அறிக்கை\nவகு\n```\n");
    writeFile(guide / "README.md", "# எல்லாம்\n");
    writeFile(root / "docs" / fs::u8path("நிரல்கள்") / "01" / fs::u8path("அ.பொழில்"), "மீதி\n");
    writeFile(root / "docs" / fs::u8path("படங்கள்") / fs::u8path("உரை.png"), "");

    const Surroundings around = readSurroundings(root.u8string());
    ASSERT_EQ(around.chapters.size(), 2U);
    EXPECT_EQ(around.chapters[0].file, "01_முதல்.md");
    EXPECT_EQ(around.chapters[0].title, "முதல் `நிரல்`");
    EXPECT_EQ(around.chapters[0].code, "நிரல்\nகூட்டு\nகழி\nமீதி\n\n");
    EXPECT_NE(around.chapters[0].text.find("வகு"), std::string::npos);
    EXPECT_EQ(around.chapters[1].title, "இரண்டு");
    EXPECT_EQ(around.pictures, (std::set<std::string>{"உரை"}));
}

TEST(ReferenceWhere, TellsCallsFromMembersAndWidgetsFromProperties) {
    const std::vector<Chapter> chapters = {chapter("01", "அ.நீளம்()\nநிறம் = உரை: 1\n", ""),
                                           chapter("02", "நீளம்(அ)\nஅ: நிறம்\n", ""),
                                           chapter("03", "உரை(நிறம்: 1)\n", "")};
    const std::vector<Chapter> turned(chapters.rbegin(), chapters.rend());
    EXPECT_EQ(firstChapterOf(EntryKind::BuiltIn, "நீளம்", chapters), "02");
    EXPECT_EQ(firstChapterOf(EntryKind::Member, "நீளம்", turned), "01");
    EXPECT_EQ(firstChapterOf(EntryKind::Widget, "உரை", chapters), "03");
    EXPECT_EQ(firstChapterOf(EntryKind::Property, "நிறம்", chapters), "03");
}

TEST(ReferenceWhere, TakesAWordThatStandsInProseAlone) {
    const std::vector<Chapter> chapters = {chapter("01", "", "பிளவுகள்"),
                                           chapter("02", "", "பிளவு என்பது")};
    EXPECT_EQ(firstChapterOf(EntryKind::BuiltIn, "பிளவு", chapters), "02");
}

TEST(ReferenceWhere, LinksToTheChapter) {
    const MarkdownPage page = wherePage({{"02_சுற்று.md", "சுற்றுகள்", "சுற்று மெய்:\n", ""}});
    EXPECT_NE(page.text().find("| [`சுற்று`](திறவுச்சொற்கள்.md#சுற்று) | "
                               "[சுற்றுகள்](../வழிகாட்டி/02_சுற்று.md) |\n"),
              std::string::npos);
}

// ---- What pages say ----

TEST(Reference, KnowsWhatBuiltInCallsTakeAndMeet) {
    const BuiltinFacts replace = factsOf("பதில்");
    EXPECT_EQ(replace.least, 3);
    ASSERT_EQ(replace.arguments.size(), 3U);
    EXPECT_EQ(replace.arguments[2].cast, "std::string");
    EXPECT_EQ(replace.result, VarType::String);
    EXPECT_EQ(factsOf("கோப்பு_படி").codes,
              (std::vector<std::string>{"பொழில்-331", "பொழில்-341", "பொழில்-342", "பொழில்-344"}));
    EXPECT_EQ(factsOf("எண்").arguments[0].cast, "");
    EXPECT_THROW(factsOf("ஒன்று"), std::logic_error);
}

TEST(Reference, DrawsCurvesAsProgramsMove) {
    EXPECT_EQ(curvePoints("மெது_தொடக்கம்", 2), (std::vector<float>{0, 0.25F, 1}));
    EXPECT_EQ(curvePoints("easeIn", 2), (std::vector<float>{0, 0.25F, 1}));
}

TEST(Reference, TellsOfEachSettingThatIsRead) {
    static const Pattern reading("(?:getenv|settingOf)\\(\"([A-Z_]+)\"\\)");
    const std::string& page = textOf(pages::kCommands);
    std::set<std::string> settings;
    for (const auto& entry : fs::recursive_directory_iterator(fs::u8path(POZHIL_ROOT "/src"))) {
        if (entry.path().extension() != ".cpp") continue;
        const std::string text = readText(entry.path().u8string());
        if (text.find("getenv") == std::string::npos) continue;
        for (const Match& match : reading.all(text)) settings.insert(match[1]);
    }
    for (const std::string& setting : settings) {
        EXPECT_NE(page.find("| `" + setting + "` |"), std::string::npos) << setting;
    }
    EXPECT_GT(settings.size(), 3U);
}

TEST(Reference, TellsOfCommandsAndOfScriptsThatAreThere) {
    static const Pattern script("`(scripts/[^`]+)`");
    const std::string& page = textOf(pages::kCommands);
    for (const companion::Command& command : companion::commands()) {
        EXPECT_NE(page.find(std::string("| `") + command.name + "` |"), std::string::npos);
    }
    int count = 0;
    for (const Match& match : script.all(page)) {
        EXPECT_TRUE(fs::exists(fs::u8path(POZHIL_ROOT) / match[1])) << match[1];
        count++;
    }
    EXPECT_GT(count, 3);
}

// ---- Markdown ----

TEST(ReferenceMarkdown, EscapesWhatViewersWouldTakeForMarkup) {
    EXPECT_EQ(escaped("a<b & c|d *e* [f] `g`"), "a&lt;b &amp; c\\|d \\*e\\* \\[f\\] \\`g\\`");
    EXPECT_EQ(escaped("கோப்பு_படி, _எண், மாறிலி_ என்று"), "கோப்பு_படி, \\_எண், மாறிலி\\_ என்று");
    EXPECT_EQ(code("a|b"), "`a\\|b`");
    EXPECT_EQ(code("a`b"), "`` a`b ``");
}

TEST(ReferenceMarkdown, KeepsCellsInTheirRow) {
    MarkdownPage page("a.md", "தலைப்பு");
    page.table({"அ", "ஆ"}, {{escaped("ஒன்று\nஇரண்டு"), code("|")}});
    page.table({"அ"}, {});
    EXPECT_EQ(page.text(), "# தலைப்பு\n\n| அ | ஆ |\n| --- | --- |\n| ஒன்று இரண்டு | `\\|` |\n\n");
}

TEST(ReferenceMarkdown, ShowsAProgramOnceAPage) {
    MarkdownPage page("a.md", "தலைப்பு");
    page.heading(2, "அ", "அ");
    page.program("அச்சிடு(1)\n", "1\n");
    const std::string once = page.text();
    EXPECT_NE(once.find("```பொழில்\nஅச்சிடு(1)\n```\n\n```வெளியீடு\n1\n```\n"), std::string::npos);
    page.heading(2, "ஆ", "ஆ");
    page.program("அச்சிடு(1)\n", "1\n");
    page.program("", "");
    const std::string added = page.text().substr(once.size());
    EXPECT_EQ(added.find("```"), std::string::npos);
    EXPECT_NE(added.find("(#அ)"), std::string::npos);
}

/// Lines outside of fences, each once.
std::set<std::string> linesOfProse() {
    std::set<std::string> lines;
    for (const ReferenceFile& file : files()) {
        if (file.path.find(".md") == std::string::npos) continue;
        std::istringstream text(file.text);
        bool isInside = false;
        for (std::string line; std::getline(text, line);) {
            if (line.rfind("```", 0) == 0) isInside = !isInside;
            if (!isInside) lines.insert(line);
        }
        EXPECT_FALSE(isInside) << file.path;
    }
    return lines;
}

TEST(ReferenceMarkdown, HoldsNoOtherTagsThanAnchors) {
    static const Pattern spans("`[^`]*`|<a id=\"[^\"]+\"></a>");
    for (const std::string& line : linesOfProse()) {
        EXPECT_EQ(spans.replaced(line, "").find('<'), std::string::npos) << line;
    }
}

TEST(ReferenceMarkdown, BeginsNoProseWithASignOfMarkup) {
    static const Pattern opening("^(?:[+>=]|\\*(?!\\*)|-[^ ]|[0-9]+[.)]).*");
    for (const std::string& line : linesOfProse()) {
        EXPECT_FALSE(opening.isWhole(line)) << line;
    }
}

}  // namespace
