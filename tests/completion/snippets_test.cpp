// What is inserted is right as it stands: the compiler takes each snippet with its first words.
#include <gtest/gtest.h>

#include "companion/check/compiled_source.h"
#include "companion/completion/inserted_forms.h"
#include "companion/descriptions/description.h"

namespace {

using companion::Description;
using companion::WordKind;
using companion::completion::snippetOf;
using companion::completion::withoutStops;

/// What the compiler says of the source; empty if it takes it.
std::string refusalOf(const std::string& text) {
    const companion::SourceText source("சோதனை.பொழில்", text);
    const companion::CompiledSource compiled(source, {});
    if (!compiled.refused) return "";
    return compiled.refused->code + " " + compiled.refused->message + " in\n" + text;
}

std::string indentedBy(const std::string& text, const std::string& blanks) {
    std::string indented;
    for (const char byte : text) {
        indented += byte;
        if (byte == '\n') indented += blanks;
    }
    return indented;
}

/// The snippet where its last stop is written; a block needs a statement there.
std::string written(const Description& row) {
    std::string snippet = snippetOf(row, "    ");
    const std::size_t last = snippet.find("$0");
    const bool isBlock = last != std::string::npos && last > 0 && snippet[last - 1] == ' ';
    if (isBlock) snippet.replace(last, 2, "விடு");
    return withoutStops(snippet);
}

const Description& rowOf(WordKind kind, std::string_view word) {
    for (const auto* table : {&companion::wordDescriptions(), &companion::widgetDescriptions()}) {
        for (const Description& row : *table) {
            if (row.kind == kind && row.word == word) return row;
        }
    }
    throw std::logic_error("no word " + std::string(word));
}

std::string snippet(WordKind kind, std::string_view word) { return written(rowOf(kind, word)); }

TEST(Snippets, OfStatementsCompile) {
    for (const std::string_view word :
         {"அச்சிடு", "எனில்", "சுற்று", "ஒவ்வொன்றாக", "தேர்வு", "முயற்சி", "காத்திரு", "செயல்", "கட்டமைப்பு",
          "வடிவமைப்பு", "வகை", "மாறிலி"}) {
        const std::string text =
            "நிபந்தனை = மெய்\nமதிப்பு = 1\n" + snippet(WordKind::Keyword, word) + "\n";
        EXPECT_EQ(refusalOf(text), "");
    }
}

TEST(Snippets, OfBranchesCompileBehindTheirStatement) {
    const auto keyword = [](std::string_view word) { return snippet(WordKind::Keyword, word); };
    EXPECT_EQ(refusalOf("நிபந்தனை = மெய்\n" + keyword("எனில்") + "\n" + keyword("இல்லைஎனில்") + "\n" +
                        keyword("இல்லை") + "\n"),
              "");
    EXPECT_EQ(refusalOf("மதிப்பு = 1\nதேர்வு 1:\n    " + indentedBy(keyword("நிலை"), "    ") +
                        "\n    " + indentedBy(keyword("மற்றவை"), "    ") + "\n"),
              "");
}

TEST(Snippets, OfAnApplicationCompile) {
    EXPECT_EQ(
        refusalOf(withoutStops(snippetOf(rowOf(WordKind::Application, "வலைதளம்"), "    ")) + "\n"),
        "");
}

TEST(Snippets, OfWidgetsCompile) {
    int widgets = 0;
    for (const Description& row : companion::widgetDescriptions()) {
        if (row.kind != WordKind::Widget) continue;
        // They ask for a widget or a place of their own.
        if (row.word == "வட்டபடம்" || row.word.find("உருப்படி") != std::string_view::npos) continue;
        widgets++;
        std::string snippet = snippetOf(row, "    ");
        const std::size_t last = snippet.find("$0");
        if (last != std::string::npos) snippet.replace(last, 2, "உரை(\"அ\")");
        const std::string widget = indentedBy(withoutStops(snippet), "            ");
        const std::string text =
            "வலைதளம் ஒன்று(\n    தலைமை()\n    குமரி(\n        நெடுவரிசை(\n            " + widget +
            "\n        )\n    )\n    வரையறை(\n        செயல் செயல்_பெயர்():\n            விடு\n    )\n)\n";
        EXPECT_EQ(refusalOf(text), "") << row.word;
    }
    EXPECT_GT(widgets, 20);
}

TEST(Snippets, OfBuiltInsAreCalls) {
    for (const Description& row : companion::wordDescriptions()) {
        if (row.kind != WordKind::BuiltIn) continue;
        const std::string text = snippetOf(row, "    ");
        ASSERT_FALSE(text.empty()) << row.word;
        EXPECT_NE(text.find_first_of("(["), std::string::npos) << text;
    }
    EXPECT_EQ(snippetOf(rowOf(WordKind::BuiltIn, "சீரற்ற_எண்"), ""),
              "சீரற்ற_எண்(${1:குறைந்தது}, ${2:அதிகம்})");
    EXPECT_EQ(snippetOf(rowOf(WordKind::BuiltIn, "உள்ளீடு"), ""), "உள்ளீடு(\"${1:கேள்வி}\")");
}

TEST(Snippets, LoseTheirStops) {
    EXPECT_EQ(withoutStops("அ ${1:ஆ ${2:இ}} ${3|ஈ,உ|}$0 { ஊ }"), "அ ஆ இ ஈ { ஊ }");
}

}  // namespace
