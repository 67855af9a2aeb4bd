// A dynamic value as a JavaScript literal: the rules in their order.
#include <gtest/gtest.h>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

using List = std::vector<std::any>;
using Map = std::map<std::string, std::any>;

TEST(AnyToJson, OfNumbersIsTheirPrintedText) {
    EXPECT_EQ(fn_any_to_json(42LL), "42");
    EXPECT_EQ(fn_any_to_json(-9223372036854775807LL - 1), "-9223372036854775808");
    EXPECT_EQ(fn_any_to_json(5), "5");
    EXPECT_EQ(fn_any_to_json(3.5L), "3.500000");
}

TEST(AnyToJson, OfTextsIsQuotedAndEscaped) {
    EXPECT_EQ(fn_any_to_json(std::string()), "''");
    EXPECT_EQ(fn_any_to_json(std::string("அ b")), "'அ b'");
    EXPECT_EQ(fn_any_to_json(std::string("'\"\\\n\r")), "'\\'\\\"\\\\\\n\\r'");
    EXPECT_EQ(fn_any_to_json(std::string("\t/</script>")), "'\t/</script>'");
}

TEST(AnyToJson, OfCharactersIsQuotedAndNotEscaped) {
    EXPECT_EQ(fn_any_to_json(_PozhilChar{"அ"}), "'அ'");
    EXPECT_EQ(fn_any_to_json(_PozhilChar{"'"}), "'''");
    EXPECT_EQ(fn_any_to_json(_PozhilChar{"\\"}), "'\\'");
    EXPECT_EQ(fn_any_to_json(_PozhilChar{""}), "''");
    EXPECT_EQ(fn_any_to_json('x'), "'x'");
    EXPECT_EQ(fn_any_to_json('\''), "'''");
}

TEST(AnyToJson, OfTruthIsEnglish) {
    EXPECT_EQ(fn_any_to_json(true), "true");
    EXPECT_EQ(fn_any_to_json(false), "false");
}

TEST(AnyToJson, OfLists) {
    EXPECT_EQ(fn_any_to_json(List{}), "[]");
    EXPECT_EQ(fn_any_to_json(List{1LL, std::string("அ"), List{true, std::any()}}),
              "[1, 'அ', [true, null]]");
}

TEST(AnyToJson, OfDictionariesInKeyOrder) {
    EXPECT_EQ(fn_any_to_json(Map{}), "{}");
    EXPECT_EQ(fn_any_to_json(Map{{"b", List{1LL, 2LL}}, {"a", std::string("x")}}),
              "{'a': 'x', 'b': [1, 2]}");
}

TEST(AnyToJson, EscapesOnlyThreeMarksInKeys) {
    EXPECT_EQ(fn_any_to_json(Map{{"'\"\\", 1LL}}), "{'\\'\\\"\\\\': 1}");
    EXPECT_EQ(fn_any_to_json(Map{{"\n\r", 1LL}}), "{'\n\r': 1}");
}

TEST(AnyToJson, OfAnythingElseIsNull) {
    std::tm time = {};
    EXPECT_EQ(fn_any_to_json(std::any()), "null");
    EXPECT_EQ(fn_any_to_json(&time), "null");
    EXPECT_EQ(fn_any_to_json(std::make_shared<_StructBase>()), "null");
    EXPECT_EQ(fn_any_to_json(std::function<std::any()>([] { return std::any(); })), "null");
    EXPECT_EQ(fn_any_to_json(2.5), "null");  // a double is no kind of the language
}

}  // namespace
