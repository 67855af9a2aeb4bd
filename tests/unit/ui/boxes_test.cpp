// Boxes and cards by properties that no source can write: the scanner gives their words a kind that
// the grammar passes over, or refuses a letter of theirs.
#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

class BoxText : public testing::Test {
protected:
    template <typename Literal>
    static void set(WidgetNode& node, const char* key, const char* value) {
        node.properties[key] = std::make_unique<Literal>(value);
    }

    WidgetNode& styleBlock() {
        widget.children.push_back(std::make_unique<WidgetNode>(
            "பெட்டி_பாணி", PropertyMap(), WidgetList(), சீரமைப்பு_வகை::மேல்_இடது));
        return dynamic_cast<WidgetNode&>(*widget.children.back());
    }

    bool holds(const std::string& part) {
        const Program program;
        Generator generator(program, {}, {}, {}, "", "");
        generator.generateWidgetCode(&widget, "wX", "wY");
        return generator.out.str().find(part) != std::string::npos;
    }

    WidgetNode widget{"பெட்டி", {}, {}, சீரமைப்பு_வகை::மேல்_இடது};
};

TEST_F(BoxText, OfItsOwnLookGoesBeforeItsStyleBlock) {
    WidgetNode& style = styleBlock();
    for (const auto& [key, value] : {std::pair("வளைவு", "1"), {"நிழல்", "2"}}) {
        set<NumberLiteral>(style, key, value);
    }
    set<StringLiteral>(style, "பின்னணி", "நீலம்");
    EXPECT_TRUE(holds("float radius = 1.0f;\n"));
    EXPECT_TRUE(holds("float shadow = 2.0f;\n"));
    EXPECT_TRUE(holds("NVGcolor boxColor = nvgRGBAf(0.000f, 0.000f, 1.000f, 1.000f);\n"));

    for (const auto& [key, value] : {std::pair("வளைவு", "3"), {"நிழல்", "4"}}) {
        set<NumberLiteral>(widget, key, value);
    }
    set<StringLiteral>(widget, "பின்னணி", "சிவப்பு");
    EXPECT_TRUE(holds("float radius = 3.0f;\n"));
    EXPECT_TRUE(holds("float shadow = 4.0f;\n"));
    EXPECT_TRUE(holds("NVGcolor boxColor = nvgRGBAf(1.000f, 0.000f, 0.000f, 1.000f);\n"));
    EXPECT_FALSE(holds("1.000f, 1.000f"));
}

TEST_F(BoxText, OfItsGroupsRadiusGoesBeforeThePlainOne) {
    set<NumberLiteral>(widget, "வளைவு", "1");
    set<NumberLiteral>(widget, "style_வளைவு", "2");
    EXPECT_TRUE(holds("float radius = 2.0f;\n"));
    set<VariableAccess>(widget, "style_வளைவு", "அ");
    EXPECT_TRUE(holds("float radius = 1.0f;\n")) << "what is no number says nothing";
}

TEST_F(BoxText, OfItsColourTriesEachKey) {
    const auto inColour = [this](const char* channels) {
        return holds(std::string("NVGcolor boxColor = nvgRGBAf(") + channels + ", 1.000f);\n");
    };
    set<StringLiteral>(widget, "நிறம்", "நீலம்");
    EXPECT_TRUE(inColour("0.000f, 0.000f, 1.000f"));
    set<StringLiteral>(widget, "பெட்டிபின்னணி", "#00FF00");
    EXPECT_TRUE(inColour("0.000f, 1.000f, 0.000f"));
    widget.properties["பின்னணி"] = std::make_unique<ColorExpression>("#FF0000", true);
    EXPECT_TRUE(inColour("1.000f, 0.000f, 0.000f"));
    widget.properties["பின்னணி"] = std::make_unique<GetExpression>(
        std::make_unique<VariableAccess>("நிறம்"), Token{TokenType::IDENTIFIER, "மஞ்சள்", 1});
    EXPECT_TRUE(inColour("1.000f, 1.000f, 0.000f"));
    set<VariableAccess>(widget, "பின்னணி", "அ");
    EXPECT_TRUE(inColour("0.000f, 1.000f, 0.000f")) << "a variable says nothing";
}

TEST_F(BoxText, OfItsHoverColourTriesEachKey) {
    EXPECT_FALSE(holds("if (isHover)"));
    set<StringLiteral>(widget, "மேம்படுத்தப்பட்ட_நிறம்", "நீலம்");
    EXPECT_TRUE(holds("boxColor = nvgRGBAf(0.000f, 0.000f, 1.000f, 1.000f);\n"));
    set<StringLiteral>(widget, "style_மேம்படுத்தப்பட்ட_நிறம்", "சிவப்பு");
    EXPECT_TRUE(holds("boxColor = nvgRGBAf(1.000f, 0.000f, 0.000f, 1.000f);\n"));
}

