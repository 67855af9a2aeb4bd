// Every widget word: the class and the name of its node, whether it carries its line, and whether
// it can stand where only a widget word is taken for a child.
#include <gtest/gtest.h>

#include <typeinfo>

#include "unit/parser_frame/handmade.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

struct WordRow {
    const char* word;
    const std::type_info& nodeClass;
    const char* name;
    bool carriesLine;
    bool isChildOfGeneric;
};
const WordRow kVocabulary[] = {
    {"நெடுவரிசை", typeid(ColumnNode), "நெடுவரிசை", false, true},
    {"கிடைவரிசை", typeid(RowNode), "கிடைவரிசை", false, true},
    {"அடுக்கி", typeid(WidgetNode), "அடுக்கி", false, true},
    {"மடிப்பு", typeid(WidgetNode), "மடிப்பு", false, true},
    {"பட்டியல்_காட்சி", typeid(ListViewNode), "பட்டியல்_காட்சி", false, true},
    {"கட்டம்_காட்சி", typeid(GridViewNode), "கட்டம்_காட்சி", false, true},
    {"பெட்டி", typeid(ContainerNode), "பெட்டி", false, true},
    {"உள்_இவெ", typeid(PaddingNode), "உள்_இவே", false, true},
    {"உள்_இவே", typeid(PaddingNode), "உள்_இவே", false, true},
    {"விரிவாக்கம்", typeid(ExpandedNode), "விரிவாக்கம்", false, true},
    {"நெகிழ்வு", typeid(FlexibleNode), "நெகிழ்வு", false, true},
    {"பங்கு", typeid(FlexibleNode), "நெகிழ்வு", false, false},
    {"வெற்றிடம்", typeid(WidgetNode), "வெற்றிடம்", false, true},
    {"உரைபொத்தான்", typeid(WidgetNode), "உரைபொத்தான்", false, true},
    {"அறிவிப்பு_பட்டை", typeid(SnackBarNode), "அறிவிப்பு_பட்டை", false, true},
    {"அட்டை", typeid(WidgetNode), "அட்டை", true, true},
    {"பட்டியல்_உருப்படி", typeid(WidgetNode), "பட்டியல்_உருப்படி", true, true},
    {"எச்சரிக்கை", typeid(WidgetNode), "எச்சரிக்கை", true, true},
    {"உரை", typeid(WidgetNode), "உரை", true, true},
    {"பொத்தான்", typeid(WidgetNode), "பொத்தான்", true, true},
    {"படம்", typeid(WidgetNode), "படம்", true, true},
    {"வட்டபடம்", typeid(WidgetNode), "வட்டபடம்", true, true},
    {"தேர்வுபெட்டி", typeid(WidgetNode), "தேர்வுபெட்டி", true, true},
    {"வட்டத்தேர்வு", typeid(WidgetNode), "வட்டத்தேர்வு", true, true},
    {"மாற்றி", typeid(WidgetNode), "மாற்றி", true, true},
    {"அளவி", typeid(WidgetNode), "அளவி", true, true},
    {"கீழ்வரி", typeid(WidgetNode), "கீழ்வரி", true, true},
    {"உரைபெட்டி", typeid(WidgetNode), "உரைபெட்டி", true, true},
    {"தேடுபொறி", typeid(WidgetNode), "தேடுபொறி", true, true},
    {"தேடல்_பட்டை", typeid(WidgetNode), "தேடல்_பட்டை", true, true},
    {"அடிப்பகுதி", typeid(WidgetNode), "அடிப்பகுதி", true, true},
    {"அடி_உருப்படி", typeid(WidgetNode), "அடி_உருப்படி", true, true},
    {"தத்தல்", typeid(WidgetNode), "தத்தல்", true, true},
    {"தத்தல்_உருப்படி", typeid(WidgetNode), "தத்தல்_உருப்படி", true, true},
    {"இவெ", typeid(WidgetNode), "இவெ", true, true},
    {"பக்கம்", typeid(WidgetNode), "பக்கம்", true, true},
    {"பெட்டி_பாணி", typeid(WidgetNode), "பெட்டி_பாணி", true, true},
    {"அட்டை_பாணி", typeid(WidgetNode), "அட்டை_பாணி", true, true},
    {"பிரிப்பான்", typeid(WidgetNode), "பிரிப்பான்", true, false},
    {"சுழல்_காட்டி", typeid(WidgetNode), "சுழல்_காட்டி", true, false},
    {"முன்னேற்றவரி", typeid(WidgetNode), "முன்னேற்றவரி", true, false},
    {"தகவல்பட்டை", typeid(WidgetNode), "தகவல்பட்டை", true, false},
    {"கடவுமறை", typeid(WidgetNode), "கடவுமறை", true, false},
};

