// How the layout functions differ: groups, alignment, section words, and the steps that no source
// reaches.
#include <gtest/gtest.h>

#include "unit/parser_frame/handmade.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

struct GroupsRow {
    const char* word;
    bool hasAlignment;
    bool refusesSections;
};
const GroupsRow kGroups[] = {
    {"நெடுவரிசை", true, true}, {"கிடைவரிசை", true, true},      {"அடுக்கி", true, true},
    {"மடிப்பு", true, true},    {"பட்டியல்_காட்சி", false, false},
};

/// The widget as the child of a row, where `மடிப்பு` too is taken for one.
std::string inRow(const std::string& widget) { return "கிடைவரிசை(" + widget + ")\n"; }

TEST(Groups, HoldChildrenOrPropertiesAndChildren) {
    for (const GroupsRow& row : kGroups) {
        SCOPED_TRACE(row.word);
        const std::string word = row.word;
        EXPECT_TRUE(WidgetSource(inRow(word + "()")).child().children.empty());
        EXPECT_EQ(WidgetSource(inRow(word + "(உரை() உரை())")).child().children.size(), 2U);

        const WidgetSource both(inRow(word + "(உயரம்: 1, அடையாளம்: 2)(உரை(), உரை(),)"));
        EXPECT_EQ(both.child().children.size(), 2U);
        EXPECT_EQ(both.child().properties.size(), 2U);
        const WidgetSource alone(inRow(word + "(உயரம்: 1)"));
        EXPECT_TRUE(alone.child().children.empty());
        EXPECT_EQ(alone.child().properties.size(), 1U);
    }
}

TEST(Groups, OfAListHaveNoAlignment) {
    for (const GroupsRow& row : kGroups) {
        const WidgetSource source(inRow(row.word + std::string("(சீரமைப்பு: மையம்)")));
        EXPECT_EQ(static_cast<int>(source.child().alignment), row.hasAlignment ? 4 : 0);
        EXPECT_EQ(source.child().properties.count("சீரமைப்பு"), row.hasAlignment ? 0U : 1U);
        const std::string alone = inRow(row.word + std::string("(சீரமைப்பு)"));
        EXPECT_EQ(refusalOf(alone), row.hasAlignment ? "பொழில்-202" : "பொழில்-203") << row.word;
    }
}

TEST(Groups, RefuseSectionWordsAmongChildren) {
    for (const GroupsRow& row : kGroups) {
        for (const char* section : {"குமரி", "தலைமை", "வரையறை"}) {
            for (const char* opening : {"(", "(உயரம்: 1)(", "(உரை(), "}) {
                const std::string source = inRow(row.word + std::string(opening) + section + "())");
                EXPECT_EQ(refusalOf(source), row.refusesSections ? "பொழில்-204" : "none") << source;
            }
        }
    }
    EXPECT_EQ(refusalOf("கட்டம்_காட்சி()(குமரி())"), "பொழில்-204");
    EXPECT_EQ(refusalOf("பெட்டி(குமரி())"), "பொழில்-209");  // passed over, and so is its (
    EXPECT_EQ(refusalOf(inRow("வெற்றிடம்(வரையறை())")), "பொழில்-204");
    EXPECT_EQ(refusalOf("உரைபொத்தான்(தலைமை())"), "பொழில்-204");
}

TEST(Groups, AreDecidedDirectlyBehindTheParenthesis) {
    for (const GroupsRow& row : kGroups) {
        const std::string word = row.word;
        EXPECT_EQ(refusalOf(inRow(word + "(\nஅகலம்: 1)")), "பொழில்-203") << word;
        EXPECT_EQ(refusalOf(inRow(word + "(, அகலம்: 1)")), "பொழில்-203") << word;
        EXPECT_EQ(refusalOf(inRow(word + "(நிறம்: 1)")), "பொழில்-203") << word;
        EXPECT_EQ(refusalOf(inRow(word + "(உரை: 1)")), "பொழில்-203") << word;
        EXPECT_EQ(refusalOf(inRow(word + "(அகலம் 1)")), "பொழில்-203") << word;
    }
}

TEST(Groups, TakeAnAnimationWordOfAnyKind) {
    for (const TokenType kind : {TokenType::IDENTIFIER, TokenType::KEYWORD}) {
        for (const std::string source :
             {"நெடுவரிசை(அசைவூட்டம்(காலம்: 5))", "உரை(அசைவூட்டம்(காலம்: 5))", "பெட்டி(அசைவூட்டம்(காலம்: 5))",
              "வெற்றிடம்(அசைவூட்டம்(காலம்: 5))"}) {
            Parser parser = parserOver(scanAs(kind, {"அசைவூட்டம்"}, source));
            const auto node = parser.parseWidget();
            const auto& widget = dynamic_cast<const WidgetNode&>(*node);
            ASSERT_NE(widget.animation, nullptr) << source;
            EXPECT_EQ(widget.animation->duration, 5) << source;
        }
    }
}

