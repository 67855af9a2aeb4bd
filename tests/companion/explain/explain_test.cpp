// explain: what is found by which name, how it is wrapped, what the command returns.
#include <gtest/gtest.h>

#include <iostream>
#include <iterator>
#include <set>
#include <sstream>

#include "companion/check/rules.h"
#include "companion/commands.h"
#include "companion/descriptions/codes.h"
#include "companion/descriptions/words.h"
#include "companion/display_width.h"
#include "companion/explain/contents.h"
#include "companion/explain/lookup.h"
#include "companion/explain/pages.h"
#include "companion/explain/spelling.h"

namespace {

using companion::Page;
using companion::pagesFor;

constexpr companion::PageStyle kPlain = {80, false};

std::vector<std::string> titlesFor(std::string_view asked) {
    std::vector<std::string> titles;
    for (const Page& page : pagesFor(asked)) titles.push_back(page.title);
    return titles;
}

std::string pageText(const Page& page, const companion::PageStyle& style) {
    std::ostringstream text;
    writePage(text, page, style);
    return text.str();
}

std::string sectionOf(const Page& page, const std::string& heading) {
    for (const companion::PageSection& section : page.sections) {
        if (section.heading == heading) return section.text;
    }
    return "";
}

using Titles = std::vector<std::string>;

TEST(Explain, FindsAWordAsItIsWritten) {
    EXPECT_EQ(titlesFor("சுற்று"), Titles{"சுற்று"});
    EXPECT_EQ(titlesFor("அச்சிடு(...)"), Titles{"அச்சிடு"});
    EXPECT_EQ(titlesFor("சுற்று:"), Titles{"சுற்று"});
    EXPECT_EQ(titlesFor(".சேர்"), Titles{"சேர்"});
    EXPECT_EQ(titlesFor("நேரம்.வினாடிகள்"), Titles{"வினாடிகள்"});
    EXPECT_EQ(titlesFor("=>"), Titles{"=>"});
}

TEST(Explain, ShowsEachMeaningOfAWord) {
    const auto pages = pagesFor("இல்லை");
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_NE(pages[0].kind, pages[1].kind);
}

TEST(Explain, FindsAWordByItsNameElsewhere) {
    EXPECT_EQ(titlesFor("print"), Titles{"அச்சிடு"});
    EXPECT_EQ(titlesFor("Return"), Titles{"திரும்பு"});
    EXPECT_EQ(titlesFor("if"), Titles{"எனில்"});
    EXPECT_EQ(titlesFor("else if"), Titles{"இல்லைஎனில்"});
    EXPECT_EQ(titlesFor("+="), Titles{"கூட்டிசேர்"});
    EXPECT_EQ(titlesFor("[]"), Titles{"["});
}

TEST(Explain, FindsAWordByItsSound) {
    for (const char* asked : {"achchidu", "acchitu", "acidu", "Achidu"}) {
        EXPECT_EQ(titlesFor(asked), Titles{"அச்சிடு"}) << asked;
    }
    for (const char* asked : {"suttru", "sutru", "chutru"}) {
        EXPECT_EQ(titlesFor(asked), Titles{"சுற்று"}) << asked;
    }
    for (const char* asked : {"mei", "mey", "meyi"}) {
        EXPECT_EQ(titlesFor(asked), Titles{"மெய்"}) << asked;
    }
    EXPECT_EQ(titlesFor("neelam").at(0), "நீளம்");
    EXPECT_EQ(titlesFor("theathi"), Titles{"தேதி"});
    EXPECT_EQ(titlesFor("theethi"), Titles{"தேதி"});
    EXPECT_EQ(titlesFor("thangam"), Titles{"தங்கம்"});
    EXPECT_EQ(titlesFor("vazhi"), Titles{});
    EXPECT_EQ(companion::soundOf("மழை"), companion::soundOf("mazhai"));
    EXPECT_NE(companion::soundOf("மலர்"), companion::soundOf("மலை"));
}

TEST(Explain, FindsCodes) {
    for (const char* asked : {"பொழில்-203", "pozhil-203", "POZHIL-203"}) {
        EXPECT_EQ(titlesFor(asked), Titles{"பொழில்-203"}) << asked;
    }
    EXPECT_EQ(titlesFor("203").at(0), "பொழில்-203");
    for (const char* asked : {"துணை-200", "thunai-200", "200"}) {
        EXPECT_EQ(titlesFor(asked), Titles{"துணை-200"}) << asked;
    }
    EXPECT_EQ(titlesFor("துணை-999"), Titles{});
    EXPECT_EQ(titlesFor("999"), Titles{});
    EXPECT_EQ(titlesFor("பொழில்-1203"), Titles{});
    const Page page = pagesFor("பொழில்-208").at(0);
    EXPECT_EQ(sectionOf(page, "இப்படி எழுதினால் வரும்"), "வயது 12\n");
    EXPECT_EQ(sectionOf(page, "தீர்வு"), "மதிப்பிருத்தம் செய்ய '=' குறியீட்டைப் பயன்படுத்து.");
    EXPECT_EQ(sectionOf(pagesFor("துணை-200").at(0), "").find('$'), std::string::npos);
}

TEST(Explain, HasAPageForAllThatIsDescribed) {
    for (const companion::Description& word : companion::wordDescriptions()) {
        bool isFound = false;
        for (const Page& page : pagesFor(word.word)) isFound |= page.title == word.word;
        EXPECT_TRUE(isFound) << word.word;
    }
    for (const companion::CodeDescription& code : companion::codeDescriptions()) {
        EXPECT_FALSE(pagesFor("பொழில்-" + std::string(code.digits)).empty()) << code.digits;
    }
    for (const companion::Rule& rule : companion::allRules()) {
        EXPECT_EQ(titlesFor(rule.code), Titles{std::string(rule.code)});
    }
}

TEST(Explain, TellsWhichOperatorGoesFirst) {
    const std::string order = sectionOf(pagesFor("கூட்டு").at(0), "எது முதலில்?");
    EXPECT_NE(order.find("இதற்கு முன் நடப்பவை: பெருக்கு, வகு, மீதி."), std::string::npos) << order;
    EXPECT_NE(order.find("இதோடு, இடமிருந்து வலமாக: கூட்டு, கழி, இணை."), std::string::npos) << order;
    EXPECT_EQ(order.find("அல்லது.") + std::string("அல்லது.").size(), order.size()) << order;
    const std::string loosest = sectionOf(pagesFor("அல்லது").at(0), "எது முதலில்?");
    EXPECT_EQ(loosest.find("இதற்குப் பின்"), std::string::npos) << loosest;
    EXPECT_NE(sectionOf(pagesFor("குறை").at(0), "எது முதலில்?"), "");
    EXPECT_EQ(sectionOf(pagesFor("கூட்டிசேர்").at(0), "எது முதலில்?"), "");
    EXPECT_EQ(sectionOf(pagesFor("சுற்று").at(0), "எது முதலில்?"), "");
}

TEST(Explain, GathersTheMeaningsOfOneProperty) {
    const companion::PropertyDescription ofText = {
        "அகலம்", "உரை, படம்", "எண்", "40", "எவ்வளவு அகலம்.", "width", "", companion::ValueKind::Size,
        ""};
    companion::PropertyDescription ofLine = ofText;
    ofLine.widgets = "பிரிப்பான்";
    ofLine.block = "பாணி";
    ofLine.trap = "முழு எண்ணை எழுது.";
    const Page page = companion::pageOf({ofText, ofLine});
    EXPECT_EQ(page.title, "அகலம்");
    EXPECT_EQ(sectionOf(page, "உரை, படம்"), "எவ்வளவு அகலம்.\nமதிப்பு: எண்\nஎழுதாவிட்டால்: 40");
    EXPECT_EQ(
        sectionOf(page, "பிரிப்பான்"),
        "எவ்வளவு அகலம்.\nமதிப்பு: எண்\nஎழுதாவிட்டால்: 40\nஎழுதும் இடம்: பாணி(...)\nகவனம்: முழு எண்ணை எழுது.");
}

TEST(Explain, HasOnePageForEachProperty) {
    for (const companion::PropertyDescription& property : companion::propertyDescriptions()) {
        int pages = 0;
        for (const Page& page : pagesFor(property.word)) {
            pages += page.title == property.word && page.kind == "பண்பு" ? 1 : 0;
        }
        EXPECT_EQ(pages, 1) << property.word;
    }
    for (const companion::ValueDescription& value : companion::valueDescriptions()) {
        EXPECT_FALSE(pagesFor(value.word).empty()) << value.word;
    }
}

TEST(Explain, NamesWordsThatGoTogether) {
    EXPECT_EQ(sectionOf(pagesFor("முயற்சி").at(0), "தொடர்புடையவை"), "பிடி");
}

TEST(Explain, ProposesWhatIsNear) {
    EXPECT_EQ(companion::nearestTo("அச்சிட").at(0), "அச்சிடு");
    EXPECT_EQ(companion::nearestTo("சுத்து").at(0), "சுற்று");
    EXPECT_EQ(companion::nearestTo("acchid").at(0), "அச்சிடு");
    EXPECT_TRUE(companion::nearestTo("qqqqqqqq").empty());
    EXPECT_LE(companion::nearestTo("அ").size(), 5U);
}

TEST(Explain, CountsWholeLettersApart) {
    EXPECT_EQ(companion::editDistance("", ""), 0);
    EXPECT_EQ(companion::editDistance("எடு", ""), 3);
    EXPECT_EQ(companion::editDistance("எடு", "எடி"), 1);
    EXPECT_EQ(companion::editDistance("நிறுத்து", "நிறுது"), 2);
}

/// What a page says without its line ends and blanks.
std::string squeezed(const std::string& text) {
    std::string bare;
    for (const char byte : text) {
        if (byte != ' ' && byte != '\n') bare += byte;
    }
    return bare;
}

TEST(Explain, WrapsProseToTheWidth) {
    for (const int width : {30, 40, 80}) {
        for (const companion::CodeDescription& code : companion::codeDescriptions()) {
            std::ostringstream wrapped;
            companion::writeWrapped(wrapped, code.text, width, 2);
            EXPECT_EQ(squeezed(wrapped.str()), squeezed(std::string(code.text)));
            std::istringstream lines(wrapped.str());
            for (std::string line; std::getline(lines, line);) {
                EXPECT_LE(companion::displayWidth(line), width) << line;
                EXPECT_EQ(line.rfind("  ", 0), 0U) << line;
            }
        }
    }
}

TEST(Explain, KeepsTheLinesOfPrograms) {
    const Page page = pagesFor("எனில்").at(0);
    EXPECT_NE(pageText(page, {20, false})
                  .find("\n    எனில் மதிப்பெண் பெரிதுசமம் 80:\n"
                        "        அச்சிடு(\"மிக நன்று\")\n"),
              std::string::npos);
    EXPECT_NE(pageText(page, kPlain).find("\n    தேர்ச்சி\n"), std::string::npos);
}

TEST(Explain, IsColouredOnlyWhereThatIsWanted) {
    const Page page = pagesFor("எனில்").at(0);
    EXPECT_EQ(pageText(page, kPlain).find('\033'), std::string::npos);
    EXPECT_EQ(pageText(page, {80, true}).rfind("\033[1mஎனில்\033[0m", 0), 0U);
}

TEST(Explain, ListsAllWordsByTopic) {
    std::ostringstream text;
    companion::writeContents(text, kPlain);
    std::istringstream words(text.str());
    const std::set<std::string> listed{std::istream_iterator<std::string>(words), {}};
    for (const companion::Description& word : companion::wordDescriptions()) {
        EXPECT_EQ(listed.count(std::string(word.word)), 1U) << word.word;
    }
    for (const companion::WordTopic& topic : companion::wordTopics()) {
        EXPECT_NE(text.str().find(topic.title), std::string::npos) << topic.title;
    }
}

struct RanExplain {
    int status;
    std::string out;
    std::string err;
};

RanExplain ranExplain(const companion::Arguments& arguments) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = companion::runExplain(arguments);
    std::cout.flush();
    return {status, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

TEST(Explain, ReturnsWhetherItKnewTheWord) {
    const RanExplain known = ranExplain({"else", "if"});
    EXPECT_EQ(known.status, 0);
    EXPECT_EQ(known.out.rfind("இல்லைஎனில்", 0), 0U);
    EXPECT_EQ(known.err, "");

    const RanExplain unknown = ranExplain({"அச்சிட"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.out, "");
    EXPECT_NE(unknown.err.find("இதைத் தேடினாயா? அச்சிடு"), std::string::npos) << unknown.err;

    EXPECT_EQ(ranExplain({"qqqqqqqq"}).status, 1);
    EXPECT_EQ(ranExplain({}).status, 0);
    EXPECT_EQ(ranExplain({"--json"}).status, 2);
}

}  // namespace
