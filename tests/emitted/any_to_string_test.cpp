// Text of a dynamic value: the rules in their order.
#include <gtest/gtest.h>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

using List = std::vector<std::any>;
using Map = std::map<std::string, std::any>;

TEST(AnyToString, OfIntegers) {
    EXPECT_EQ(fn_any_to_string(42LL), "42");
    EXPECT_EQ(fn_any_to_string(-7LL), "-7");
    EXPECT_EQ(fn_any_to_string(9223372036854775807LL), "9223372036854775807");
    EXPECT_EQ(fn_any_to_string(5), "5");
}

TEST(AnyToString, OfDecimalsHasSixDigits) {
    EXPECT_EQ(fn_any_to_string(3.14L), "3.140000");
    EXPECT_EQ(fn_any_to_string(0.0L), "0.000000");
    EXPECT_EQ(fn_any_to_string(-1.23456789L), "-1.234568");
    EXPECT_EQ(fn_any_to_string(123456789012.5L), "123456789012.500000");
}

TEST(AnyToString, OfTexts) {
    EXPECT_EQ(fn_any_to_string(std::string("வணக்கம்\n")), "வணக்கம்\n");
    EXPECT_EQ(fn_any_to_string(std::string()), "");
}

// A text that isn't held in a std::any is taken by an overload; one that has a name is copied.
TEST(AnyToString, OfTextsHoweverTheyAreGiven) {
    const std::any held = std::string("நீளமான வாசகம் ஒன்று");
    std::string named = "நீளமான வாசகம் ஒன்று";
    const std::string constant = named;
    EXPECT_EQ(fn_any_to_string(held), named);
    EXPECT_EQ(fn_any_to_string(named), constant);
    EXPECT_EQ(fn_any_to_string(constant), named);
    EXPECT_EQ(fn_any_to_string(named + "!"), "நீளமான வாசகம் ஒன்று!");
    EXPECT_EQ(named, constant);
}

TEST(AnyToString, OfCharacters) {
    EXPECT_EQ(fn_any_to_string(_PozhilChar{"அ"}), "அ");
    EXPECT_EQ(fn_any_to_string(_PozhilChar{"abc"}), "abc");
    EXPECT_EQ(fn_any_to_string('x'), "x");
}

TEST(AnyToString, OfTruth) {
    EXPECT_EQ(fn_any_to_string(true), "மெய்");
    EXPECT_EQ(fn_any_to_string(false), "பொய்");
}

TEST(AnyToString, OfTimes) {
    std::tm time = {};
    time.tm_mday = 5;
    time.tm_mon = 10;
    time.tm_year = 124;
    time.tm_hour = 9;
    time.tm_min = 8;
    time.tm_sec = 7;
    EXPECT_EQ(fn_any_to_string(&time), "05-11-2024 09:08:07");
}

TEST(AnyToString, OfLists) {
    EXPECT_EQ(fn_any_to_string(List{}), "[]");
    EXPECT_EQ(fn_any_to_string(List{1LL}), "[1]");
    EXPECT_EQ(fn_any_to_string(List{1LL, std::string("அ"), 2.5L, true}), "[1, அ, 2.500000, மெய்]");
    EXPECT_EQ(fn_any_to_string(List{List{1LL, 2LL}, List{}}), "[[1, 2], []]");
    EXPECT_EQ(fn_any_to_string(List{std::any()}), "[[தெரியாத வகை]]");
}

TEST(AnyToString, OfDictionariesInKeyOrder) {
    EXPECT_EQ(fn_any_to_string(Map{}), "{}");
    EXPECT_EQ(fn_any_to_string(Map{{"b", 2LL}, {"a", std::string("x")}}), "{\"a\": x, \"b\": 2}");
    EXPECT_EQ(fn_any_to_string(Map{{"", List{1LL}}, {"\"", Map{}}}), "{\"\": [1], \"\"\": {}}");
}

TEST(AnyToString, OfFunctionsOfUpToThreeArguments) {
    const auto none = [] { return std::any(); };
    const auto one = [](std::any) { return std::any(); };
    const auto two = [](std::any, std::any) { return std::any(); };
    const auto three = [](std::any, std::any, std::any) { return std::any(); };
    EXPECT_EQ(fn_any_to_string(std::function<std::any()>(none)), "[வினை]");
    EXPECT_EQ(fn_any_to_string(std::function<std::any(std::any)>(one)), "[வினை]");
    EXPECT_EQ(fn_any_to_string(std::function<std::any(std::any, std::any)>(two)), "[வினை]");
    EXPECT_EQ(fn_any_to_string(std::function<std::any(std::any, std::any, std::any)>(three)),
              "[வினை]");
}

TEST(AnyToString, OfAFunctionOfFourArgumentsIsUnknown) {
    using Four = std::function<std::any(std::any, std::any, std::any, std::any)>;
    EXPECT_EQ(fn_any_to_string(Four()), "[தெரியாத வகை]");
}

TEST(AnyToString, OfStructures) {
    EXPECT_EQ(fn_any_to_string(std::make_shared<_StructBase>()), "[பொருள்]");
    EXPECT_EQ(fn_any_to_string(std::shared_ptr<_StructBase>()), "[பொருள்]");
    struct Child : _StructBase {};
    EXPECT_EQ(fn_any_to_string(std::make_shared<Child>()), "[தெரியாத வகை]");
}

TEST(AnyToString, OfAnythingElseIsUnknown) {
    EXPECT_EQ(fn_any_to_string(std::any()), "[தெரியாத வகை]");
    EXPECT_EQ(fn_any_to_string(1.5), "[தெரியாத வகை]");
    EXPECT_EQ(fn_any_to_string(1.5F), "[தெரியாத வகை]");
    EXPECT_EQ(fn_any_to_string(1UL), "[தெரியாத வகை]");
    EXPECT_EQ(fn_any_to_string("text"), "[தெரியாத வகை]");
}

}  // namespace