std::string groupsOf(const WordRow& row) {
    return row.nodeClass == typeid(GridViewNode) ? "()()" : "()";
}

TEST(WidgetWord, MakesItsNodeWhereAWidgetIsExpected) {
    for (const WordRow& row : kVocabulary) {
        SCOPED_TRACE(row.word);
        const WidgetSource source("நெடுவரிசை(\n    " + std::string(row.word) + groupsOf(row) +
                                  "\n)\n");
        ASSERT_EQ(source.node().children.size(), 1U);
        const WidgetNode& child = source.child();
        EXPECT_EQ(std::string(typeid(child).name()), row.nodeClass.name());
        EXPECT_EQ(child.name, row.name);
        EXPECT_EQ(child.line, row.carriesLine ? 2 : 0);
        EXPECT_TRUE(child.children.empty());
        EXPECT_TRUE(child.properties.empty());
        EXPECT_TRUE(child.onTapStatements.empty());
        EXPECT_EQ(child.id, "");
        EXPECT_FALSE(child.flag);
        EXPECT_EQ(child.animation, nullptr);
    }
}

TEST(WidgetWord, IsTheRootOfABody) {
    for (const WordRow& row : kVocabulary) {
        const std::string root = row.word + groupsOf(row);
        EXPECT_TRUE(accepted("வலைதளம்(தலைமை() வரையறை() குமரி(" + root + "))\n")) << row.word;
    }
}

TEST(WidgetWord, IsAChildOfAGenericWidgetIfItIsKnown) {
    for (const WordRow& row : kVocabulary) {
        SCOPED_TRACE(row.word);
        const std::string source = std::string("பொத்தான்(") + row.word + groupsOf(row) + ")\n";
        if (row.nodeClass == typeid(FlexibleNode) && !row.isChildOfGeneric) {
            EXPECT_EQ(refusalOf(source), "பொழில்-201");  // no value begins with it either
            continue;
        }
        const WidgetSource widget(source);
        EXPECT_EQ(widget.node().children.size(), row.isChildOfGeneric ? 1U : 0U);
        EXPECT_EQ(widget.keys(), row.isChildOfGeneric ? "" : "உரை");
    }
}

TEST(WidgetWord, KeepsItsAlignmentUnlessItIsAnAlert) {
    for (const WordRow& row : kVocabulary) {
        const WidgetSource source(std::string("நெடுவரிசை(") + row.word + groupsOf(row) + ")\n");
        const bool isAlert = source.child().name == "எச்சரிக்கை";
        EXPECT_EQ(static_cast<int>(source.child().alignment), isAlert ? 4 : 0) << row.word;
    }
}

/// A layout word is known by its text too where the scanner gave it no kind.
TEST(WidgetWord, IsKnownAsAPlainWord) {
    for (const WordRow& row : kVocabulary) {
        SCOPED_TRACE(row.word);
        Parser parser =
            parserOver(scanAs(TokenType::IDENTIFIER, {row.word}, row.word + groupsOf(row)));
        const auto widget = parser.parseWidget();
        const Statement& node = *widget;
        EXPECT_EQ(std::string(typeid(node).name()), row.nodeClass.name());
        EXPECT_TRUE(parser.is_at_end());
    }
}

