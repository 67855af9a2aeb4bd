// Sum, quotient and index of dynamic values.
#include <gtest/gtest.h>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

using List = std::vector<std::any>;

/// The value if it is held as exactly that type.
template <class Type>
Type held(const std::any& value) {
    EXPECT_EQ(value.type(), typeid(Type));
    const Type* found = std::any_cast<Type>(&value);
    return found != nullptr ? *found : Type();
}

template <class Call>
std::string messageOf(Call call) {
    try {
        call();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing thrown";
}

const char* const kByZero = "சுழியத்தால் (0) வகுக்க முடியாது!";
const char* const kMismatch = "பொருந்தாத தரவு வகை (Type Mismatch)!";

TEST(Add, OfNumbersOfOneKindKeepsIt) {
    EXPECT_EQ(held<long long>(fn_add_any(2LL, 3LL)), 5);
    EXPECT_EQ(held<long double>(fn_add_any(2.5L, 0.25L)), 2.75L);
}

TEST(Add, OfMixedNumbersIsADecimal) {
    EXPECT_EQ(held<long double>(fn_add_any(2LL, 0.5L)), 2.5L);
    EXPECT_EQ(held<long double>(fn_add_any(0.5L, 2)), 2.5L);
    EXPECT_EQ(held<long double>(fn_add_any(1, 1)), 2.0L);
    EXPECT_EQ(fn_any_to_string(fn_add_any(1LL, 1)), "2.000000");
}

TEST(Add, OfAnythingElseJoinsTexts) {
    EXPECT_EQ(held<std::string>(fn_add_any(std::string("அ"), std::string("ஆ"))), "அஆ");
    EXPECT_EQ(held<std::string>(fn_add_any(std::string("அ"), 1LL)), "அ1");
    EXPECT_EQ(held<std::string>(fn_add_any(1.5L, std::string("அ"))), "1.500000அ");
    EXPECT_EQ(held<std::string>(fn_add_any(1LL, List{2LL, 3LL})), "1[2, 3]");
    EXPECT_EQ(held<std::string>(fn_add_any(true, 1LL)), "மெய்1");
    EXPECT_EQ(held<std::string>(fn_add_any(_PozhilChar{"அ"}, 'b')), "அb");
    EXPECT_EQ(held<std::string>(fn_add_any(std::any(), std::any())), "[தெரியாத வகை][தெரியாத வகை]");
}

TEST(Divide, OfWholeNumbersTruncates) {
    EXPECT_EQ(held<long long>(fn_div_any(7LL, 2LL)), 3);
    EXPECT_EQ(held<long long>(fn_div_any(-7LL, 2LL)), -3);
}

TEST(Divide, OfDecimalsOrMixedIsADecimal) {
    EXPECT_EQ(held<long double>(fn_div_any(7.0L, 2.0L)), 3.5L);
    EXPECT_EQ(held<long double>(fn_div_any(7LL, 2)), 3.5L);
    EXPECT_EQ(held<long double>(fn_div_any(7, 2LL)), 3.5L);
    EXPECT_EQ(held<long double>(fn_div_any(7, 2)), 3.5L);
    EXPECT_EQ(held<long double>(fn_div_any(7.0L, 2LL)), 3.5L);
}

TEST(Divide, ByZeroOfAnyCarrierThrows) {
    EXPECT_EQ(messageOf([] { fn_div_any(1LL, 0LL); }), kByZero);
    EXPECT_EQ(messageOf([] { fn_div_any(1LL, 0.0L); }), kByZero);
    EXPECT_EQ(messageOf([] { fn_div_any(1.0L, 0); }), kByZero);
}

TEST(Divide, LooksForZeroBeforeItLooksAtTheLeftSide) {
    EXPECT_EQ(messageOf([] { fn_div_any(std::string("a"), 0LL); }), kByZero);
    EXPECT_EQ(messageOf([] { fn_div_any(std::any(), 0.0L); }), kByZero);
    EXPECT_EQ(messageOf([] { fn_div_any(List{}, 0); }), kByZero);
}

TEST(Divide, OfWhatIsNoNumberIsABadCast) {
    EXPECT_THROW(fn_div_any(std::string("6"), 2LL), std::bad_any_cast);
    EXPECT_THROW(fn_div_any(6LL, std::string("2")), std::bad_any_cast);
    EXPECT_THROW(fn_div_any(6LL, false), std::bad_any_cast);
    EXPECT_THROW(fn_div_any(std::any(), std::any()), std::bad_any_cast);
}

TEST(Index, OfNativeNumbersIsTheNumber) {
    EXPECT_EQ(fn_index(7LL), 7);
    EXPECT_EQ(fn_index(-7), -7);
}

TEST(Index, OfDynamicNumbersIsTruncated) {
    EXPECT_EQ(fn_index(std::any(7LL)), 7);
    EXPECT_EQ(fn_index(std::any(7)), 7);
    EXPECT_EQ(fn_index(std::any(7.9L)), 7);
    EXPECT_EQ(fn_index(std::any(-7.9L)), -7);
}

TEST(Index, OfAnythingElseThrows) {
    EXPECT_EQ(messageOf([] { fn_index(std::any(std::string("7"))); }), kMismatch);
    EXPECT_EQ(messageOf([] { fn_index(std::any(true)); }), kMismatch);
    EXPECT_EQ(messageOf([] { fn_index(std::any()); }), kMismatch);
}

TEST(Rounding, GoesUpAndDown) {
    EXPECT_EQ(fn_மேல்எண்(1.1L), 2);
    EXPECT_EQ(fn_மேல்எண்(-1.5L), -1);
    EXPECT_EQ(fn_மேல்எண்(2.0L), 2);
    EXPECT_EQ(fn_கீழ்எண்(1.9L), 1);
    EXPECT_EQ(fn_கீழ்எண்(-1.5L), -2);
    EXPECT_EQ(fn_கீழ்எண்(-2.0L), -2);
}

}  // namespace
