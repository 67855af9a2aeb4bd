// Size properties as C++ text.
#include "ui/sizes.h"

#include <gtest/gtest.h>

#include <map>

#include "support/front_end.h"

namespace {

/// The size text of the expression that `source` is, with "B" for 100 %.
std::string sizeOf(const std::string& source) {
    const Parsed parsed = parse("படம்(அகலம்: " + source + ")\n");
    const auto& widget = dynamic_cast<const WidgetNode&>(*parsed.program.statements.at(0));
    return processPercentage(widget.properties.at("அகலம்").get(), "B");
}

TEST(Size, OfAPercentage) {
    EXPECT_EQ(sizeOf("50%"), "(B * 0.500000f)");
    EXPECT_EQ(sizeOf("\"50%\""), "(B * 0.500000f)");
    EXPECT_EQ(sizeOf("\"12.5%\""), "(B * 0.125000f)");
}

TEST(Size, OfANumber) {
    EXPECT_EQ(sizeOf("320"), "320.0f");
    const NumberLiteral withPoint("1.5");
    EXPECT_EQ(processPercentage(&withPoint, "B"), "1.5f");
}

TEST(Size, OfTheWindow) {
    EXPECT_EQ(sizeOf("திரை_அகலம்"), "winWidth");
    EXPECT_EQ(sizeOf("திரை_உயரம்"), "winHeight");
    EXPECT_EQ(sizeOf("நீளஅளவு"), "fn_get_double(global_vars[\"நீளஅளவு\"])");
}

TEST(Size, OfAChoiceByComparison) {
    EXPECT_EQ(sizeOf("(திரை_அகலம் சிறிது 600 ? 100% : 50%)"),
              "(((winWidth < 600.0f) ? (B * 1.000000f) : (B * 0.500000f)))");
}

TEST(Size, OfEachComparison) {
    for (const auto& [word, sign] : std::map<std::string, std::string>{{"சமம்", "=="},
                                                                       {"சமமில்லை", "!="},
                                                                       {"பெரிது", ">"},
                                                                       {"சிறிது", "<"},
                                                                       {"பெரிதுசமம்", ">="},
                                                                       {"சிறிதுசமம்", "<="},
                                                                       {"கூட்டு", "=="}}) {
        EXPECT_EQ(sizeOf("அ " + word + " 2"),
                  "(fn_get_double(global_vars[\"அ\"]) " + sign + " 2.0f)");
    }
}

TEST(Size, OfAnythingElseIsEmpty) {
    EXPECT_EQ(sizeOf("\"பெரிய\""), "");
    EXPECT_EQ(sizeOf("\"பெரிய%\""), "");
    EXPECT_EQ(sizeOf("\"50\""), "") << "a string counts as a percentage alone";
    EXPECT_EQ(sizeOf("1.5"), "");
    EXPECT_EQ(sizeOf("மெய்"), "");
    EXPECT_EQ(processPercentage(nullptr, "B"), "");
}

TEST(Size, OfWhatHoldsNoSizeSomewhereIsEmpty) {
    EXPECT_EQ(sizeOf("(1.5)"), "");
    EXPECT_EQ(sizeOf("1.5 பெரிது 2"), "");
    EXPECT_EQ(sizeOf("2 பெரிது 1.5"), "");
    EXPECT_EQ(sizeOf("திரை_அகலம் சிறிது 600 ? 1.5 : 50%"), "");
    EXPECT_EQ(sizeOf("திரை_அகலம் சிறிது 600 ? 50% : 1.5"), "");
    EXPECT_EQ(sizeOf("மெய் மற்றும் பொய் ? 50% : 25%"), "");
}

TEST(Size, OfANumberAlone) {
    WidgetNode widget("மடிப்பு", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false);
    EXPECT_EQ(numberSizeOr(widget, "இடைவெளி", "10.0f"), "10.0f");
    widget.properties["இடைவெளி"] = std::make_unique<NumberLiteral>("12");
    EXPECT_EQ(numberSizeOr(widget, "இடைவெளி", "10.0f"), "12.0f");
    widget.properties["இடைவெளி"] = std::make_unique<PercentageLiteral>("12");
    EXPECT_EQ(numberSizeOr(widget, "இடைவெளி", "10.0f"), "10.0f");
}

}  // namespace
