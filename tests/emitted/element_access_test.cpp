// Reading and writing elements of texts, lists and dictionaries.
#include <gtest/gtest.h>

#include "emitted/endings.h"
#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

using List = std::vector<std::any>;
using Map = std::map<std::string, std::any>;

/// Whether a file's name is given as a literal, as generated programs give it: then overloads
/// answer, which copy no container. Both must do the same.
bool isLiteral = false;

class ElementAccess : public testing::TestWithParam<bool> {
protected:
    void SetUp() override { isLiteral = GetParam(); }
};
using Element = ElementAccess;
using ElementReference = ElementAccess;
INSTANTIATE_TEST_SUITE_P(FileAsLiteral, Element, testing::Bool());
INSTANTIATE_TEST_SUITE_P(FileAsLiteral, ElementReference, testing::Bool());

std::any elementOf(const std::any& object, const std::any& key) {
    if (isLiteral) return fn_எடு(object, key, "அ.பொழில்", 4);
    return fn_எடு(object, key, std::string("அ.பொழில்"), 4);
}

std::any& referenceTo(std::any& object, const std::any& key) {
    if (isLiteral) return fn_index_ref(object, key, "அ.பொழில்", 4);
    return fn_index_ref(object, key, std::string("அ.பொழில்"), 4);
}

std::string letterOf(const std::string& text, long long index) {
    return std::any_cast<_PozhilChar>(elementOf(text, index)).val;
}

std::string readFailure(const std::any& object, const std::any& key) {
    return codeOfEnding([&] { elementOf(object, key); });
}

std::string writeFailure(std::any object, const std::any& key) {
    return codeOfEnding([&] { referenceTo(object, key) = 1LL; });
}

TEST_P(Element, OfATextIsOneByte) {
    EXPECT_EQ(letterOf("abc", 0), "a");
    EXPECT_EQ(letterOf("abc", 2), "c");
    EXPECT_EQ(letterOf("அ", 0), "\xE0");
    EXPECT_EQ(letterOf("அ", 2), "\x85");
}

TEST_P(Element, OfATextPastItsEndsIsTheEmptyText) {
    EXPECT_EQ(std::any_cast<std::string>(elementOf(std::string("abc"), 3LL)), "");
    EXPECT_EQ(std::any_cast<std::string>(elementOf(std::string("abc"), -1LL)), "");
    EXPECT_EQ(std::any_cast<std::string>(elementOf(std::string(), 0LL)), "");
}

TEST_P(Element, OfAListIsACopy) {
    const std::any list = List{1LL, std::string("அ"), List{2LL}};
    EXPECT_EQ(std::any_cast<long long>(elementOf(list, 0LL)), 1);
    EXPECT_EQ(std::any_cast<std::string>(elementOf(list, 1LL)), "அ");
    EXPECT_EQ(fn_any_to_string(elementOf(list, 2LL)), "[2]");
    EXPECT_EQ(fn_any_to_string(list), "[1, அ, [2]]");
}

TEST_P(Element, OfAListOutOfRangeIsFatal) {
    EXPECT_EQ(readFailure(List{1LL}, 1LL), "பொழில்-311");
    EXPECT_EQ(readFailure(List{1LL}, -1LL), "பொழில்-311");
    EXPECT_EQ(readFailure(List{}, 0LL), "பொழில்-311");
}

TEST_P(Element, OfADictionaryIsACopy) {
    const std::any map = Map{{"அ", 1LL}, {"", 2LL}};
    EXPECT_EQ(std::any_cast<long long>(elementOf(map, std::string("அ"))), 1);
    EXPECT_EQ(std::any_cast<long long>(elementOf(map, std::string())), 2);
    EXPECT_EQ(fn_any_to_string(map), "{\"\": 2, \"அ\": 1}");
}

TEST_P(Element, OfADictionaryWithoutTheKeyIsFatal) {
    EXPECT_EQ(readFailure(Map{{"அ", 1LL}}, std::string("ஆ")), "பொழில்-312");
}

TEST_P(Element, ByAKeyOfTheWrongKindIsFatal) {
    EXPECT_EQ(readFailure(List{1LL}, 0), "பொழில்-313");
    EXPECT_EQ(readFailure(List{1LL}, 0.0L), "பொழில்-313");
    EXPECT_EQ(readFailure(List{1LL}, std::string("0")), "பொழில்-313");
    EXPECT_EQ(readFailure(std::string("a"), 0), "பொழில்-313");
    EXPECT_EQ(readFailure(std::string("a"), std::string("a")), "பொழில்-313");
    EXPECT_EQ(readFailure(Map{{"0", 1LL}}, 0LL), "பொழில்-313");
    EXPECT_EQ(readFailure(Map{{"a", 1LL}}, _PozhilChar{"a"}), "பொழில்-313");
}