std::unique_ptr<Statement> parseHandmade(const std::vector<Token>& tokens) {
    Parser parser = parserOver(tokens);
    auto node = parser.parseWidget();
    EXPECT_TRUE(parser.is_at_end());
    return node;
}

/// The scanner's `அளவு` is a HEIGHT, and the form is refused; as a plain word it is the padding.
TEST(Padding, HasASizeIfItsWordIsPlain) {
    const auto node =
        parseHandmade(scanAs(TokenType::IDENTIFIER, {"அளவு"}, "உள்_இவெ(அளவு: 8)(உரை(\"அ\"))"));
    const auto& padding = dynamic_cast<const PaddingNode&>(*node);
    EXPECT_EQ(padding.padding, 8.0F);
    EXPECT_EQ(padding.properties.count("அளவு"), 1U);
    EXPECT_EQ(padding.children.size(), 1U);
    const auto decimal =
        parseHandmade(scanAs(TokenType::IDENTIFIER, {"அளவு"}, "உள்_இவெ(அளவு: 8.5)"));
    EXPECT_EQ(dynamic_cast<const PaddingNode&>(*decimal).padding, 0.0F);
    EXPECT_EQ(refusalOf("உள்_இவெ(அளவு: 8)"), "பொழில்-204");
}

TEST(SnackBar, HasADurationIfItsWordIsPlain) {
    const auto barOf = [](const std::string& value) {
        auto node = parseHandmade(
            scanAs(TokenType::IDENTIFIER, {"காலம்"}, "அறிவிப்பு_பட்டை(காலம்: " + value + ")"));
        return std::unique_ptr<SnackBarNode>(dynamic_cast<SnackBarNode*>(node.release()));
    };
    EXPECT_EQ(barOf("500")->durationMs, 500);
    EXPECT_EQ(barOf("500")->properties.count("காலம்"), 1U);
    EXPECT_EQ(barOf("\"500\"")->durationMs, 3000);
    EXPECT_EQ(barOf("2.5")->durationMs, 3000);
}

TEST(SnackBar, PointsToItsLastMessage) {
    const WidgetSource source("அறிவிப்பு_பட்டை(செய்தி: உரை(1), செய்தி: உரை(2), செய்தி: 3)");
    const auto& bar = dynamic_cast<const SnackBarNode&>(source.node());
    ASSERT_EQ(bar.children.size(), 2U);
    EXPECT_EQ(bar.content, bar.children[1].get());
    EXPECT_EQ(source.keys(), "செய்தி");
}

TEST(SnackBar, KeepsABackgroundThatIsAText) {
    const auto backgroundOf = [](const std::string& value) {
        const WidgetSource source("அறிவிப்பு_பட்டை(பின்னணி: " + value + ")");
        return dynamic_cast<const SnackBarNode&>(source.node()).backgroundColor;
    };
    EXPECT_EQ(backgroundOf("\"பச்சை\""), "பச்சை");
    EXPECT_EQ(backgroundOf("\"#fff\""), "#333333");  // a colour, no text
    EXPECT_EQ(backgroundOf("பச்சை"), "#333333");
}

TEST(Flexible, SharesAreWholeNumbers) {
    const auto flexOf = [](const std::string& items) {
        const WidgetSource source("நெகிழ்வு(" + items + ")");
        return dynamic_cast<const FlexibleNode&>(source.node()).flex;
    };
    EXPECT_EQ(flexOf(""), 1);
    EXPECT_EQ(flexOf("பங்கு: 3"), 3);
    EXPECT_EQ(flexOf("விகிதம்: 4"), 4);
    EXPECT_EQ(flexOf("பங்கு: 3, விகிதம்: 4"), 4);
    EXPECT_EQ(flexOf("பங்கு: 3, பங்கு: \"5\""), 3);
    EXPECT_EQ(flexOf("பங்கு: 0"), 0);
    EXPECT_THROW(flexOf("பங்கு: ௩"), std::invalid_argument);
    EXPECT_THROW(flexOf("பங்கு: 99999999999"), std::out_of_range);
}

/// A widget that is a property's value goes with the property; it is no child.
TEST(Flexible, DropsItsProperties) {
    const WidgetSource source("நெகிழ்வு(பங்கு: 2, அகலம்: 10, அடையாளம்: உரை(\"அ\"), உரை(\"ஆ\"))");
    EXPECT_EQ(source.keys(), "");
    EXPECT_EQ(source.node().children.size(), 1U);
}

