// Colours, by name and by hexadecimal text.
#include "ui/colours.h"

#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

PozhilColor colour(const std::string& value, bool isHex) {
    const Program program;
    return Generator(program, {}, {}, {}, "", "").parsePozhilColor(value, isHex);
}

void expectColour(const PozhilColor& actual, float r, float g, float b, float a) {
    EXPECT_FLOAT_EQ(actual.r, r);
    EXPECT_FLOAT_EQ(actual.g, g);
    EXPECT_FLOAT_EQ(actual.b, b);
    EXPECT_FLOAT_EQ(actual.a, a);
}

TEST(Colours, EveryName) {
    const struct {
        const char* name;
        float r, g, b;
    } rows[] = {
        {"வெள்ளை", 1, 1, 1},
        {"கருப்பு", 0, 0, 0},
        {"சிவப்பு", 1, 0, 0},
        {"பச்சை", 0, 1, 0},
        {"நீலம்", 0, 0, 1},
        {"மஞ்சள்", 1, 1, 0},
        {"ஆரஞ்சு", 1, 0.647F, 0},
        {"ஊதா", 0.5F, 0, 0.5F},
        {"இளஞ்சிவப்பு", 1, 0.75F, 0.8F},
        {"சாம்பல்", 0.5F, 0.5F, 0.5F},
        {"பழுப்பு", 0.65F, 0.16F, 0.16F},
        {"வானநீலம்", 0.53F, 0.81F, 0.92F},
        {"தங்கம்", 1, 0.84F, 0},
        {"வெள்ளி", 0.75F, 0.75F, 0.75F},
        {"சுண்ணாம்பு", 0, 1, 0},
        {"கடல்நீலம்", 0, 0.41F, 0.58F},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        expectColour(colour(row.name, false), row.r, row.g, row.b, 1);
    }
}

TEST(Colours, UnknownNameIsOpaqueBlack) { expectColour(colour("எதுவோ", false), 0, 0, 0, 1); }

TEST(Colours, SixDigitsAreOpaque) { expectColour(colour("#ff8000", true), 1, 128 / 255.0F, 0, 1); }

TEST(Colours, EightDigitsCarryAlpha) {
    expectColour(colour("#00ff0080", true), 0, 1, 0, 128 / 255.0F);
}

TEST(Colours, ShortFormsStayBlack) {
    expectColour(colour("#fff", true), 0, 0, 0, 1);
    expectColour(colour("#fffff", true), 0, 0, 0, 1);
}

TEST(Colours, SevenDigitsReadThreeChannels) {
    expectColour(colour("#ff8000f", true), 1, 128 / 255.0F, 0, 1);
}

TEST(Colours, NineDigitsReadThreeChannels) {
    expectColour(colour("#ff8000800", true), 1, 128 / 255.0F, 0, 1);
}

TEST(Colours, WhatCannotBeReadStaysZero) { expectColour(colour("#ffzz00", true), 1, 0, 0, 1); }

TEST(Colours, AlphaThatCannotBeReadStaysFull) {
    expectColour(colour("#ff8000zz", true), 1, 128 / 255.0F, 0, 1);
}

TEST(Colours, MarkMayBeCutAlready) { expectColour(colour("ff8000", true), 1, 128 / 255.0F, 0, 1); }

std::string written(const std::string& value, bool isHex) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    const ColorExpression expression(value, isHex);
    generator.visitExpression(&expression);
    return generator.out.str();
}

TEST(ColourText, HoldsWholeChannelsCutDownwards) {
    EXPECT_EQ(written("சாம்பல்", false), "nvgRGBA(127, 127, 127, 255)");
    EXPECT_EQ(written("ஆரஞ்சு", false), "nvgRGBA(255, 164, 0, 255)");
    EXPECT_EQ(written("#00ff0080", true), "nvgRGBA(0, 255, 0, 128)");
    EXPECT_EQ(written("எதுவோ", false), "nvgRGBA(0, 0, 0, 255)");
}

TEST(ColourText, OfASignAmongTheDigitsIsAFullChannel) {
    EXPECT_EQ(written("#-ff8000", true), "nvgRGBA(255, 248, 0, 255)");
}

TEST(Colours, HexWithoutMarkIsAName) {
    expectColour(colour("ff8000", false), 0, 0, 0, 1);
    expectColour(colourOfText("ff8000"), 0, 0, 0, 1);
    expectColour(colourOfText("#ff8000"), 1, 128 / 255.0F, 0, 1);
}

}  // namespace
