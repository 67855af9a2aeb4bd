// Properties of objects, and taking elements out of lists.
#include <gtest/gtest.h>

#include "emitted/endings.h"
#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

using List = std::vector<std::any>;
using Object = std::shared_ptr<_StructBase>;

/// Whether a file's name is given as a literal, as generated programs give it: then overloads
/// answer, which copy less. Both must do the same.
class Properties : public testing::TestWithParam<bool> {
protected:
    static std::any get(const Object& object, const char* name) {
        if (GetParam()) return fn_get_property(object, name, "அ.பொழில்", 3);
        return fn_get_property(object, name, std::string("அ.பொழில்"), 3);
    }
    static std::any set(const std::any& object, const char* name, const std::any& value) {
        if (GetParam()) return fn_set_property(object, name, value, "அ.பொழில்", 3);
        return fn_set_property(object, name, value, std::string("அ.பொழில்"), 3);
    }
};
INSTANTIATE_TEST_SUITE_P(FileAsLiteral, Properties, testing::Bool());

TEST_P(Properties, AreReadAsCopies) {
    const Object object = std::make_shared<_StructBase>();
    object->properties["பெயர்"] = List{1LL};
    std::any read = get(object, "பெயர்");
    fn_index_ref(read, 0LL) = 2LL;
    EXPECT_EQ(fn_any_to_string(object->properties["பெயர்"]), "[1]");
}

TEST_P(Properties, MissingOnesAreFatalAndNotCreated) {
    const Object object = std::make_shared<_StructBase>();
    EXPECT_EQ(codeOfEnding([&] { get(object, "பெயர்"); }), "பொழில்-324");
    EXPECT_TRUE(endsAt([&] { get(object, "பெயர்"); }, "அ.பொழில்", 3));
    EXPECT_TRUE(object->properties.empty());
}

TEST_P(Properties, AreSetInTheSharedObject) {
    const Object object = std::make_shared<_StructBase>();
    const std::any result = set(object, "வயது", 30LL);
    EXPECT_EQ(std::any_cast<long long>(result), 30);
    EXPECT_EQ(std::any_cast<long long>(object->properties.at("வயது")), 30);
    set(object, "வயது", 31LL);
    EXPECT_EQ(std::any_cast<long long>(object->properties.at("வயது")), 31);
}

TEST_P(Properties, OfWhatIsNoObjectAreFatal) {
    for (const std::any& value : {std::any(5LL), std::any(), std::any(std::string("a"))}) {
        EXPECT_EQ(codeOfEnding([&] { set(value, "அ", 1LL); }), "பொழில்-324");
    }
    EXPECT_TRUE(endsAt([] { set(5LL, "அ", 1LL); }, "அ.பொழில்", 3));
}

std::string removeFailure(std::any list, const std::any& item) {
    return codeOfEnding([&] { fn_நீக்கு(list, item, "அ.பொழில்", 6); });
}

TEST(Removal, TakesTheFirstEqualElement) {
    std::any list = List{1LL, 2LL, 1LL};
    EXPECT_FALSE(fn_நீக்கு(list, 1LL, "அ.பொழில்", 6).has_value());
    EXPECT_EQ(fn_any_to_string(list), "[2, 1]");
    fn_நீக்கு(list, 1LL, "அ.பொழில்", 6);
    EXPECT_EQ(fn_any_to_string(list), "[2]");
}

TEST(Removal, ComparesAsTheEqualOperatorDoes) {
    std::any list = List{std::string("1"), true, 1.0L, _PozhilChar{"அ"}};
    fn_நீக்கு(list, 1LL, "அ.பொழில்", 6);
    EXPECT_EQ(fn_any_to_string(list), "[1, மெய், அ]");
    fn_நீக்கு(list, std::string("அ"), "அ.பொழில்", 6);
    EXPECT_EQ(fn_any_to_string(list), "[1, மெய்]");
    fn_நீக்கு(list, true, "அ.பொழில்", 6);
    EXPECT_EQ(fn_any_to_string(list), "[1]");
}

TEST(Removal, OfAnAbsentItemIsFatal) {
    EXPECT_EQ(removeFailure(List{1LL}, 2LL), "பொழில்-314");
    EXPECT_EQ(removeFailure(List{}, 2LL), "பொழில்-314");
    EXPECT_TRUE(endsAt([] { fn_நீக்கு(std::any(List{}), 2LL, "அ.பொழில்", 6); }, "அ.பொழில்", 6));
}

TEST(Removal, CantFindListsOrObjects) {
    const Object object = std::make_shared<_StructBase>();
    EXPECT_EQ(removeFailure(List{List{1LL}}, List{1LL}), "பொழில்-314");
    EXPECT_EQ(removeFailure(List{object}, object), "பொழில்-314");
}

TEST(Removal, FromWhatIsNoListIsFatal) {
    EXPECT_EQ(removeFailure(5LL, 5LL), "பொழில்-304");
    EXPECT_EQ(removeFailure(std::map<std::string, std::any>{{"a", 1LL}}, 1LL), "பொழில்-304");
    EXPECT_EQ(removeFailure(std::any(), 1LL), "பொழில்-304");
}

TEST(Removal, InsideATryStillEndsTheProgram) {
    EXPECT_EQ(codeOfEnding([] {
                  try {
                      std::any list = List{};
                      fn_நீக்கு(list, 1LL, "அ.பொழில்", 6);
                  } catch (...) {
                  }
              }),
              "பொழில்-314");
}

TEST(Removal, FromATemporaryIsLost) {
    EXPECT_FALSE(fn_நீக்கு(std::any(List{1LL}), 1LL, "அ.பொழில்", 6).has_value());
    EXPECT_EQ(codeOfEnding([] { fn_நீக்கு(std::any(5LL), 1LL, "அ.பொழில்", 6); }), "பொழில்-304");
}

}  // namespace
