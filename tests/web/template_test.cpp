// The page template that stands beside the compiler.
#include <fstream>
#include <iterator>

#include "driver/page.h"
#include "gtest/gtest.h"
#include "support/pattern.h"

namespace {

std::string templateText() {
    std::ifstream file(POZHIL_ROOT "/உள்ளடக்கம்/template.html");
    return {std::istreambuf_iterator<char>(file), {}};
}

int count(const std::string& text, const std::string& part) {
    int found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        found++;
    }
    return found;
}

TEST(Template, HoldsEachPlaceholderAndOneBodyEnd) {
    const std::string page = templateText();
    EXPECT_EQ(count(page, "<title>{{{ இணைய_தலைப்பு }}}</title>"), 1);
    EXPECT_EQ(count(page, "{{{ இணைய_தலைப்பு }}}"), 1);
    EXPECT_EQ(count(page, "{{{ சின்னம் }}}"), 1);
    EXPECT_GE(count(page, "{{{ பின்னணி_நிறம் }}}"), 1);
    EXPECT_EQ(count(page, "{{{ SCRIPT }}}"), 1);
    EXPECT_EQ(count(page, "</body>"), 1);
    EXPECT_EQ(count(page, "id=\"canvas\""), 1);
}

TEST(Template, LeavesNoPlaceholderBehind) {
    const std::string page = assemblePage(templateText(), {"த", "", "red"}, 2);
    EXPECT_EQ(page.find("{{{"), std::string::npos);
    EXPECT_EQ(page.find("}}}"), std::string::npos);
}

TEST(Template, SpeaksTamilAndReachesNothingOutside) {
    const std::string page = templateText();
    EXPECT_EQ(count(page, "<html lang=\"ta\">"), 1);
    EXPECT_EQ(count(page, "<meta charset=\"utf-8\">"), 1);
    EXPECT_EQ(count(page, "name=\"viewport\""), 1);
    EXPECT_FALSE(Pattern("(https?:)?//[a-z0-9.-]+\\.[a-z]").isIn(page));
}

/// The open page finds the number of the page that is served by its last such line.
TEST(Template, NamesTheNumberOfItsBuildLast) {
    const std::string line = "let currentVersion = ";
    EXPECT_FALSE(Pattern(line + "[0-9]").isIn(templateText()));
    const std::string page = assemblePage(templateText(), {line + "9;", "", line + "8;"}, 7);
    EXPECT_EQ(page.substr(page.rfind(line), line.size() + 2), line + "7;");
}

/// The program's script needs the Module object when it starts.
TEST(Template, PreparesTheModuleBeforeTheScript) {
    const std::string page = templateText();
    ASSERT_NE(page.find("var Module = {"), std::string::npos);
    EXPECT_LT(page.find("var Module = {"), page.find("{{{ SCRIPT }}}"));
}

}  // namespace
