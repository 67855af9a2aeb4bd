// Sources, and beside each what it adds to the text that every generated program carries (.adds),
// compared whole: a line that also stands in an empty program's text proves nothing.
#include <gtest/gtest.h>

#include "added_text.h"
#include "support/case_files.h"

namespace {

const bool registered = [] {
    registerCases("generated", ".adds", [](const CaseFile& file) {
        expectGolden(file, addedText(readText(file.source)));
    });
    return true;
}();

// ---- What the cases rest on ----

const char* const kEmptyProgram = "⋯\nint main() {\nreturn 0;\n}\n";

TEST(AddedText, OfAnEmptyProgramIsAnEmptyMain) { EXPECT_EQ(addedText(""), kEmptyProgram); }

TEST(AddedText, OfABareReturnIsTheReturn) {
    EXPECT_NE(addedText("செயல் கூடு():\n    திரும்பு\n").find("    return std::any();\n"),
              std::string::npos);
}

TEST(AddedText, OfAnEmptyApplicationIsItsPage) {
    const std::string text = addedText("வலைதளம் அ(தலைமை() குமரி() வரையறை())\n");
    EXPECT_EQ(text.find("⋯\nvoid init_globals() {\n}\n\n⋯\n    if (g_currentPage == \"home\") {\n"),
              0U)
        << text;
    EXPECT_EQ(text.substr(text.size() - 10), "    }\n⋯\n") << text;
}

TEST(AddedText, ShowsThePlacesThatAreFilledIn) {
    const std::string text = addedText("வலைதளம் ஆ(தலைமை(பக்கம்: \"முகப்பு\") குமரி() வரையறை())\n");
    EXPECT_EQ(text.find("⋯\nstd::string g_currentPage = \"முகப்பு\";\n⋯\n"), 0U) << text;
    EXPECT_NE(text.find("⋯\n    window = glfwCreateWindow((int)1280, (int)720, \"ஆ\", NULL, NULL);"
                        "\n⋯\n"),
              std::string::npos)
        << text;
}

}  // namespace
