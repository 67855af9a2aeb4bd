// The names of the kinds. Four of them end in a blank.
#include <gtest/gtest.h>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

std::string nameOf(const std::any& value) { return என்னவகை_கண்டுபிடி(value); }

TEST(TypeNames, OfNumbers) {
    EXPECT_EQ(nameOf(1LL), "எண் ");
    EXPECT_EQ(nameOf(1), "எண் ");
    EXPECT_EQ(nameOf(1.0L), "தசம_எண்");
}

TEST(TypeNames, OfTextsAndCharacters) {
    EXPECT_EQ(nameOf(std::string()), "உரை");
    EXPECT_EQ(nameOf(_PozhilChar{"அ"}), "எழுத்து");
    EXPECT_EQ(nameOf('a'), "எழுத்து");
}

TEST(TypeNames, OfTruth) { EXPECT_EQ(nameOf(false), "நிலை "); }

TEST(TypeNames, OfContainers) {
    EXPECT_EQ(nameOf(std::vector<std::any>()), "பட்டியல்");
    EXPECT_EQ(nameOf(std::map<std::string, std::any>()), "அகராதி");
}

TEST(TypeNames, OfTimes) {
    std::tm time = {};
    EXPECT_EQ(nameOf(&time), "நேரம் ");
}

TEST(TypeNames, OfObjects) { EXPECT_EQ(nameOf(std::make_shared<_StructBase>()), "பொருள் "); }

TEST(TypeNames, OfFunctionsOfAnyArity) {
    using Any = std::any;
    EXPECT_EQ(nameOf(std::function<Any()>([] { return Any(); })), "வினை");
    EXPECT_EQ(nameOf(std::function<Any(Any)>([](Any) { return Any(); })), "வினை");
    EXPECT_EQ(nameOf(std::function<Any(Any, Any, Any, Any, Any)>(
                  [](Any, Any, Any, Any, Any) { return Any(); })),
              "வினை");
}

TEST(TypeNames, OfNothingAndOfStrangers) {
    EXPECT_EQ(nameOf(std::any()), "தெரியாத_வகை (Unknown)");
    EXPECT_EQ(nameOf(1.0), "தெரியாத_வகை (Unknown)");
    EXPECT_EQ(nameOf(nullptr), "தெரியாத_வகை (Unknown)");
}

}  // namespace