TEST_F(BoxText, OfItsPictureGoesBeforeItsStyleBlock) {
    EXPECT_FALSE(holds("bgPath"));
    set<StringLiteral>(styleBlock(), "பின்னணிபடம்", "அ.png");
    EXPECT_TRUE(holds("std::string bgPath = fn_any_to_string(std::string(u8\"அ.png\"));\n"));
    set<StringLiteral>(widget, "பின்னணிபடம்", "ஆ.png");
    EXPECT_TRUE(holds("std::string bgPath = fn_any_to_string(std::string(u8\"ஆ.png\"));\n"));
}

TEST_F(BoxText, LeavesOutWhatIsNoWidgetAndItsStyleBlock) {
    styleBlock();
    widget.children.push_back(std::make_unique<PassStatement>());
    widget.children.push_back(nullptr);
    EXPECT_FALSE(holds("childW"));
}

TEST_F(BoxText, OfItsAlignmentReadsAStringOrAMember) {
    widget.children.push_back(
        std::make_unique<WidgetNode>("இவெ", PropertyMap(), WidgetList(), சீரமைப்பு_வகை::மேல்_இடது));
    const auto lies = [this](const std::string& x) {
        return holds("float childX = boxX + (boxW - childW) * (1.0f + " + x + ") / 2.0f;\n");
    };
    set<VariableAccess>(widget, "சீரமைப்பு", "மையம்");
    EXPECT_TRUE(lies("-1.0f")) << "a bare word says nothing";
    set<StringLiteral>(widget, "சீரமைப்பு", "மையம்");
    EXPECT_TRUE(lies("0.0f"));
    widget.properties["சீரமைப்பு"] = std::make_unique<GetExpression>(
        std::make_unique<VariableAccess>("இடம்"), Token{TokenType::IDENTIFIER, "கீழ்_வலது", 1});
    EXPECT_TRUE(lies("1.0f"));
}

TEST_F(BoxText, OfATextWithoutAWeightMeasuresTheUsualOne) {
    auto text =
        std::make_unique<WidgetNode>("உரை", PropertyMap(), WidgetList(), சீரமைப்பு_வகை::மேல்_இடது);
    text->textStyle.fontWeight = "";
    text->textStyle.fontSize = 0;
    widget.children.push_back(std::move(text));
    EXPECT_TRUE(holds("getBoxTextWidth(_boxTxt.c_str(), \"400\", 16.000f);\n"));
}

TEST_F(BoxText, RunsThePressStatementsOfTheBox) {
    EXPECT_FALSE(holds("isBoxClicked"));
    widget.onTapStatements.push_back(std::make_unique<PassStatement>());
    EXPECT_TRUE(holds("if (isBoxClicked) {\n"));
}

class CardText : public BoxText {
protected:
    CardText() { widget.name = "அட்டை"; }
};

TEST_F(CardText, HasItsStyleKeysFirst) {
    EXPECT_TRUE(holds("float radius = 12.0f;\n"));
    EXPECT_TRUE(holds("float elevation = 4.0f;\n"));
    EXPECT_TRUE(holds("nvgRGBAf(1.000f, 1.000f, 1.000f, 1.000f)"));
    set<NumberLiteral>(widget, "வளைவு", "1");
    set<NumberLiteral>(widget, "எலிவேஷன்", "2");
    set<StringLiteral>(widget, "style_நிறம்", "நீலம்");
    EXPECT_TRUE(holds("float radius = 1.0f;\n"));
    EXPECT_TRUE(holds("float elevation = 2.0f;\n"));
    EXPECT_TRUE(holds("nvgRGBAf(0.000f, 0.000f, 1.000f, 1.000f)"));
    set<NumberLiteral>(widget, "style_வளைவு", "3");
    set<NumberLiteral>(widget, "style_எலிவேஷன்", "5");
    set<StringLiteral>(widget, "பின்னணி", "பச்சை");
    EXPECT_TRUE(holds("float radius = 3.0f;\n"));
    EXPECT_TRUE(holds("float elevation = 5.0f;\n"));
    EXPECT_TRUE(holds("nvgRGBAf(0.000f, 1.000f, 0.000f, 1.000f)"));
    set<StringLiteral>(widget, "style_பின்னணி", "சிவப்பு");
    EXPECT_TRUE(holds("nvgRGBAf(1.000f, 0.000f, 0.000f, 1.000f)"));
}

TEST_F(CardText, LeavesOutWhatIsNoWidget) {
    widget.children.push_back(std::make_unique<PassStatement>());
    EXPECT_FALSE(holds("currentChildY +="));
}

}  // namespace
