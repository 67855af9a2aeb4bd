// Texts that double from level to level are refused; what stays below the limits is not.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/deep_stack.h"
#include "support/generated_text.h"

namespace {

std::string indentation(int depth) { return std::string(static_cast<std::size_t>(depth) * 4, ' '); }

/// `depth` list walks inside each other around `statement`.
std::string walksInsideEachOther(int depth, const std::string& statement) {
    std::string source;
    for (int i = 0; i < depth; i++) source += indentation(i) + "ஒவ்வொன்றாக இ இல் அ:\n";
    return source + indentation(depth) + statement + "\n";
}

TEST(Limits, ADozenWalksInsideEachOtherAreWritten) {
    const std::string text = generate(walksInsideEachOther(12, "அச்சிடு(\"உள்ளே\")"));
    EXPECT_EQ(countOf("உள்ளே", text), 1 << 12);
    EXPECT_THROW(generate(walksInsideEachOther(13, "அச்சிடு(1)")), std::runtime_error);
}

TEST(Limits, WalksBehindEachOtherAreNotCounted) {
    std::string source;
    for (int i = 0; i < 20; i++) source += walksInsideEachOther(2, "அச்சிடு(\"உள்ளே\")");
    EXPECT_EQ(countOf("உள்ளே", generate(source)), 20 * 4);
}

TEST(Limits, AWalkBehindADozenInsideEachOtherIsWritten) {
    const std::string dozen = walksInsideEachOther(12, "விடு");
    EXPECT_EQ(countOf("உள்ளே", generate(dozen + walksInsideEachOther(1, "அச்சிடு(\"உள்ளே\")"))), 2);
}

/// A text of a mebibyte, written 64 times: the last of them begins below the limit, and what comes
/// behind it is beyond.
TEST(Limits, ATextOf64MebibytesIsTheLongest) {
    const std::string print = "அச்சிடு(\"" + std::string(kMebibyte, 'a') + "\")";
    const std::string source = walksInsideEachOther(5, print) + walksInsideEachOther(5, print);
    EXPECT_GT(generate(source).size(), 64 * kMebibyte);
    EXPECT_THROW(generate(source + "அச்சிடு(1)\n"), std::runtime_error);
}

}  // namespace
