#include "companion/language_server/text_places.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using companion::Range;
using companion::language_server::Position;
using companion::language_server::TextPlaces;

void expectPosition(const TextPlaces& places, std::size_t offset, int line, int character) {
    const Position position = places.positionOf(offset);
    EXPECT_EQ(position.line, line) << offset;
    EXPECT_EQ(position.character, character) << offset;
}

TEST(TextPlaces, CountsUnitsOfUtf16) {
    const std::string text = "அ😀b\nc";
    const TextPlaces places(text);
    expectPosition(places, 0, 0, 0);
    expectPosition(places, 3, 0, 1);
    expectPosition(places, 7, 0, 3);  // two units
    expectPosition(places, 8, 0, 4);
    expectPosition(places, 9, 1, 0);
    EXPECT_EQ(places.offsetOf({0, 1}), 3U);
    EXPECT_EQ(places.offsetOf({0, 3}), 7U);
    EXPECT_EQ(places.offsetOf({1, 1}), 10U);
}

TEST(TextPlaces, StaysBeforeAPairThatAPositionWouldSplit) {
    const std::string text = "அ😀b";
    EXPECT_EQ(TextPlaces(text).offsetOf({0, 2}), 3U);
}

TEST(TextPlaces, AnswersInAnyOrder) {
    const std::string text = "அஆ\nஇஈ\n";
    const TextPlaces places(text);
    expectPosition(places, 10, 1, 1);
    expectPosition(places, 3, 0, 1);
    expectPosition(places, 13, 1, 2);
    expectPosition(places, 7, 1, 0);
    expectPosition(places, 14, 2, 0);
}

TEST(TextPlaces, TakesAbsurdPlacesForTheNearest) {
    const std::string text = "ab\ncd";
    const TextPlaces places(text);
    EXPECT_EQ(places.offsetOf({-5, 1}), 0U);
    EXPECT_EQ(places.offsetOf({0, -5}), 0U);
    EXPECT_EQ(places.offsetOf({0, 99}), 2U);
    EXPECT_EQ(places.offsetOf({99, 0}), 5U);
    expectPosition(places, 1000, 1, 2);
    const Range backwards = places.rangeOf({{1, 1}, {0, 1}});
    EXPECT_EQ(backwards.begin, 4U);
    EXPECT_EQ(backwards.end, 4U);
}

TEST(TextPlaces, KnowsTheLineEndsOfAllEditors) {
    const std::string text = "a\r\nb\rc\nd";
    const TextPlaces places(text);
    EXPECT_EQ(places.lineCount(), 4);
    EXPECT_EQ(places.offsetOf({0, 9}), 1U);
    EXPECT_EQ(places.offsetOf({1, 9}), 4U);
    EXPECT_EQ(places.offsetOf({2, 0}), 5U);
    EXPECT_EQ(places.offsetOf({3, 1}), 8U);
    expectPosition(places, 7, 3, 0);
}

TEST(TextPlaces, CountsABrokenByteAsOneUnit) {
    const std::string text =
        "a\xE0\xAE"
        "b";
    const TextPlaces places(text);
    expectPosition(places, 3, 0, 3);
    EXPECT_EQ(places.offsetOf({0, 3}), 3U);
}

/// Both ways come to the same, wherever a character begins.
TEST(TextPlaces, GoesThereAndBack) {
    const std::string text = "செயல் அ😀():\r\n\tx\n\n𝒳 = \"ஃ\"";
    const TextPlaces places(text);
    for (std::size_t offset = 0; offset <= text.size(); offset++) {
        const bool isInside =
            offset < text.size() && (static_cast<unsigned char>(text[offset]) & 0xC0U) == 0x80U;
        const bool isBetween = offset > 0 && text[offset - 1] == '\r';
        if (isInside || isBetween) continue;
        EXPECT_EQ(places.offsetOf(places.positionOf(offset)), offset);
    }
}

}  // namespace