TEST(Share, IsAPlainWordToo) {
    for (const std::string word : {"விரிவாக்கம்", "வெற்றிடம்"}) {
        const auto node =
            parseHandmade(scanAs(TokenType::IDENTIFIER, {"பங்கு"}, word + "(பங்கு: 2)"));
        EXPECT_EQ(dynamic_cast<const WidgetNode&>(*node).properties.count("flex"), 1U) << word;
    }
    const auto node = parseHandmade(scanAs(TokenType::IDENTIFIER, {"பங்கு"}, "நெகிழ்வு(பங்கு: 2)"));
    EXPECT_EQ(dynamic_cast<const FlexibleNode&>(*node).flex, 2);
}

TEST(Words, OfGridSpacerBoxAndButtonArePlainToo) {
    const std::pair<const char*, const char*> rows[] = {
        {"கட்டம்_காட்சி(அகலம்: 5)()", "width"},
        {"கட்டம்_காட்சி(உயரம்: 5)()", "height"},
        {"கட்டம்_காட்சி(இவெ(அகலம்: 5))()", "h_gap"},
        {"கட்டம்_காட்சி(இவெ(உயரம்: 5))()", "v_gap"},
        {"வெற்றிடம்(அகலம்: 5)", "அகலம்"},
        {"வெற்றிடம்(உயரம்: 5)", "உயரம்"},
        {"பெட்டி(விகிதம்: 5)", "ratio"},
        {"பெட்டி(அழுத்தினால்: 5)", "அழுத்தினால்"},
        {"உரைபொத்தான்(உரை(5))", "உரை"},
        {"உரைபொத்தான்(உரைபொ_பாணி(அ: 5))", "style_அ"},
        {"அட்டை(அட்டை_பாணி(அ: 5))", "style_அ"},
        {"உரை(தேடல்_பாணி(அ: 5))", "style_அ"},
        {"உரை(எச்சரிக்கை_பாணி(அ: 5))", "style_அ"},
        {"எச்சரிக்கை(எச்சரிக்கை_பாணி(அ: 5))", "style_அ"},
    };
    for (const auto& [source, key] : rows) {
        const auto node =
            parseHandmade(scanAs(TokenType::IDENTIFIER,
                                 {"அகலம்", "உயரம்", "விகிதம்", "அழுத்தினால்", "உரை", "உரைபொ_பாணி",
                                  "அட்டை_பாணி", "தேடல்_பாணி", "எச்சரிக்கை_பாணி"},
                                 source));
        const auto& widget = dynamic_cast<const WidgetNode&>(*node);
        EXPECT_EQ(widget.properties.size(), 1U) << source;
        EXPECT_EQ(widget.properties.count(key), 1U) << source;
    }
}

TEST(Grid, OpensItsGroupWithAParenthesis) {
    EXPECT_EQ(refusalOf(inRow("கட்டம்_காட்சி cols: 2)()")), "பொழில்-203");
}

TEST(Grid, OpensItsGapsWithAParenthesis) {
    EXPECT_EQ(refusalOf("கட்டம்_காட்சி(இவெ உயரம்: 5))()"), "பொழில்-203");
    EXPECT_EQ(refusalOf("கட்டம்_காட்சி(இவெ\n(உயரம்: 5))()"), "பொழில்-203");
}

TEST(Box, GivesItsAlignmentAGroupOfItsOwn) {
    EXPECT_EQ(refusalOf("பெட்டி(சீரமைப்பு: மையம்)"), "பொழில்-203");
    EXPECT_EQ(refusalOf("பெட்டி(சீரமைப்பு: மையம்,)()"), "பொழில்-204");
    EXPECT_EQ(refusalOf("பெட்டி(சீரமைப்பு: மையம்\n)()"), "பொழில்-204");
    EXPECT_EQ(refusalOf("பெட்டி(சீரமைப்பு: மையம்)\n()"), "பொழில்-203");
    const WidgetSource later("பெட்டி(\nசீரமைப்பு: மையம்)");
    EXPECT_EQ(later.keys(), "சீரமைப்பு");
    EXPECT_EQ(static_cast<int>(later.node().alignment), 0);
}

/// A property group passes any layout behind it, and with it the end of a block. Meant.
TEST(Groups, SwallowTheEndOfABlock) {
    EXPECT_EQ(refusalOf("செயல் f():\n    நெடுவரிசை(அகலம்: 1)\n"), "பொழில்-292");
    EXPECT_EQ(refusalOf("செயல் f():\n    எச்சரிக்கை()\n"), "பொழில்-292");
    EXPECT_EQ(refusalOf("செயல் f():\n    நெடுவரிசை(அகலம்: 1)()\n"), "none");
    EXPECT_EQ(refusalOf("செயல் f():\n    நெடுவரிசை()\n"), "none");
}

}  // namespace
