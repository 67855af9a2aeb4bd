// The numbers that the compiler itself reads.
#include "number_text.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

TEST(NumberText, IsReadUpToItsEnd) {
    EXPECT_EQ(floatOf("0"), 0.0F);
    EXPECT_EQ(floatOf("250"), 250.0F);
    EXPECT_EQ(floatOf("1.5"), 1.5F);
    EXPECT_EQ(floatOf("1."), 1.0F);
    EXPECT_EQ(floatOf("007"), 7.0F);
}

TEST(NumberText, OfTamilDigitsThrows) {
    try {
        floatOf("௫");
        FAIL() << "nothing was thrown";
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ(error.what(), "stof");
    }
}

TEST(NumberText, BeyondAFloatThrows) {
    try {
        floatOf("1" + std::string(39, '0'));
        FAIL() << "nothing was thrown";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "stof");
    }
}

}  // namespace
