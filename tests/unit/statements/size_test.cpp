// Large and deep sources: they parse, or are refused, but never end the process.
#include <gtest/gtest.h>

#include "support/deep_stack.h"
#include "support/repeated.h"
#include "unit/statements/parsing.h"

namespace {

std::string nested(const std::string& header, int depth) {
    std::string source;
    for (int level = 0; level < depth; level++) {
        source += std::string(static_cast<std::size_t>(level), ' ') + header + "\n";
    }
    return source + std::string(static_cast<std::size_t>(depth), ' ') + "விடு\n";
}

/// Accepted, or refused as too much; "" for either, otherwise what came instead.
std::string parsesOrIsTooDeep(const std::string& source) {
    try {
        parse(source);
    } catch (const Refusal& refusal) {
        if (refusal.code != "பொழில்-291") return refusal.code;
    }
    return "";
}

TEST(Size, HundredThousandStatementsAtTopLevel) {
    const int count = rounds(100000);
    const Parsed parsed = parse(repeated("அ()\n", count));
    EXPECT_EQ(parsed.program.statements.size(), static_cast<std::size_t>(count));
}

TEST(Size, TwoHundredThousandStatementsInABlock) {
    const int count = rounds(200000);
    const Parsed parsed = parse("எனில் அ:\n" + repeated("    ஆ()\n", count));
    const auto& condition = dynamic_cast<const IfStatement&>(*parsed.program.statements.at(0));
    EXPECT_EQ(condition.thenBranch->statements.size(), static_cast<std::size_t>(count));
}

TEST(Size, ThousandNestedBlocks) {
    runOnStack(kDeepStack, [] {
        for (const char* const header : {"எனில் அ:", "சுற்று அ:", "ஒவ்வொன்றாக அ இல் ஆ:", "செயல் அ():"}) {
            EXPECT_TRUE(accepted(nested(header, 1000))) << header;
        }
    });
}

TEST(Size, ThousandElseIfs) {
    runOnStack(kDeepStack, [] {
        const std::string rows = repeated("இல்லைஎனில் அ:\n    விடு\n", 1000);
        EXPECT_TRUE(accepted("எனில் அ:\n    விடு\n" + rows + "இல்லை:\n    விடு\n"));
    });
}

TEST(Size, HundredThousandElseIfsDoNotCrash) {
    const std::string source =
        "எனில் அ:\n    விடு\n" + repeated("இல்லைஎனில் அ:\n    விடு\n", rounds(100000));
    EXPECT_EQ(parsesOrIsTooDeep(source), "");
    runOnStack(kDeepStack, [&] { EXPECT_EQ(parsesOrIsTooDeep(source), ""); });
}

TEST(Size, FiveThousandNestedBlocksDoNotCrash) {
    const std::string source = nested("எனில் அ:", 5000);
    EXPECT_EQ(parsesOrIsTooDeep(source), "");
    runOnStack(kDeepStack, [&] { EXPECT_EQ(parsesOrIsTooDeep(source), ""); });
}

TEST(Size, NestedSwitchesDoNotCrash) {
    std::string source;
    for (std::size_t level = 0; level < 3000; level++) {
        source += std::string(2 * level, ' ') + "தேர்வு அ:\n";
        source += std::string(2 * level + 1, ' ') + "நிலை 1:\n";
    }
    source += std::string(6000, ' ') + "விடு\n";
    EXPECT_EQ(parsesOrIsTooDeep(source), "");
}

}  // namespace
