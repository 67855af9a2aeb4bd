// Size, depth and numbers that don't convert: a report or a driver's line, never a crash or a hang.
#include <gtest/gtest.h>

#include "support/repeated.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

const int kDeep = 5000;
const int kMany = rounds(100000);

TEST(Depth, OfWidgetsEndsInAReport) {
    for (const char* opening : {"நெடுவரிசை(",
                                "நெடுவரிசை(அகலம்: 1)(",
                                "பெட்டி(",
                                "பெட்டி(சீரமைப்பு: மையம்)(",
                                "பொத்தான்(",
                                "அட்டை(",
                                "எச்சரிக்கை(",
                                "எச்சரிக்கை()(",
                                "உள்_இவே()(",
                                "விரிவாக்கம்(",
                                "நெகிழ்வு(",
                                "கட்டம்_காட்சி()(",
                                "பட்டியல்_காட்சி(",
                                "அறிவிப்பு_பட்டை(செய்தி: ",
                                "உரை(அ: உரை(",
                                "பட்டியல்_உருப்படி(அ: ",
                                "உரைபொத்தான்(உரை(",
                                "உரை(அழுத்தினால்(",
                                "உரை(அழுத்தினால்(விடு ",
                                "பெட்டி(அழுத்தினால்(",
                                "உரை(உரைபாணி(அளவு: ",
                                "உரை([",
                                "உரை(f("}) {
        EXPECT_EQ(refusalOf(repeated(opening, kDeep)), "பொழில்-291") << opening;
    }
}

TEST(Depth, OfAHundredThousandWidgetsEndsInAReport) {
    EXPECT_EQ(refusalOf(repeated("நெடுவரிசை(", kMany)), "பொழில்-291");
    EXPECT_EQ(refusalOf("அ = " + repeated("உரை(", kMany)), "பொழில்-291");
}

TEST(Depth, OfDatabaseFormsEndsInAReport) {
    for (const char* opening : {"நிகழ்நேர.தரவுபடி(1) {", "நிகழ்நேர.தரவுசேர்(1) {அ: ",
                                "நிகழ்நேர.தரவுஅழி(", "நிகழ்நேர.தரவுமாற்று("}) {
        EXPECT_EQ(refusalOf(repeated(opening, kDeep)), "பொழில்-291") << opening;
    }
}

TEST(Depth, OfApplicationsEndsInAReport) {
    EXPECT_EQ(refusalOf(repeated("வலைதளம்(வரையறை(", kDeep)), "பொழில்-291");
}

/// The tree's depth counts through widgets: a chain of operators in a widget in a chain.
TEST(Depth, OfTheTreeCountsThroughWidgets) {
    const std::string chain = repeated(" கூட்டு 1", 1500);
    std::string value = "1";
    for (int i = 0; i < 2; i++) value = "உரை(அ: " + value + chain + ")";
    EXPECT_EQ(refusalOf("அ = " + value), "none");
    for (int i = 0; i < 2; i++) value = "உரை(அ: " + value + chain + ")";
    EXPECT_EQ(refusalOf("அ = " + value), "பொழில்-291");
}

TEST(Depth, OfAThousandWidgetsIsFine) {
    EXPECT_EQ(refusalOf(repeated("நெடுவரிசை(", 1000) + repeated(")", 1000)), "none");
}

TEST(Size, OfAWidgetIsFree) {
    const std::string children = repeated("உரை(\"அ\") ", kMany);
    const std::size_t count = kMany;
    EXPECT_EQ(WidgetSource("நெடுவரிசை(" + children + ")").node().children.size(), count);
    EXPECT_EQ(WidgetSource("பொத்தான்(" + children + ")").node().children.size(), count);
    EXPECT_EQ(WidgetSource("உரை(" + repeated("1, ", kMany) + ")").node().properties.size(), count);
    EXPECT_EQ(WidgetSource("உரை(\n" + repeated("அ: 1\n", kMany) + ")").keys(), "அ");
    EXPECT_EQ(WidgetSource("நெடுவரிசை(" + repeated("\n", kMany) + ")").keys(), "");
}

TEST(Size, OfWhatIsPassedOverIsFree) {
    for (const std::string opening : {"பெட்டி(", "அட்டை(", "எச்சரிக்கை(", "பட்டியல்_உருப்படி(",
                                      "அறிவிப்பு_பட்டை(", "விரிவாக்கம்(", "உரை(அசைவூட்டம்("}) {
        EXPECT_EQ(refusalOf(opening + repeated("5 : ", kMany)), "பொழில்-204") << opening;
    }
}

// ---- Numbers that the parser can't convert ----

TEST(Number, OfTamilDigitsInAStyleThrows) {
    EXPECT_THROW(parse("நெடுவரிசை(உரை(உரைபாணி(அளவு: ௧௬)))"), std::invalid_argument);
    EXPECT_THROW(parse("உரை(உரைபாணி(அளவு: " + std::string(60, '9') + "))"), std::out_of_range);
}

/// A value in place stands in a guard: the token that fails is passed over, and so is the rest of
/// what it stands in, token by token.
TEST(Number, OfTamilDigitsInAValueIsPassedOver) {
    const WidgetSource source("உரை([உரை(உரைபாணி(அளவு: ௧௬, 7)");
    EXPECT_EQ(source.keys(), "உரை");
    EXPECT_EQ(source.property("உரை"), "number 7 @1\n");
}

TEST(Number, InAGuardTakesOneTokenAlong) {
    const WidgetSource source("உரை([உரை(உரைபாணி(அளவு: ௧௬ 5 7)");
    EXPECT_EQ(source.keys(), "உரை");
    EXPECT_EQ(source.property("உரை"), "number 7 @1\n");
    EXPECT_EQ(refusalOf("உரை([உரை(உரைபாணி(அளவு: ௧௬"), "பொழில்-204");
}

TEST(Number, InAGuardDoesNotCountAsAValue) {
    const WidgetSource source("உரை(\"அ\", [உரை(உரைபாணி(அளவு: ௧௬, \"ஆ\")");
    EXPECT_EQ(source.keys(), "arg1 உரை");
    EXPECT_EQ(source.property("arg1"), "string \"ஆ\" @1\n");
}

/// A report isn't an exception that the guard holds.
TEST(Report, InAGuardIsARefusal) {
    EXPECT_EQ(refusalOf("உரை([1 2])"), "பொழில்-207");
    EXPECT_EQ(refusalOf("உரை(f(உரை(அடையாளம்)))"), "பொழில்-202");
}

/// A function body that an exception left behind doesn't stay open.
TEST(Guard, RestoresTheFunctionDepth) {
    EXPECT_EQ(refusalOf("உரை(\n"
                        "    \"அ\"\n"
                        "    [உரை(அழுத்தினால்(\n"
                        "    செயல் f():\n"
                        "        உரை(உரைபாணி(அளவு: ௧௬\n"
                        "    அழுத்தினால்(திரும்பு 1))\n"),
              "பொழில்-233");
}

}  // namespace
