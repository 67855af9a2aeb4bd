// Text to number, and negation.
#include <gtest/gtest.h>

#include "emitted/endings.h"
#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

long long wholeOf(const std::string& text) {
    return std::any_cast<long long>(fn_cast_to_number(text, 1));
}

long double decimalOf(const std::string& text) {
    return std::any_cast<long double>(fn_cast_to_number(text, 1));
}

std::string refusalOf(const std::any& value) {
    return codeOfEnding([&] { fn_cast_to_number(value, 1); });
}

TEST(CastToNumber, OfWholeNumberTexts) {
    EXPECT_EQ(wholeOf("12"), 12);
    EXPECT_EQ(wholeOf("-12"), -12);
    EXPECT_EQ(wholeOf("+12"), 12);
    EXPECT_EQ(wholeOf("012"), 12);
    EXPECT_EQ(wholeOf("9223372036854775807"), 9223372036854775807LL);
}

TEST(CastToNumber, SkipsLeadingWhiteSpace) {
    EXPECT_EQ(wholeOf(" 12"), 12);
    EXPECT_EQ(wholeOf("\t\n 12"), 12);
    EXPECT_EQ(decimalOf("  1.5"), 1.5L);
}

TEST(CastToNumber, OfDecimalTexts) {
    EXPECT_EQ(decimalOf("1.5"), 1.5L);
    EXPECT_EQ(decimalOf("-.5"), -0.5L);
    EXPECT_EQ(decimalOf("2."), 2.0L);
    EXPECT_EQ(decimalOf("1e3"), 1000.0L);
}

TEST(CastToNumber, WhatOnlyTheDecimalReaderKnowsIsADecimal) {
    EXPECT_EQ(decimalOf("0x1F"), 31.0L);
    EXPECT_EQ(decimalOf("9223372036854775808"), 9223372036854775808.0L);
    EXPECT_TRUE(std::isinf(decimalOf("inf")));
    EXPECT_TRUE(std::isnan(decimalOf("nan")));
}

TEST(CastToNumber, RefusesTextThatIsNoNumber) {
    EXPECT_EQ(refusalOf(std::string("12 ")), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::string("12a")), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::string("")), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::string(" ")), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::string("அ")), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::string("௧௨")), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::string("1e99999")), "பொழில்-302");
}

TEST(CastToNumber, OfNumbersIsTheSameValue) {
    EXPECT_EQ(std::any_cast<long long>(fn_cast_to_number(7LL, 1)), 7);
    EXPECT_EQ(std::any_cast<long double>(fn_cast_to_number(7.5L, 1)), 7.5L);
    EXPECT_EQ(std::any_cast<int>(fn_cast_to_number(7, 1)), 7);
}

TEST(CastToNumber, RefusesEveryOtherKind) {
    EXPECT_EQ(refusalOf(true), "பொழில்-302");
    EXPECT_EQ(refusalOf(_PozhilChar{"7"}), "பொழில்-302");
    EXPECT_EQ(refusalOf('7'), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::vector<std::any>{7LL}), "பொழில்-302");
    EXPECT_EQ(refusalOf(std::any()), "பொழில்-302");
}

TEST(CastToNumber, NamesTheSourceFileAndTheLine) {
    EXPECT_TRUE(endsAt([] { fn_cast_to_number(std::string("a"), 17); }, POZHIL_SOURCE_FILE, 17));
    EXPECT_TRUE(endsAt([] { fn_cast_to_number(true, 18); }, POZHIL_SOURCE_FILE, 18));
}

bool negated(const std::any& value) { return std::any_cast<bool>(fn_logic_not(value)); }

TEST(LogicNot, OfTruth) {
    EXPECT_FALSE(negated(true));
    EXPECT_TRUE(negated(false));
}

TEST(LogicNot, OfNumbersIsWhetherTheyAreZero) {
    EXPECT_TRUE(negated(0LL));
    EXPECT_FALSE(negated(-1LL));
    EXPECT_TRUE(negated(0));
    EXPECT_FALSE(negated(2));
    EXPECT_TRUE(negated(0.0L));
    EXPECT_TRUE(negated(-0.0L));
    EXPECT_FALSE(negated(0.1L));
}

TEST(LogicNot, OfTextsIsWhetherTheyAreEmpty) {
    EXPECT_TRUE(negated(std::string()));
    EXPECT_FALSE(negated(std::string(" ")));
    EXPECT_TRUE(negated(_PozhilChar{""}));
    EXPECT_FALSE(negated(_PozhilChar{"அ"}));
    EXPECT_TRUE(negated('\0'));
    EXPECT_FALSE(negated('0'));
}

TEST(LogicNot, OfAnythingElseIsFalse) {
    EXPECT_FALSE(negated(std::vector<std::any>()));
    EXPECT_FALSE(negated(std::map<std::string, std::any>()));
    EXPECT_FALSE(negated(std::make_shared<_StructBase>()));
    EXPECT_FALSE(negated(std::any()));
    EXPECT_FALSE(negated(0.0));  // a double is no kind of the language
}

}  // namespace
