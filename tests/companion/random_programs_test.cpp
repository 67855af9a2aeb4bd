#include "random_programs.h"

#include <gtest/gtest.h>

#include "companion/check/compiled_source.h"

namespace {

constexpr std::uint32_t kSeeds = 200;

TEST(RandomPrograms, AreTheSameForTheSameSeed) {
    EXPECT_EQ(makeRandomProgram(7), makeRandomProgram(7));
    EXPECT_NE(makeRandomProgram(7), makeRandomProgram(8));
}

/// What the generator refuses of them is kinds that it knows not to fit.
TEST(RandomPrograms, AreWellFormed) {
    int taken = 0;
    for (std::uint32_t seed = 0; seed < kSeeds; seed++) {
        const companion::SourceText source("நிரல்.பொழில்", makeRandomProgram(seed));
        const companion::CompiledSource compiled(source, [](const auto&, auto&) { return false; });
        EXPECT_TRUE(compiled.isParsed()) << source.text;
        taken += compiled.refused ? 0 : 1;
    }
    EXPECT_GT(taken, static_cast<int>(kSeeds) / 2);
}

}  // namespace
