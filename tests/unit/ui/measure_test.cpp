// What widgets measure as far as the source tells: texts, check boxes, and what is no widget.
#include <gtest/gtest.h>

#include "unit/ui/measured.h"

namespace {

TEST(Measure, OfATextCountsCodePoints) {
    EXPECT_EQ(measured("உரை(\"வணக்கம்\")"), (Size{7 * (0.65F * 16), 16}));
    EXPECT_EQ(measured("உரை(அ)"), (Size{10 * (0.65F * 16), 16})) << "no string: ten";
}

TEST(Measure, OfATextCountsItsFirstStringByKey) {
    EXPECT_EQ(measured("உரை(\"ஒன்று\", அடையாளம்: \"அ\")").width, 1 * (0.65F * 16));
}

TEST(Measure, OfAStyleThatGivesNoSizeIsTheKindsOwn) {
    WidgetNode text("உரை", {}, {}, சீரமைப்பு_வகை::மேல்_இடது, false);
    text.textStyle.fontSize = 0;
    EXPECT_EQ(calculateWidgetHeight(&text), 20);
    EXPECT_EQ(calculateWidgetWidth(&text), 10 * (0.65F * 16));
    text.properties["style_அளவு"] = std::make_unique<NumberLiteral>("40");
    EXPECT_EQ(calculateWidgetWidth(&text), 10 * (0.65F * 40));
    EXPECT_EQ(calculateWidgetHeight(&text), 20);
}

TEST(Measure, OfACheckBox) {
    EXPECT_EQ(measured("தேர்வுபெட்டி()"), (Size{24, 24}));
    EXPECT_EQ(measured("தேர்வுபெட்டி(உரை(\"ஒன்று\"))"), (Size{24 + 12 + 5 * (0.65F * 16), 24}));
    EXPECT_EQ(measured("தேர்வுபெட்டி(அகலம்: 40, உயரம்: 30)"), (Size{40, 30}));
    EXPECT_EQ(measured("தேர்வுபெட்டி(அகலம்: 50%, உயரம்: \"50%\")"), (Size{0, 24}))
        << "a percentage is the frame's; a string is none here";
    EXPECT_EQ(measured("தேர்வுபெட்டி(அகலம்: அ)"), (Size{24, 24}));
    EXPECT_EQ(measured("தேர்வுபெட்டி(உரை(\"ஒன்று\", உரைபாணி(அளவு: 30)))"),
              (Size{24 + 12 + 5 * (0.65F * 30), 30}))
        << "a label taller than the box";
}

TEST(Measure, DiffersFromWhatIsDrawnWhereItsRowSaysSo) {
    EXPECT_EQ(measured("அளவி()"), (Size{200, 28}));
    EXPECT_EQ(measured("உரைபெட்டி()"), (Size{320, 60}));
    EXPECT_EQ(measured("நெடுவரிசை(மடிப்பு(இவெ(உயரம்: 7), இவெ(உயரம்: 5)))"), (Size{0, 41}));
    EXPECT_EQ(measured("கட்டம்_காட்சி()()"), (Size{3 * 150 + 2 * 10, 0}));
}

TEST(Measure, OfWhatIsNoWidgetIsNothing) {
    EXPECT_EQ(calculateWidgetWidth(nullptr), 0);
    EXPECT_EQ(measured("அச்சிடு(1)"), (Size{0, 0}));
    EXPECT_EQ(measured("பட்டியல்_காட்சி()"), (Size{0, 0}));
}

}  // namespace
