// Expressions nested deeper than anybody writes: they parse, or end in a report, and soon.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>

#include "support/deep_stack.h"
#include "support/front_end.h"
#include "support/repeated.h"

namespace {

/// A source is `head`, then `opening` many times, `core`, `closing` as many times, and `tail`.
struct DeepForm {
    const char* name;
    const char* opening;
    const char* core;
    const char* closing;
    const char* head = "x = ";
    const char* tail = "\n";

    std::string source(int depth) const {
        std::string text = head;
        for (int i = 0; i < depth; i++) text += opening;
        text += core;
        for (int i = 0; i < depth; i++) text += closing;
        return text + tail;
    }
};

std::ostream& operator<<(std::ostream& out, const DeepForm& form) { return out << form.name; }

const DeepForm kForms[] = {
    {"parentheses", "(", "1", ")"},
    {"lists", "[", "1", "]"},
    {"maps", "{a: ", "1", "}"},
    {"map_lines", "{\na: ", "1", "}"},
    {"ternary_middles", "1 ? ", "1", " : 1"},
    {"ternary_ends", "1 ? 1 : ", "1", ""},
    {"ternary_words", "1 எனில் 1 இல்லைஎனில் ", "1", ""},
    {"negations", "கழி ", "1", ""},
    {"denials", "இல்லை ", "1", ""},
    {"bit_inversions", "எதிர்இருமை ", "1", ""},
    {"pluses", "மிகை ", "1", ""},
    {"minuses", "குறை ", "1", ""},
    {"nested_calls", "f(", "", ")"},
    {"call_chain", "", "f", "()"},
    {"nested_elements", "a[", "0", "]"},
    {"element_chain", "", "a", "[0]"},
    {"member_chain", "", "a", ".b"},
    {"arrow_lambdas", "a => ", "1", ""},
    {"arrow_lambdas_in_parentheses", "(a, b) => ", "1", ""},
    {"pair_lambdas", "a = பெரிது ", "1", ""},
    {"keyword_lambdas", "வினை (a): ", "1", "", "அச்சிடு(", ")\n"},
    {"assignments", "a = ", "1", ""},
    {"compound_assignments", "a கூட்டிசேர் ", "1", ""},
    {"member_assignments", "a.b = ", "1", ""},
    {"element_assignments", "a[0] = ", "1", ""},
    {"display_state", "காட்சி_நிலை.a : ", "1", "", ""},
};

/// "parsed", or the code of the refusal.
std::string outcome(const std::string& source) {
    try {
        parse(source);
        return "parsed";
    } catch (const Refusal& refusal) {
        return refusal.code;
    }
}

std::string outcomeOnStack(std::size_t bytes, const std::string& source) {
    std::string result;
    runOnStack(bytes, [&] { result = outcome(source); });
    return result;
}

const DeepForm& formNamed(const std::string& name) {
    return *std::find_if(std::begin(kForms), std::end(kForms),
                         [&](const DeepForm& form) { return form.name == name; });
}

class Depth : public testing::TestWithParam<DeepForm> {};

TEST_P(Depth, OfAThousandParses) {
    EXPECT_EQ(outcomeOnStack(kDeepStack, GetParam().source(1000)), "parsed");
}

TEST_P(Depth, OfAHundredThousandEndsSoon) {
    const auto start = std::chrono::steady_clock::now();
    const std::string result = outcomeOnStack(kDeepStack, GetParam().source(rounds(100000)));
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    EXPECT_TRUE(result == "parsed" || result == "பொழில்-291") << result;
    EXPECT_LT(seconds.count(), 10);
}

TEST_P(Depth, OnATinyStackDoesNotCrash) {
    const std::string result = outcomeOnStack(kMebibyte, GetParam().source(2000));
    EXPECT_TRUE(result == "parsed" || result == "பொழில்-291") << result;
}

INSTANTIATE_TEST_SUITE_P(Forms, Depth, testing::ValuesIn(kForms),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(DepthLimit, IsRefusedAtTheLineItIsMetOn) {
    std::string source = "a = 1\nx = ";
    for (int i = 0; i < 100000; i++) source += "(";
    runOnStack(kDeepStack, [&] { EXPECT_TRUE(refused(source, "பொழில்-291", 2)); });
}

TEST(DepthLimit, OfATinyStackComesBeforeTheStacksEnd) {
    const std::string source = formNamed("parentheses").source(1000);
    EXPECT_EQ(outcomeOnStack(kDeepStack, source), "parsed");
    EXPECT_EQ(outcomeOnStack(kMebibyte, source), "பொழில்-291");
}

TEST(DepthLimit, IsFarFromWhatIsLeftOpen) {
    const std::pair<const char*, const char*> codes[] = {
        {"parentheses", "பொழில்-204"},
        {"nested_calls", "பொழில்-201"},
        {"lists", "பொழில்-205"},
        {"nested_elements", "பொழில்-205"},
        {"maps", "பொழில்-206"},
        {"ternary_middles", "பொழில்-202"},
        {"keyword_lambdas", "பொழில்-204"},
    };
    for (const auto& [name, code] : codes) {
        DeepForm form = formNamed(name);
        form.closing = "";
        form.tail = "\n";
        EXPECT_EQ(outcomeOnStack(kDeepStack, form.source(1000)), code) << name;
        EXPECT_EQ(outcomeOnStack(kDeepStack, form.source(100000)), "பொழில்-291") << name;
    }
}

TEST(DepthLimit, CountsEachExpressionAnew) {
    std::string source;
    for (int i = 0; i < 20; i++) source += formNamed("parentheses").source(1000);
    EXPECT_EQ(outcomeOnStack(kDeepStack, source), "parsed");
}

TEST(LongExpression, OfThreeThousandTermsParses) {
    for (const std::string word : {"கூட்டு", "இணை", "மற்றும்", "அல்லது", "பெருக்கு", "சமம்"}) {
        EXPECT_EQ(outcomeOnStack(kDeepStack, "x = 1" + repeated(" " + word + " 1", 3000) + "\n"),
                  "parsed")
            << word;
    }
}

TEST(LongExpression, OfAHundredThousandTermsEndsSoon) {
    const std::string result =
        outcomeOnStack(kDeepStack, "x = 1" + repeated(" கூட்டு 1", 100000) + "\n");
    EXPECT_TRUE(result == "parsed" || result == "பொழில்-291") << result;
}

TEST(LongExpression, OfAHundredThousandElementsParses) {
    EXPECT_EQ(outcome("x = [" + repeated("1, ", 100000) + "]\n"), "parsed");
    EXPECT_EQ(outcome("x = [" + repeated("(a), ", 100000) + "]\n"), "parsed");
    EXPECT_EQ(outcome("x = {" + repeated("a: 1,\n", 100000) + "}\n"), "parsed");
    EXPECT_EQ(outcome("f(" + repeated("a, ", 100000) + "a)\n"), "parsed");
    EXPECT_EQ(outcome("x = (" + repeated("a, ", 100000) + "a) => a\n"), "parsed");
    EXPECT_EQ(outcome("அச்சிடு(வினை (" + repeated("a, ", 100000) + "a): a)\n"), "parsed");
}

}  // namespace
