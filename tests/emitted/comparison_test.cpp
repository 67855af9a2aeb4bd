// Comparison of dynamic values: six operators in two spellings, over every pair of kinds.
#include <gtest/gtest.h>

#include <limits>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

struct Operator {
    const char* symbol;
    const char* word;
};

const Operator kEqual = {"==", "சமம்"};
const Operator kNotEqual = {"!=", "சமமில்லை"};
const Operator kGreater = {">", "பெரிது"};
const Operator kLess = {"<", "சிறிது"};
const Operator kGreaterEqual = {">=", "பெரிதுசமம்"};
const Operator kLessEqual = {"<=", "சிறிதுசமம்"};
const Operator kAll[] = {kEqual, kNotEqual, kGreater, kLess, kGreaterEqual, kLessEqual};

/// Which operators hold between the two, in the order of kAll, as ones and zeros. An operator given
/// as a literal is taken by an overload, which must say the same.
std::string held(const std::any& left, const std::any& right) {
    std::string marks;
    for (const Operator& op : kAll) {
        const bool holds = fn_compare_any(left, right, std::string(op.symbol));
        EXPECT_EQ(fn_compare_any(left, right, std::string(op.word)), holds) << op.word;
        EXPECT_EQ(fn_compare_any(left, right, op.symbol), holds) << op.symbol;
        EXPECT_EQ(fn_compare_any(left, right, op.word), holds) << op.word;
        marks += holds ? '1' : '0';
    }
    return marks;
}

//                            == != > < >= <=
const char* const kHeldIfEqual = "100011";
const char* const kHeldIfLess = "010101";
const char* const kHeldIfGreater = "011010";
const char* const kHeldIfSame = "100000";
const char* const kHeldIfDifferent = "010000";
const char* const kNoneHeld = "000000";

TEST(Comparison, OfWholeNumbers) {
    EXPECT_EQ(held(2LL, 2LL), kHeldIfEqual);
    EXPECT_EQ(held(-2LL, 1LL), kHeldIfLess);
    EXPECT_EQ(held(3LL, 1LL), kHeldIfGreater);
    EXPECT_EQ(held(9223372036854775807LL, 9223372036854775806LL), kHeldIfGreater);
}

TEST(Comparison, OfDecimals) {
    EXPECT_EQ(held(2.5L, 2.5L), kHeldIfEqual);
    EXPECT_EQ(held(2.4L, 2.5L), kHeldIfLess);
    EXPECT_EQ(held(-0.0L, 0.0L), kHeldIfEqual);
}

TEST(Comparison, OfMixedNumbers) {
    EXPECT_EQ(held(2LL, 2.0L), kHeldIfEqual);
    EXPECT_EQ(held(2.5L, 2LL), kHeldIfGreater);
    EXPECT_EQ(held(2, 2LL), kHeldIfEqual);
    EXPECT_EQ(held(1LL, 2), kHeldIfLess);
    EXPECT_EQ(held(3, 2), kHeldIfGreater);
    EXPECT_EQ(held(2, 2.5L), kHeldIfLess);
}

TEST(Comparison, OfWhatIsNoNumberIsOnlyUnequal) {
    const long double nan = std::numeric_limits<long double>::quiet_NaN();
    EXPECT_EQ(held(nan, nan), kHeldIfDifferent);
    EXPECT_EQ(held(nan, 1LL), kHeldIfDifferent);
}

TEST(Comparison, OfTextsHasNoOrder) {
    EXPECT_EQ(held(std::string("அ"), std::string("அ")), kHeldIfSame);
    EXPECT_EQ(held(std::string("அ"), std::string("ஆ")), kHeldIfDifferent);
    EXPECT_FALSE(fn_compare_any(std::string("அ"), std::string("ஆ"), "<"));
}

TEST(Comparison, OfTextsWithCharacters) {
    EXPECT_EQ(held(std::string("அ"), _PozhilChar{"அ"}), kHeldIfSame);
    EXPECT_EQ(held(_PozhilChar{"அ"}, std::string("அஅ")), kHeldIfDifferent);
    EXPECT_EQ(held(_PozhilChar{"a"}, 'a'), kHeldIfSame);
    EXPECT_EQ(held('a', 'b'), kHeldIfDifferent);
    EXPECT_EQ(held(std::string("a"), 'a'), kHeldIfSame);
}

TEST(Comparison, OfTruthHasNoOrder) {
    EXPECT_EQ(held(true, true), kHeldIfSame);
    EXPECT_EQ(held(false, true), kHeldIfDifferent);
    EXPECT_EQ(held(true, false), kHeldIfDifferent);
}

TEST(Comparison, OfDifferentKindsIsFalseAlsoForUnequal) {
    EXPECT_EQ(held(std::string("1"), 1LL), kNoneHeld);
    EXPECT_EQ(held(1LL, std::string("1")), kNoneHeld);
    EXPECT_EQ(held(true, 1LL), kNoneHeld);
    EXPECT_EQ(held(1LL, true), kNoneHeld);
    EXPECT_EQ(held(true, std::string("மெய்")), kNoneHeld);
    EXPECT_EQ(held(2.5L, 'a'), kNoneHeld);
}

TEST(Comparison, OfListsDictionariesObjectsAndNothingIsFalse) {
    const std::vector<std::any> list = {1LL};
    const std::map<std::string, std::any> map;
    const auto object = std::make_shared<_StructBase>();
    EXPECT_EQ(held(list, list), kNoneHeld);
    EXPECT_EQ(held(map, map), kNoneHeld);
    EXPECT_EQ(held(object, object), kNoneHeld);
    EXPECT_EQ(held(std::any(), std::any()), kNoneHeld);
    EXPECT_EQ(held(list, 1LL), kNoneHeld);
}

TEST(Comparison, OfAnUnknownOperatorIsFalse) {
    for (const char* op : {"", "=", "===", "<>", "!", "கூட்டு", "சமம", "சமம் "}) {
        EXPECT_FALSE(fn_compare_any(1LL, 1LL, op)) << op;
        EXPECT_FALSE(fn_compare_any(1LL, 1LL, std::string(op))) << op;
        EXPECT_FALSE(fn_compare_any(1LL, 2LL, op)) << op;
        EXPECT_FALSE(fn_compare_any(std::string("a"), std::string("a"), op)) << op;
    }
}

TEST(GetDouble, OfNumbers) {
    EXPECT_EQ(fn_get_double(7LL), 7.0L);
    EXPECT_EQ(fn_get_double(-7), -7.0L);
    EXPECT_EQ(fn_get_double(2.25L), 2.25L);
}

TEST(GetDouble, OfAnythingElseIsZero) {
    EXPECT_EQ(fn_get_double(std::string("7")), 0.0L);
    EXPECT_EQ(fn_get_double(true), 0.0L);
    EXPECT_EQ(fn_get_double('7'), 0.0L);
    EXPECT_EQ(fn_get_double(std::any()), 0.0L);
    EXPECT_EQ(fn_get_double(7.0), 0.0L);
}

}  // namespace
