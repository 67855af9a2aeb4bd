// How the time of parsing grows with a line: told of what is optimised as for users, not under
// sanitizers.
#include <gtest/gtest.h>
#include <time.h>

#include <algorithm>

#include "support/repeated.h"
#include "unit/statements/parsing.h"

namespace {

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

TEST(Growth, OneLineTakesTimeInItsLength) {
    for (const char* const statement : {"அ()", "அ = 1 ", "அச்சிடு(1)", "அ[0] = [1]"}) {
        EXPECT_LT(growth(statement), 24) << statement;
    }
}

}  // namespace
