// What a button takes from its node: the label with its style, and the colours.
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "support/generated_text.h"

namespace {

using Value = std::unique_ptr<Expression>;

Value text(const char* value) { return std::make_unique<StringLiteral>(value); }
Value numberOf(const char* value) { return std::make_unique<NumberLiteral>(value); }

class ButtonText : public testing::Test {
protected:
    static std::unique_ptr<WidgetNode> widget(const char* name) {
        return std::make_unique<WidgetNode>(name, PropertyMap(), WidgetList(),
                                            சீரமைப்பு_வகை::மேல்_இடது, false);
    }

    /// A label with that text, whose own style has the weight that the button starts with.
    WidgetNode& addLabel(const char* value) {
        button->children.push_back(widget("உரை"));
        auto& label = dynamic_cast<WidgetNode&>(*button->children.back());
        label.properties["உரை"] = text(value);
        label.textStyle.fontWeight = "400";
        return label;
    }

    static WidgetNode& addStyle(WidgetNode& label) {
        label.children.push_back(widget("உரைபாணி"));
        return dynamic_cast<WidgetNode&>(*label.children.back());
    }

    std::string written() const {
        const Program program;
        Generator generator(program, {}, {}, {}, "", "");
        generator.generateWidgetCode(button.get(), "wX", "wY");
        return generator.out.str();
    }

    bool writes(const std::string& part) const { return written().find(part) != std::string::npos; }

    std::unique_ptr<WidgetNode> button = widget("பொத்தான்");
};

TEST_F(ButtonText, TakesTheStyleBelowItsLabel) {
    WidgetNode& style = addStyle(addLabel("அ"));
    style.properties["நிறம்"] = text("#FF8000");
    style.properties["அளவு"] = numberOf("20");
    style.properties["எழுத்துரு"] = text("அ.ttf");
    style.properties["தடிமன்"] = text("தடிமனான");
    EXPECT_TRUE(writes("tr = 255; tg = 128; tb = 0; ta = 255;\n"));
    EXPECT_TRUE(writes("responsiveTextSize(20.000f, winWidth)"));
    EXPECT_TRUE(writes("nvgFontFace(vg, \"அ.ttf\");\n"));
    EXPECT_TRUE(writes("\"தடிமனான\",\n                  false, \"அ.ttf\");\n"));
}

TEST_F(ButtonText, TakesAWeightThatIsANumber) {
    addStyle(addLabel("அ")).properties["தடிமன்"] = numberOf("500");
    EXPECT_TRUE(writes("\"500\",\n                  false, \"\");\n"));
}

TEST_F(ButtonText, PrefersTheStyleBelowItsLabelToTheLabelsOwn) {
    WidgetNode& label = addLabel("அ");
    label.textStyle.color = "சிவப்பு";
    label.textStyle.fontSize = 30;
    label.textStyle.fontFamily = "ஆ.ttf";
    label.textStyle.fontWeight = "700";
    EXPECT_TRUE(writes("tr = 255; tg = 0; tb = 0; ta = 255;\n"));
    EXPECT_TRUE(writes("responsiveTextSize(30.000f, winWidth)"));
    EXPECT_TRUE(writes("\"700\",\n                  false, \"ஆ.ttf\");\n"));

    WidgetNode& style = addStyle(label);
    style.properties["நிறம்"] = text("#00FF00");
    style.properties["அளவு"] = numberOf("20");
    style.properties["எழுத்துரு"] = text("அ.ttf");
    style.properties["தடிமன்"] = numberOf("800");
    EXPECT_TRUE(writes("tr = 0; tg = 255; tb = 0; ta = 255;\n"));
    EXPECT_TRUE(writes("responsiveTextSize(20.000f, winWidth)"));
    EXPECT_TRUE(writes("\"800\",\n                  false, \"அ.ttf\");\n"));
}

TEST_F(ButtonText, MeasuresInTheHeavyFaceByTheWeight) {
    WidgetNode& label = addLabel("அ");
    const auto face = [&](const char* weight) {
        label.textStyle.fontWeight = weight;
        return writes("nvgFontFace(vg, \"tamil_font\");\n") ? "heavy" : "light";
    };
    for (const char* weight : {"700", "800", "900", "தடிமனான", "bold", "30", "400"}) {
        EXPECT_STREQ(face(weight), "heavy") << weight;
    }
    EXPECT_STREQ(face("29"), "light");
    EXPECT_STREQ(face(""), "light");
}

TEST_F(ButtonText, EndsTheCompilationByAWeightThatIsNoNumber) {
    WidgetNode& label = addLabel("அ");
    label.textStyle.fontWeight = TextStyle().fontWeight;
    EXPECT_THROW(written(), std::invalid_argument);
    label.textStyle.fontFamily = "அ.ttf";
    EXPECT_THROW(written(), std::invalid_argument);
    EXPECT_THROW(generate("அ = பொத்தான்(உரை(\"ஆ\"))\n"), std::invalid_argument);
}

TEST_F(ButtonText, TakesTheFirstLabelThatIsALiteral) {
    addLabel("அ").properties["உரை"] = numberOf("1");
    addLabel("ஆ");
    addLabel("இ");
    button->properties["உரை"] = text("ஈ");
    EXPECT_TRUE(writes("nvgTextBounds(vg, 0, 0, \"ஆ\", NULL, bounds);\n"));
}

TEST_F(ButtonText, TakesTheStylesBackgroundAfterThePlainOne) {
    button->properties["பொபின்னணி"] = text("சிவப்பு");
    EXPECT_TRUE(writes("    r = 255; g = 0; b = 0; a = 255;\n"));
    button->properties["style_பின்னணி"] = std::make_unique<ColorExpression>("#00FF0080", true);
    const std::string all = written();
    EXPECT_LT(all.find("r = 255; g = 0; b = 0; a = 255;\n"),
              all.find("r = 0; g = 255; b = 0; a = 128;\n"));
    EXPECT_NE(all.find("r = 0; g = 255; b = 0; a = 128;\n"), std::string::npos);
}

TEST_F(ButtonText, TakesTheStylesTextColourAfterItsLabels) {
    addLabel("அ").textStyle.color = "சிவப்பு";
    button->properties["style_எழுத்து_நிறம்"] = text("நீலம்");
    const std::string all = written();
    EXPECT_LT(all.find("tr = 255;"), all.find("tr = 0; tg = 0; tb = 255; ta = 255;\n"));
    EXPECT_NE(all.find("tr = 0; tg = 0; tb = 255; ta = 255;\n"), std::string::npos);
}

TEST_F(ButtonText, HasABorderOfBothOrNone) {
    button->properties["style_கரை_அளவு"] = numberOf("2");
    EXPECT_FALSE(writes("nvgStroke(vg);"));
    button->properties["style_கரை_நிறம்"] = text("நீலம்");
    EXPECT_TRUE(writes("nvgStroke(vg);"));
    button->properties["style_கரை_அளவு"] = text("2");
    EXPECT_FALSE(writes("nvgStroke(vg);"));
}

}  // namespace
