// The page, from a template and an application's head.
#include "driver/page.h"

#include "support/front_end.h"
#include "web/scratch_directory.h"
#include "web/tree.h"

namespace {

const std::string kTag = "<script async type=\"text/javascript\" src=\"index.js\"></script>";

std::string liveReload(const std::string& number) {
    return "\n        <script>\n            let currentVersion = " + number +
           ";\n            setInterval(() => {\n"
           "                fetch('/version').then(res => res.text()).then(text => {\n"
           "                    let newVer = parseInt(text);\n"
           "                    if (newVer > currentVersion) {\n"
           "                        location.reload();\n"
           "                    }\n"
           "                }).catch(e => {});\n"
           "            }, 500);\n"
           "        </script>\n"
           "            ";
}

std::string titleOf(const Program& tree) { return extractHeaderProperty(tree, "இணைய_தலைப்பு"); }

class Page : public ScratchDirectory {};

TEST(HeaderProperty, StringAndBothFormsOfColour) {
    const Program tree = program(application(head(
        properties(entry("இணைய_தலைப்பு", text("என் தளம்")), entry("பின்னணி", color("#FF0000", true)),
                   entry("நிறம்", color("சிவப்பு", false))))));
    EXPECT_EQ(extractHeaderProperty(tree, "இணைய_தலைப்பு"), "என் தளம்");
    EXPECT_EQ(extractHeaderProperty(tree, "பின்னணி"), "#FF0000");
    EXPECT_EQ(extractHeaderProperty(tree, "நிறம்"), "சிவப்பு");
    EXPECT_EQ(extractHeaderProperty(tree, "சின்னம்"), "");
}

TEST(HeaderProperty, OtherExpressionsAreWalkedPast) {
    EXPECT_EQ(titleOf(program(application(head(properties(entry("இணைய_தலைப்பு", variable("அ"))))),
                              application(head(properties(entry("இணைய_தலைப்பு", text("இரண்டு"))))))),
              "இரண்டு");
    EXPECT_EQ(titleOf(program(application(head(properties(entry("இணைய_தலைப்பு", variable("அ"))))))),
              "");
}

TEST(HeaderProperty, FirstApplicationThatHasItWins) {
    EXPECT_EQ(titleOf(program(application(nullptr), application(head({})),
                              application(head(properties(entry("இணைய_தலைப்பு", text("அ"))))),
                              application(head(properties(entry("இணைய_தலைப்பு", text("ஆ"))))))),
              "அ");
}

TEST(HeaderProperty, OnlyHeadsOfTopLevelApplicationsCount) {
    EXPECT_EQ(titleOf(program()), "");
    EXPECT_EQ(titleOf(program(widget("உரை", properties(entry("இணைய_தலைப்பு", text("அ")))))), "");
    EXPECT_EQ(titleOf(program(application(
                  head({}), widget("உரை", properties(entry("இணைய_தலைப்பு", text("அ"))))))),
              "");
}

TEST_F(Page, HeadGoesIntoTheTemplateByteForByte) {
    const std::string page = assemblePage(
        "<title>{{{ இணைய_தலைப்பு }}}</title><link href='{{{ சின்னம் }}}'>"
        "<body style='{{{ பின்னணி_நிறம் }}}'>{{{ SCRIPT }}}\n</body></html>\n",
        {"என் தளம்", "", "#123456"}, 7);
    EXPECT_EQ(page, "<title>என் தளம்</title><link href='file-icon.png'><body style='#123456'>" +
                        kTag + "\n" + liveReload("7") + "</body></html>\n");
}

TEST_F(Page, DefaultsOfAnEmptyHead) {
    EXPECT_EQ(assemblePage("{{{ இணைய_தலைப்பு }}}|{{{ சின்னம் }}}|{{{ பின்னணி_நிறம் }}}", {}, 2),
              "பொழில் தளம்|file-icon.png|#ffffff");
}

TEST_F(Page, BackgroundIsReplacedEverywhereTheOthersOnce) {
    EXPECT_EQ(assemblePage("{{{ பின்னணி_நிறம் }}}{{{ பின்னணி_நிறம் }}} {{{ பின்னணி_நிறம் }}}"
                           "{{{ இணைய_தலைப்பு }}}{{{ இணைய_தலைப்பு }}}"
                           "{{{ சின்னம் }}}{{{ சின்னம் }}}{{{ SCRIPT }}}{{{ SCRIPT }}}",
                           {"த", "", "red"}, 2),
              "redred redத{{{ இணைய_தலைப்பு }}}file-icon.png{{{ சின்னம் }}}" + kTag + "{{{ SCRIPT }}}");
}

TEST_F(Page, PlaceholdersMustStandToTheBlank) {
    const std::string page = "{{{இணைய_தலைப்பு}}}{{{ சின்னம்}}}{{ பின்னணி_நிறம் }}{{{ script }}}";
    EXPECT_EQ(assemblePage(page, {"அ", "", "red"}, 2), page);
}

TEST_F(Page, ValueThatHoldsItsPlaceholderDoesNotLoop) {
    const std::string colour = "{{{ பின்னணி_நிறம் }}}";
    EXPECT_EQ(assemblePage("<" + colour + colour + ">", {"", "", colour}, 2),
              "<" + colour + colour + ">");
    const std::string title = "{{{ இணைய_தலைப்பு }}}";
    EXPECT_EQ(assemblePage("<" + title + ">", {title, "", ""}, 2), "<" + title + ">");
}

TEST_F(Page, EarlierValuesAreSeenByLaterSteps) {
    EXPECT_EQ(assemblePage("{{{ இணைய_தலைப்பு }}}", {"{{{ பின்னணி_நிறம் }}}", "", "red"}, 2), "red");
    EXPECT_EQ(assemblePage("{{{ பின்னணி_நிறம் }}}", {"", "", "{{{ இணைய_தலைப்பு }}}"}, 2),
              "{{{ இணைய_தலைப்பு }}}");
}

TEST_F(Page, ScriptWithoutItsPlaceholderGoesBeforeTheFirstBodyEnd) {
    EXPECT_EQ(assemblePage("<p></body></body>", {}, 3),
              "<p>" + kTag + "\n" + liveReload("3") + "</body></body>");
    EXPECT_EQ(assemblePage("<p></BODY>", {}, 3), "<p></BODY>") << "neither script";
    EXPECT_EQ(assemblePage("{{{ SCRIPT }}}", {}, 3), kTag) << "no place for the live reload";
    EXPECT_EQ(assemblePage("", {}, 3), "");
}

TEST_F(Page, IconTravelsInsideThePage) {
    write("ப.png", "\x89PNG");
    write("a.svg", "<svg/>");
    write("a.jpg", "ab");
    write("a.jpeg", "abc");
    write("a.bmp", "");
    const auto icon = [](const std::string& path) {
        return assemblePage("{{{ சின்னம் }}}", {"", path, ""}, 2);
    };
    EXPECT_EQ(icon("ப.png"), "data:image/png;base64,iVBORw==");
    EXPECT_EQ(icon("a.svg"), "data:image/svg+xml;base64,PHN2Zy8+");
    EXPECT_EQ(icon("a.jpg"), "data:image/jpeg;base64,YWI=");
    EXPECT_EQ(icon("a.jpeg"), "data:image/jpeg;base64,YWJj");
    EXPECT_EQ(icon("a.bmp"), "data:image/png;base64,") << "any other ending";
    EXPECT_EQ(icon("இல்லை.png"), "file-icon.png");
    std::filesystem::create_directory("folder.png");
    EXPECT_EQ(icon("folder.png"), "file-icon.png") << "opens, but can't be read";
}

TEST_F(Page, HeadIsReadByItsThreeKeys) {
    const PageHead read = readPageHead(program(application(head(
        properties(entry("இணைய_தலைப்பு", text("த")), entry("சின்னம்", text("a.png")),
                   entry("பின்னணி", color("நீலம்", false)), entry("நிறம்", color("#000000", true)))))));
    EXPECT_EQ(read.title, "த");
    EXPECT_EQ(read.icon, "a.png");
    EXPECT_EQ(read.background, "நீலம்");
}

TEST_F(Page, HeadOfASource) {
    const auto headOf = [](const std::string& items) {
        return readPageHead(
            parse("வலைதளம் கணக்கி(\n    தலைமை(" + items + ")\n    குமரி() வரையறை()\n)\n").program);
    };
    const PageHead full = headOf("இணைய_தலைப்பு: \"என் தளம்\" சின்னம்: \"a.svg\" பின்னணி: \"#12ab34\"");
    EXPECT_EQ(full.title, "என் தளம்");
    EXPECT_EQ(full.icon, "a.svg");
    EXPECT_EQ(full.background, "#12ab34");
    EXPECT_EQ(headOf("பின்னணி: வண்ணம்.சிவப்பு").background, "") << "no literal: the default";
    const PageHead none = headOf("");
    EXPECT_EQ(none.title + none.icon + none.background, "");
}

}  // namespace