TEST_P(Element, OfWhatHasNoneIsFatal) {
    EXPECT_EQ(readFailure(5LL, 0LL), "பொழில்-313");
    EXPECT_EQ(readFailure(_PozhilChar{"a"}, 0LL), "பொழில்-313");
    EXPECT_EQ(readFailure(std::any(), std::string("a")), "பொழில்-313");
}

TEST_P(Element, FailureNamesFileAndLine) {
    EXPECT_TRUE(endsAt([] { elementOf(List{}, 0LL); }, "அ.பொழில்", 4));
    EXPECT_TRUE(endsAt([] { elementOf(Map{}, std::string()); }, "அ.பொழில்", 4));
    EXPECT_TRUE(endsAt([] { elementOf(true, 0LL); }, "அ.பொழில்", 4));
}

TEST_P(ElementReference, WritesIntoAList) {
    std::any list = List{1LL, 2LL};
    referenceTo(list, 0LL) = std::string("அ");
    referenceTo(list, 1) = 7LL;
    EXPECT_EQ(fn_any_to_string(list), "[அ, 7]");
}

TEST_P(ElementReference, TruncatesADecimalPlace) {
    std::any list = List{1LL, 2LL};
    referenceTo(list, 1.9L) = 7LL;
    EXPECT_EQ(fn_any_to_string(list), "[1, 7]");
}

TEST_P(ElementReference, WritesThroughLevels) {
    std::any table = List{List{1LL, 2LL}, Map{{"அ", List{3LL}}}};
    referenceTo(referenceTo(table, 0LL), 1LL) = 8LL;
    referenceTo(referenceTo(referenceTo(table, 1LL), std::string("அ")), 0LL) = 9LL;
    EXPECT_EQ(fn_any_to_string(table), "[[1, 8], {\"அ\": [9]}]");
    fn_index_ref(fn_index_ref(table, 0LL), 1LL) = 7LL;
    EXPECT_EQ(fn_any_to_string(elementOf(table, 0LL)), "[1, 7]");
}

TEST_P(ElementReference, CreatesAMissingKey) {
    std::any map = Map{};
    referenceTo(map, std::string("அ")) = 1LL;
    EXPECT_FALSE(referenceTo(map, std::string("ஆ")).has_value());
    EXPECT_EQ(fn_any_to_string(map), "{\"அ\": 1, \"ஆ\": [தெரியாத வகை]}");
}

TEST_P(ElementReference, StoresUnderTheTextOfAnyKey) {
    std::any map = Map{};
    referenceTo(map, 0LL) = 1LL;
    referenceTo(map, 1.5L) = 2LL;
    referenceTo(map, _PozhilChar{"அ"}) = 3LL;
    EXPECT_EQ(fn_any_to_string(map), "{\"0\": 1, \"1.500000\": 2, \"அ\": 3}");
    EXPECT_EQ(readFailure(map, 0LL), "பொழில்-313");
    EXPECT_EQ(std::any_cast<long long>(elementOf(map, std::string("0"))), 1);
}

TEST_P(ElementReference, OutOfRangeIsFatal) {
    EXPECT_EQ(writeFailure(List{1LL}, 1LL), "பொழில்-311");
    EXPECT_EQ(writeFailure(List{1LL}, -1LL), "பொழில்-311");
}

TEST_P(ElementReference, IntoWhatHasNoElementsIsFatal) {
    EXPECT_EQ(writeFailure(std::string("abc"), 0LL), "பொழில்-313");
    EXPECT_EQ(writeFailure(5LL, 0LL), "பொழில்-313");
    EXPECT_EQ(writeFailure(std::any(), 0LL), "பொழில்-313");
}

TEST_P(ElementReference, ByAPlaceThatIsNoNumberThrows) {
    std::any list = List{1LL};
    EXPECT_THROW(referenceTo(list, std::string("0")), std::runtime_error);
}

TEST_P(ElementReference, FailureNamesFileAndLineIfGiven) {
    std::any list = List{};
    EXPECT_TRUE(endsAt([&] { referenceTo(list, 0LL); }, "அ.பொழில்", 4));
    EXPECT_TRUE(endsAt([&] { fn_index_ref(list, 0LL, "அ.பொழில்"); }, "அ.பொழில்", 0));
    EXPECT_TRUE(endsAt([&] { fn_index_ref(list, 0LL); }, "", 0));
}

TEST_P(ElementReference, OfATemporaryIsACopy) {
    EXPECT_EQ(std::any_cast<long long>(fn_index_ref(std::any(List{1LL, 2LL}), 1LL)), 2);
    EXPECT_FALSE(fn_index_ref(std::any(Map{}), std::string("அ")).has_value());
    EXPECT_EQ(codeOfEnding([] { fn_index_ref(std::any(List{}), 0LL); }), "பொழில்-311");
    EXPECT_EQ(codeOfEnding([] { fn_index_ref(std::any(5LL), 0LL, "அ", 1); }), "பொழில்-313");
}

}  // namespace
