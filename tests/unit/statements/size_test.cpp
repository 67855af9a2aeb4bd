// Large and deep sources: they parse, or are refused, but never end the process.
#include <gtest/gtest.h>
#include <time.h>

#include <algorithm>

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

/// Seconds that this thread needs to parse `source`, the best of three.
double secondsToParse(const std::string& source) {
    const std::vector<Token> tokens = scan(source);
    double best = 1e9;
    for (int round = 0; round < 3; round++) {
        timespec before{};
        timespec after{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &before);
        Parser(tokens, source, "test.பொழில்").parse();
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &after);
        best = std::min(best, static_cast<double>(after.tv_sec - before.tv_sec) +
                                  static_cast<double>(after.tv_nsec - before.tv_nsec) * 1e-9);
    }
    return best;
}

/// How many times longer eight times as much takes: 8 if linear, 64 if quadratic.
double growth(const std::string& statement) {
    return secondsToParse(repeated(statement, 24000)) / secondsToParse(repeated(statement, 3000));
}

TEST(Size, HundredThousandStatementsAtTopLevel) {
    EXPECT_EQ(parse(repeated("அ()\n", 100000)).program.statements.size(), 100000U);
}

TEST(Size, TwoHundredThousandStatementsInABlock) {
    const Parsed parsed = parse("எனில் அ:\n" + repeated("    ஆ()\n", 200000));
    const auto& condition = dynamic_cast<const IfStatement&>(*parsed.program.statements.at(0));
    EXPECT_EQ(condition.thenBranch->statements.size(), 200000U);
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
    const std::string source = "எனில் அ:\n    விடு\n" + repeated("இல்லைஎனில் அ:\n    விடு\n", 100000);
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

TEST(Size, OneLineTakesTimeInItsLength) {
    for (const char* const statement : {"அ()", "அ = 1 ", "அச்சிடு(1)", "அ[0] = [1]"}) {
        EXPECT_LT(growth(statement), 24) << statement;
    }
}

}  // namespace
