// Reading a widget's properties by form.
#include "ui/properties.h"

#include <gtest/gtest.h>

#include <memory>

#include "ui/colours.h"

namespace {

class WidgetProperties : public testing::Test {
protected:
    template <typename Literal>
    void set(const std::string& key, const std::string& value) {
        widget.properties[key] = std::make_unique<Literal>(value);
    }

    WidgetNode widget{"பெட்டி", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false};
};

TEST_F(WidgetProperties, OfAStyleComeBeforeThePlainOnes) {
    EXPECT_EQ(styledProperty(widget, "அகலம்"), nullptr);
    set<NumberLiteral>("அகலம்", "1");
    EXPECT_EQ(styledProperty(widget, "அகலம்"), widget.properties.at("அகலம்").get());
    set<NumberLiteral>("style_அகலம்", "2");
    EXPECT_EQ(styledProperty(widget, "அகலம்"), widget.properties.at("style_அகலம்").get());
}

TEST_F(WidgetProperties, OfAnotherFormCountAsAbsent) {
    set<StringLiteral>("அ", "மெய்");
    EXPECT_EQ(*stringProperty(widget, "அ"), "மெய்");
    EXPECT_FALSE(isTrueLiteral(widget, "அ"));
    set<BooleanLiteral>("அ", "மெய்");
    EXPECT_EQ(stringProperty(widget, "அ"), nullptr);
    EXPECT_TRUE(isTrueLiteral(widget, "அ"));
    set<BooleanLiteral>("அ", "பொய்");
    EXPECT_FALSE(isTrueLiteral(widget, "அ"));
}

TEST_F(WidgetProperties, FindAChildByItsName) {
    const auto add = [&](const char* name) {
        widget.children.push_back(std::make_unique<WidgetNode>(name, PropertyMap(), WidgetList(),
                                                               சீரமைப்பு_வகை::மேல்_இடது, false));
        return dynamic_cast<const WidgetNode*>(widget.children.back().get());
    };
    EXPECT_EQ(firstWidget(widget), nullptr);
    const WidgetNode* first = add("படம்");
    const WidgetNode* second = add("உரை");
    EXPECT_EQ(firstWidget(widget), first);
    EXPECT_EQ(childNamed(widget, "உரை"), second);
    EXPECT_EQ(childNamed(widget, "அட்டை"), nullptr);
}

TEST_F(WidgetProperties, FindAChildByItsNameAndAStringOfIt) {
    const auto add = [&](const char* name, std::unique_ptr<Expression> value) {
        auto child = std::make_unique<WidgetNode>(name, PropertyMap(), WidgetList(),
                                                  சீரமைப்பு_வகை::மேல்_இடது, false);
        child->properties["பாதை"] = std::move(value);
        widget.children.push_back(std::move(child));
        return dynamic_cast<const WidgetNode*>(widget.children.back().get());
    };
    add("உரை", std::make_unique<StringLiteral>("அ"));
    add("படம்", std::make_unique<NumberLiteral>("1"));
    EXPECT_EQ(childWithString(widget, "படம்", "பாதை"), nullptr);
    const WidgetNode* image = add("படம்", std::make_unique<StringLiteral>("ஆ"));
    add("படம்", std::make_unique<StringLiteral>("இ"));
    EXPECT_EQ(childWithString(widget, "படம்", "பாதை"), image);
    EXPECT_EQ(childWithString(widget, "படம்", "உரை"), nullptr);
}

std::string channels(const std::optional<PozhilColor>& colour) {
    return colour ? channelTexts(*colour) : "none";
}

TEST_F(WidgetProperties, AreColoursInThreeForms) {
    widget.properties["நிறம்"] = std::make_unique<ColorExpression>("#FF0000", true);
    EXPECT_EQ(channels(colourProperty(widget, "நிறம்")), "1.000f, 0.000f, 0.000f, 1.000f");
    set<StringLiteral>("நிறம்", "#00FF00");
    EXPECT_EQ(channels(colourProperty(widget, "நிறம்")), "0.000f, 1.000f, 0.000f, 1.000f");
    set<StringLiteral>("நிறம்", "நீலம்");
    EXPECT_EQ(channels(colourProperty(widget, "நிறம்")), "0.000f, 0.000f, 1.000f, 1.000f");
    const auto member = [&](const char* object) {
        widget.properties["நிறம்"] = std::make_unique<GetExpression>(
            std::make_unique<VariableAccess>(object), Token{TokenType::IDENTIFIER, "மஞ்சள்", 1});
        return channels(colourProperty(widget, "நிறம்"));
    };
    EXPECT_EQ(member("நிறம்"), "1.000f, 1.000f, 0.000f, 1.000f");
    EXPECT_EQ(member("வண்ணம்"), "none");
    set<VariableAccess>("நிறம்", "மஞ்சள்");
    EXPECT_EQ(channels(colourProperty(widget, "நிறம்")), "none");
    EXPECT_EQ(channels(colourProperty(widget, "கரை")), "none");
}

}  // namespace