/// Their class is a generic widget's, but not what they make of an item: a generic widget would
/// keep the value and its line.
TEST(WidgetWord, WithItsOwnItemsIsKnownAsAPlainWord) {
    for (const std::string word : {"வெற்றிடம்", "உரைபொத்தான்", "அட்டை", "பட்டியல்_உருப்படி", "எச்சரிக்கை"}) {
        Parser parser = parserOver(scanAs(TokenType::IDENTIFIER, {word}, word + "(5)"));
        const auto widget = parser.parseWidget();
        EXPECT_TRUE(dynamic_cast<const WidgetNode&>(*widget).properties.empty()) << word;
    }
    Parser stack = parserOver(scanAs(TokenType::IDENTIFIER, {"அடுக்கி"}, "அடுக்கி()"));
    EXPECT_EQ(stack.parseWidget()->line, 0);
}

/// The word's parenthesis may stand on a later line, a padding's alone may not.
TEST(WidgetWord, MayStandAboveItsParenthesis) {
    for (const WordRow& row : kVocabulary) {
        const std::string widget = row.word + ("\n\n" + groupsOf(row));
        const std::string source = "நெடுவரிசை(\n" + widget + ")\n";
        const bool isPadding = row.nodeClass == typeid(PaddingNode);
        EXPECT_EQ(refusalOf(source), isPadding ? "பொழில்-203" : "none") << row.word;
    }
}

/// A layout widget tells of its missing parenthesis at its word, the others where it should stand.
TEST(WidgetWord, NeedsItsParenthesisUnlessItIsASpacer) {
    for (const WordRow& row : kVocabulary) {
        const std::string source = "நெடுவரிசை(\n" + std::string(row.word) + "\n)\n";
        if (row.word == std::string("வெற்றிடம்")) {
            EXPECT_TRUE(accepted(source));
            continue;
        }
        EXPECT_TRUE(refused(source, "பொழில்-203", row.carriesLine ? 3 : 2)) << row.word;
    }
}

TEST(WidgetWord, MayBeAnyTokenWhereAWidgetIsExpected) {
    for (const char* word : {"அறியாத", "5", "\"அ\"", "50%", "எனில்", "நிறம்", "காலம்", ":", "=>"}) {
        EXPECT_TRUE(accepted("நெடுவரிசை(" + std::string(word) + "())\n")) << word;
    }
}

TEST(LayoutNode, StartsWithItsDefaults) {
    const ContainerNode box({}, சீரமைப்பு_வகை::மையம், false);
    EXPECT_EQ(box.width, 0);
    EXPECT_EQ(box.height, 0);
    EXPECT_EQ(box.cornerRadius, 0);
    EXPECT_EQ(box.color, "#000000");
    EXPECT_EQ(box.backgroundImage, "");
    const SnackBarNode bar({}, false);
    EXPECT_EQ(bar.content, nullptr);
    EXPECT_EQ(bar.backgroundColor, "#333333");
    EXPECT_EQ(bar.durationMs, 3000);
    EXPECT_EQ(bar.slideDirection, "கீழ்_இருந்து_மேல்");
    EXPECT_EQ(bar.width, 0);
    EXPECT_EQ(bar.height, 0);
    EXPECT_TRUE(bar.isFloating);
    EXPECT_EQ(PaddingNode().padding, 0);
    const TextStyle style;
    EXPECT_EQ(style.color, "#000000");
    EXPECT_EQ(style.fontSize, 16.0F);
    EXPECT_EQ(style.fontWeight, "normal");
    EXPECT_EQ(style.textAlign, "left");
    EXPECT_EQ(style.fontFamily, "");
    EXPECT_FALSE(style.underline);
}

}  // namespace
