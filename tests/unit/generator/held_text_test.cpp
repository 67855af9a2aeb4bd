// The text that is held compiled, for console programs and for applications: what the warmed
// headers declare of it stands in every program to the letter.
#include <gtest/gtest.h>

#include "support/case_files.h"
#include "support/generated_text.h"
#include "support/pattern.h"

namespace {

/// Lines as one, with single blanks.
std::string inOneLine(const std::string& text) { return Pattern("\\s+").replaced(text, " "); }

/// All text between the directives by which g++ passes over it.
std::string heldText() {
    const std::string opening = "#ifndef pozhil_runtime_is_held\n";
    const std::string text = generate("அச்சிடு(1)\n");
    std::string held;
    for (std::size_t at = text.find(opening); at != std::string::npos;
         at = text.find(opening, at + 1)) {
        // Others end inside a function.
        const std::size_t end = text.find("\n#endif\n\n", at);
        EXPECT_NE(end, std::string::npos);
        held += text.substr(at + opening.size(), end - at - opening.size());
    }
    return held;
}

const std::string kDeclarations = readText(POZHIL_ROOT "/src/held_runtime.h");

TEST(HeldText, HasEachFunctionAsItIsDeclared) {
    const std::string held = inOneLine(heldText());
    const auto declared = Pattern("\nPOZHIL_HELD ([^;]+);").all(kDeclarations);
    EXPECT_GT(declared.size(), 50U);
    const Pattern orElse("POZHIL_OR_ELSE\\(([^)]*)\\)");
    for (const Match& function : declared) {
        const std::string form = orElse.replaced(function[1], "= $1");
        const std::string head = inOneLine(form);
        const bool isDefined = held.find(" " + head + " {") != std::string::npos;
        EXPECT_TRUE(isDefined) << head;
    }
}

TEST(HeldText, HasEachVariableAsItIsDeclared) {
    const std::string held = inOneLine(heldText());
    const auto declared = Pattern("\nPOZHIL_VARIABLE\\((.+?), (.+)\\);").all(kDeclarations);
    EXPECT_GT(declared.size(), 20U);
    for (const Match& variable : declared) {
        std::string kind = variable[2];
        if (kind == "PozhilVariables") kind = "std::map<std::string, std::any>";
        EXPECT_NE(held.find(kind + " " + variable[1]), std::string::npos) << variable[0];
    }
}

// The blocks for the browser stand between those that are held, and are compiled in each
// application.
TEST(HeldText, HoldsNothingOfTheBrowserAlone) {
    EXPECT_EQ(heldText().find("#include <emscripten"), std::string::npos);
}

}  // namespace
