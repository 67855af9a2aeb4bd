// The stream that generated text is written to.
#include "writing/text_stream.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(TextStream, KeepsTheOrderOfShortWaysAndLongOnes) {
    TextStream out;
    std::ostream& anyStream = out;
    out << "a" << std::string("b") << std::string_view("c") << 'd';
    anyStream << "e" << 6;
    out << true << 7L << "f";
    EXPECT_EQ(out.str(), "abcde617f");
    EXPECT_EQ(out.size(), 9U);
}

TEST(TextStream, WritesWholeNumbers) {
    TextStream out;
    out << 0 << " " << -1 << " " << INT_MAX << " " << INT_MIN;
    EXPECT_EQ(out.str(), "0 -1 2147483647 -2147483648");
}

TEST(TextStream, HandsItsTextOverAndStartsAnew) {
    TextStream out;
    out << "a";
    EXPECT_EQ(out.take(), "a");
    EXPECT_EQ(out.str(), "");
    out << "b";
    EXPECT_EQ(out.str(), "b");
}

}  // namespace
