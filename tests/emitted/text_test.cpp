// Functions of texts, and lengths. Splitting by an empty text and replacing it never end.
#include <gtest/gtest.h>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"
#include "support/subprocess.h"

namespace {

std::string textOf(const std::any& value) { return std::any_cast<std::string>(value); }

/// The pieces, all of them texts, with a bar between them.
std::string piecesOf(const std::string& text, const std::string& delimiter) {
    const std::any result = fn_பிளவு(text, delimiter);
    std::string joined;
    for (const std::any& piece : std::any_cast<const std::vector<std::any>&>(result)) {
        if (&piece != &std::any_cast<const std::vector<std::any>&>(result).front()) joined += '|';
        joined += std::any_cast<std::string>(piece);
    }
    return joined;
}

TEST(Split, GivesThePieces) {
    EXPECT_EQ(piecesOf("a,b,c", ","), "a|b|c");
    EXPECT_EQ(piecesOf("அ, ஆ, இ", ", "), "அ|ஆ|இ");
    EXPECT_EQ(piecesOf("abc", ","), "abc");
}

TEST(Split, GivesEmptyPieces) {
    EXPECT_EQ(piecesOf("a,b,", ","), "a|b|");
    EXPECT_EQ(piecesOf(",,", ","), "||");
    EXPECT_EQ(piecesOf("aaa", "aa"), "|a");
}

TEST(Split, OfTheEmptyTextGivesOneEmptyPiece) {
    const std::any result = fn_பிளவு("", ",");
    const auto& pieces = std::any_cast<const std::vector<std::any>&>(result);
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(textOf(pieces[0]), "");
}

TEST(Replace, GoesOnBehindEachReplacement) {
    EXPECT_EQ(textOf(fn_பதில்("aaa", "a", "aa")), "aaaaaa");
    EXPECT_EQ(textOf(fn_பதில்("aaa", "aa", "b")), "ba");
    EXPECT_EQ(textOf(fn_பதில்("பூ மரம் பூ", "பூ", "கொடி")), "கொடி மரம் கொடி");
    EXPECT_EQ(textOf(fn_பதில்("abc", "b", "")), "ac");
    EXPECT_EQ(textOf(fn_பதில்("abc", "x", "y")), "abc");
    EXPECT_EQ(textOf(fn_பதில்("", "x", "y")), "");
}

// An empty replacement keeps the text as it is, so that the loop takes time and no memory.
TEST(Replace, OfTheEmptyTextNeverEnds) {
    ProcessOptions options;
    options.timeoutSeconds = 0.5;
    const ProcessResult run = runForked(
        [] {
            fn_பதில்("abc", "", "");
            return 0;
        },
        options);
    EXPECT_TRUE(run.timedOut);
}

TEST(Case, OfLatinLettersChanges) {
    EXPECT_EQ(textOf(fn_பெரியஎ("abc XYZ 1!")), "ABC XYZ 1!");
    EXPECT_EQ(textOf(fn_சிறியஎ("abc XYZ 1!")), "abc xyz 1!");
}

TEST(Case, OfTamilLettersStays) {
    EXPECT_EQ(textOf(fn_பெரியஎ("அம்மா a")), "அம்மா A");
    EXPECT_EQ(textOf(fn_சிறியஎ("அம்மா A")), "அம்மா a");
    EXPECT_EQ(textOf(fn_பெரியஎ("")), "");
}

TEST(Trim, TakesSixKindsOfWhiteSpaceFromBothEnds) {
    EXPECT_EQ(textOf(fn_சுத்தம்(" \t\n\r\f\vஅ ஆ\v\f\r\n\t ")), "அ ஆ");
    EXPECT_EQ(textOf(fn_சுத்தம்("அ")), "அ");
    EXPECT_EQ(textOf(fn_சுத்தம்("\xC2\xA0")), "\xC2\xA0");
}

TEST(Trim, OfWhiteSpaceAloneIsEmpty) {
    EXPECT_EQ(textOf(fn_சுத்தம்("   ")), "");
    EXPECT_EQ(textOf(fn_சுத்தம்("")), "");
}

TEST(Length, OfATextIsInBytes) {
    EXPECT_EQ(fn_நீளம்(std::string("abc")), 3);
    EXPECT_EQ(fn_நீளம்(std::string("அ")), 3);
    EXPECT_EQ(fn_நீளம்(std::string()), 0);
}

TEST(Length, OfACharacterIsOne) {
    EXPECT_EQ(fn_நீளம்(_PozhilChar{"அ"}), 1);
    EXPECT_EQ(fn_நீளம்(_PozhilChar{""}), 1);
    EXPECT_EQ(fn_நீளம்('a'), 1);
}

TEST(Length, OfAContainerCountsItsElements) {
    EXPECT_EQ(fn_நீளம்(std::vector<std::any>{1LL, 2LL}), 2);
    EXPECT_EQ(fn_நீளம்(std::vector<std::any>()), 0);
    EXPECT_EQ(fn_நீளம்(std::map<std::string, std::any>{{"அ", 1LL}}), 1);
}

TEST(Length, OfANumberIsThatOfItsText) {
    EXPECT_EQ(fn_நீளம்(-123LL), 4);
    EXPECT_EQ(fn_நீளம்(12), 2);
    EXPECT_EQ(fn_நீளம்(3.5L), 8);
}

TEST(Length, OfAnythingElseIsZero) {
    EXPECT_EQ(fn_நீளம்(true), 0);
    EXPECT_EQ(fn_நீளம்(std::any()), 0);
    EXPECT_EQ(fn_நீளம்(std::make_shared<_StructBase>()), 0);
}

TEST(Length, IsAnIntAndSoNoLongLong) {
    const std::any length = fn_நீளம்(std::string("abc"));
    EXPECT_EQ(length.type(), typeid(int));
    EXPECT_THROW((void)std::any_cast<long long>(length), std::bad_any_cast);
}

}  // namespace
