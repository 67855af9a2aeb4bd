// The animation block over hand-made tokens, its numbers, and the reading of a target group that
// nothing calls.
#include <gtest/gtest.h>

#include "unit/parser_frame/handmade.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

Token quoted(const std::string& text) { return {TokenType::STRING, text, 1}; }

AnimationNode animationOf(const std::vector<Token>& tokens) {
    Parser parser = parserOver(tokens);
    auto animation = parser.parseAnimation();
    EXPECT_TRUE(parser.is_at_end());
    return *animation;
}

AnimationNode animationOf(const std::string& block) {
    return animationOf(scanAs(TokenType::UNKNOWN, {}, block));
}

TEST(Animation, StartsWithItsDefaults) {
    const AnimationNode animation = animationOf("()");
    EXPECT_EQ(animation.duration, 0);
    EXPECT_EQ(animation.curve, "linear");
    EXPECT_EQ(animation.trigger, "");
    EXPECT_TRUE(animation.numberTargets.empty());
    EXPECT_TRUE(animation.stringTargets.empty());
    EXPECT_FALSE(animation.target.fadeIn.has_value());
    EXPECT_FALSE(animation.target.color.has_value());
    EXPECT_FALSE(animation.target.fadeSlide);
    EXPECT_FALSE(animation.target.fly);
}

/// A scanned string has lost its quotes; one that brings a pair along loses it here.
TEST(Animation, TakesOffOnePairOfQuotes) {
    const auto triggerOf = [](const std::string& text) {
        return animationOf({mark(TokenType::LEFT_PAREN), word("நிலைமை"), mark(TokenType::COLON),
                            quoted(text), mark(TokenType::RIGHT_PAREN)})
            .trigger;
    };
    EXPECT_EQ(triggerOf("hover"), "hover");
    EXPECT_EQ(triggerOf("\"hover\""), "hover");
    EXPECT_EQ(triggerOf("\"\"hover\"\""), "\"hover\"");
    EXPECT_EQ(triggerOf("\"hover"), "\"hover");
    EXPECT_EQ(triggerOf("\""), "\"");
    EXPECT_EQ(triggerOf("\"\""), "");
    EXPECT_EQ(triggerOf(""), "");
}

TEST(Animation, KnowsItsWordsByKindToo) {
    const std::vector<Token> tokens = {mark(TokenType::LEFT_PAREN),
                                       {TokenType::DURATION, "நேரம்", 1},
                                       mark(TokenType::COLON),
                                       number("5"),
                                       {TokenType::ANIMATION_CURVE, "வளை", 1},
                                       mark(TokenType::COLON),
                                       quoted("\"ease\""),
                                       {TokenType::TARGET, "குறி", 1},
                                       mark(TokenType::LEFT_PAREN),
                                       word("அகலம்"),
                                       mark(TokenType::COLON),
                                       quoted("\"5\""),
                                       mark(TokenType::RIGHT_PAREN),
                                       mark(TokenType::RIGHT_PAREN)};
    const AnimationNode animation = animationOf(tokens);
    EXPECT_EQ(animation.duration, 5);
    EXPECT_EQ(animation.curve, "ease");
    EXPECT_EQ(animation.stringTargets.at("அகலம்"), "5");
}

TEST(Animation, TriggerIsATextOrAPlainWord) {
    EXPECT_EQ(animationOf("(நிலைமை: தானாக)").trigger, "தானாக");
    EXPECT_EQ(animationOf("(நிலைமை: \"auto\")").trigger, "auto");
    for (const char* other : {"5", "மெய்", "சுட்டி_மேல்", "50%", "வகை", "'அ'", "[", "உரை"}) {
        EXPECT_EQ(animationOf("(நிலைமை: \"அ\", நிலைமை: " + std::string(other) + ")").trigger, "அ")
            << other;
    }
}

TEST(Animation, DurationIsANumber) {
    EXPECT_EQ(animationOf("(காலம்: 300)").duration, 300.0F);
    EXPECT_EQ(animationOf("(காலம்: 0.5)").duration, 0.5F);
    for (const char* other : {"\"5\"", "50%", "எண்", "'5'"}) {
        EXPECT_EQ(animationOf("(காலம்: 7, காலம்: " + std::string(other) + ")").duration, 7.0F)
            << other;
    }
}

TEST(Animation, CurveIsATextOrAPlainWord) {
    EXPECT_EQ(animationOf("(வகை: துள்ளு)").curve, "துள்ளு");
    EXPECT_EQ(animationOf("(வகை: \"துள்ளல்\")").curve, "துள்ளல்");
    EXPECT_EQ(animationOf("(வகை: \"\")").curve, "");
    for (const char* other : {"5", "துள்ளல்", "மெய்", "கழி", ":"}) {
        const std::string source = "உரை(அசைவூட்டம்(வகை: " + std::string(other) + "))";
        EXPECT_EQ(refusalOf(source), "பொழில்-262") << other;
    }
}

TEST(Animation, ReadsAValueOnALaterLine) {
    const AnimationNode animation =
        animationOf("(நிலைமை:\n\n\"hover\"\nகாலம்\n:\n5\nவகை:\n\"ease\"\nஇலக்கு:\n(விரிவு\n:\n2))");
    EXPECT_EQ(animation.trigger, "hover");
    EXPECT_EQ(animation.duration, 5);
    EXPECT_EQ(animation.curve, "ease");
    EXPECT_EQ(animation.numberTargets.at("விரிவு"), 2.0F);
}

/// What is passed over may be a word that would be read itself.
TEST(Animation, PassesOverTheOneTokenBehindAnUnknownWord) {
    for (const char* entry : {"மொழி: வகை", "மொழி:\nவகை", "மொழி வகை", "மொழி\nவகை"}) {
        const AnimationNode animation = animationOf("(" + std::string(entry) + ", காலம்: 8)");
        EXPECT_EQ(animation.duration, 8) << entry;
        EXPECT_EQ(animation.curve, "linear") << entry;
    }
}

TEST(Animation, TargetMayBeAnyWord) {
    for (const std::string name : {"விரிவு", "அகலம்", "நிறம்", "எனில்", "அறியாத", "5"}) {
        EXPECT_EQ(animationOf("(இலக்கு(" + name + ": 1.5))").numberTargets.at(name), 1.5F);
        EXPECT_EQ(animationOf("(இலக்கு(" + name + ": \"#fff\"))").stringTargets.at(name), "#fff");
        EXPECT_EQ(animationOf("(இலக்கு(" + name + ": சிவப்பு))").stringTargets.at(name), "சிவப்பு");
        EXPECT_TRUE(animationOf("(இலக்கு(" + name + ": மெய்))").stringTargets.empty());
    }
}

/// A number that can't be converted is no report; the driver tells of a failed parse.
TEST(Animation, OfTamilDigitsThrows) {
    EXPECT_THROW(animationOf("(காலம்: ௩௦௦)"), std::invalid_argument);
    EXPECT_THROW(animationOf("(இலக்கு(விரிவு: ௨))"), std::invalid_argument);
    EXPECT_THROW(animationOf("(காலம்: " + std::string(60, '9') + ")"), std::out_of_range);
}

// ---- The target group that nothing calls ----

AnimationTargetNode targetOf(const std::vector<Token>& tokens) {
    Parser parser = parserOver(tokens);
    const AnimationTargetNode target = parser.parseAnimationTarget();
    EXPECT_TRUE(parser.is_at_end());
    return target;
}

struct DeltaRow {
    TokenType kind;
    std::optional<AnimationDelta> AnimationTargetNode::*field;
};
const DeltaRow kDeltas[] = {
    {TokenType::FADE_IN, &AnimationTargetNode::fadeIn},
    {TokenType::FADE_OUT, &AnimationTargetNode::fadeOut},
    {TokenType::GROW, &AnimationTargetNode::grow},
    {TokenType::SHRINK, &AnimationTargetNode::shrink},
    {TokenType::SLIDE_LEFT, &AnimationTargetNode::slideLeft},
    {TokenType::SLIDE_RIGHT, &AnimationTargetNode::slideRight},
    {TokenType::SLIDE_UP, &AnimationTargetNode::slideUp},
    {TokenType::SLIDE_DOWN, &AnimationTargetNode::slideDown},
    {TokenType::ROTATE_CLOCKWISE, &AnimationTargetNode::rotateClockwise},
    {TokenType::ROTATE_ANTICLOCKWISE, &AnimationTargetNode::rotateAnticlockwise},
    {TokenType::MOVE_HORIZONTAL, &AnimationTargetNode::moveHorizontal},
    {TokenType::MOVE_VERTICAL, &AnimationTargetNode::moveVertical},
    {TokenType::ANIMATE_WIDTH, &AnimationTargetNode::width},
    {TokenType::ANIMATE_HEIGHT, &AnimationTargetNode::height},
    {TokenType::ANIMATE_CURVE, &AnimationTargetNode::curveRadius},
};

int filledFields(const AnimationTargetNode& target) {
    int count = 0;
    for (const DeltaRow& row : kDeltas) count += (target.*row.field).has_value() ? 1 : 0;
    return count;
}

TEST(AnimationTarget, HasAFieldForEachWord) {
    for (const DeltaRow& row : kDeltas) {
        const AnimationTargetNode target =
            targetOf({mark(TokenType::TARGET), mark(TokenType::LEFT_PAREN), mark(row.kind),
                      mark(TokenType::COLON), number("1.5"), mark(TokenType::RIGHT_PAREN)});
        ASSERT_TRUE((target.*row.field).has_value());
        EXPECT_EQ((target.*row.field)->value, 1.5F);
        EXPECT_FALSE((target.*row.field)->isRelative);
        EXPECT_FALSE((target.*row.field)->isNegative);
        EXPECT_EQ(filledFields(target), 1);
    }
}

TEST(AnimationTarget, WordsOfTheScannerReachTheirFields) {
    const std::pair<const char*, std::optional<AnimationDelta> AnimationTargetNode::*> rows[] = {
        {"தெளிவு", &AnimationTargetNode::fadeIn},
        {"மறைவு", &AnimationTargetNode::fadeOut},
        {"விரிவு", &AnimationTargetNode::grow},
        {"சுருக்கம்", &AnimationTargetNode::shrink},
        {"இடது_நழுவு", &AnimationTargetNode::slideLeft},
        {"வலது_நழுவு", &AnimationTargetNode::slideRight},
        {"மேல்_நழுவு", &AnimationTargetNode::slideUp},
        {"கீழ்_நழுவு", &AnimationTargetNode::slideDown},
        {"வலஞ்சுழி", &AnimationTargetNode::rotateClockwise},
        {"இடஞ்சுழி", &AnimationTargetNode::rotateAnticlockwise},
        {"கி_நகர்வு", &AnimationTargetNode::moveHorizontal},
        {"நெ_நகர்வு", &AnimationTargetNode::moveVertical},
    };
    for (const auto& [text, field] : rows) {
        const auto target =
            targetOf(scanAs(TokenType::UNKNOWN, {}, "இலக்கு(" + std::string(text) + ": 2)"));
        ASSERT_TRUE((target.*field).has_value()) << text;
        EXPECT_EQ((target.*field)->value, 2.0F);
    }
}

TEST(AnimationTarget, NeedsNeitherWordNorParenthesesNorColon) {
    const AnimationTargetNode target =
        targetOf({mark(TokenType::GROW), number("2"), mark(TokenType::COMMA),
                  mark(TokenType::SHRINK), mark(TokenType::COLON), number("3")});
    EXPECT_EQ(target.grow->value, 2.0F);
    EXPECT_EQ(target.shrink->value, 3.0F);
}

TEST(AnimationTarget, MayBeRelativeByKeyword) {
    const AnimationTargetNode target =
        targetOf({mark(TokenType::GROW), word("கூட்டு"), number("2"), mark(TokenType::SHRINK),
                  word("கழி"), number("3"), mark(TokenType::FADE_IN), word("கழி")});
    EXPECT_TRUE(target.grow->isRelative);
    EXPECT_FALSE(target.grow->isNegative);
    EXPECT_EQ(target.grow->value, 2.0F);
    EXPECT_TRUE(target.shrink->isRelative);
    EXPECT_TRUE(target.shrink->isNegative);
    EXPECT_EQ(target.shrink->value, 3.0F);
    EXPECT_TRUE(target.fadeIn->isNegative);
    EXPECT_EQ(target.fadeIn->value, 0.0F);
}

/// The scanner's `கூட்டு` is an OPERATOR: it is passed over, and the number behind it too.
TEST(AnimationTarget, OfASourceIsNeverRelative) {
    const AnimationTargetNode target =
        targetOf(scanAs(TokenType::UNKNOWN, {}, "(விரிவு: கூட்டு 2, மறைவு: 3)"));
    EXPECT_FALSE(target.grow->isRelative);
    EXPECT_EQ(target.grow->value, 0.0F);
    EXPECT_EQ(target.fadeOut->value, 3.0F);
}

TEST(AnimationTarget, TakesColourAndFlags) {
    const AnimationTargetNode target =
        targetOf({mark(TokenType::LEFT_PAREN), mark(TokenType::ANIMATE_COLOUR),
                  mark(TokenType::COLON), quoted("\"#fff\""), mark(TokenType::FADE_SLIDE),
                  mark(TokenType::FLY), mark(TokenType::RIGHT_PAREN)});
    EXPECT_EQ(target.color, "#fff");
    EXPECT_TRUE(target.fadeSlide);
    EXPECT_TRUE(target.fly);
    EXPECT_EQ(filledFields(target), 0);
}

TEST(AnimationTarget, PassesOverAnythingElse) {
    const AnimationTargetNode target =
        targetOf(scanAs(TokenType::UNKNOWN, {}, "(அகலம்: 5, நிறம்: 6, துள்ளல், 7"));
    EXPECT_EQ(filledFields(target), 0);
    EXPECT_FALSE(target.color.has_value());
}

TEST(AnimationTarget, EndsBehindItsParenthesis) {
    Parser parser = parserOver({mark(TokenType::LEFT_PAREN), mark(TokenType::GROW), number("2"),
                                mark(TokenType::RIGHT_PAREN), mark(TokenType::SHRINK)});
    const AnimationTargetNode target = parser.parseAnimationTarget();
    EXPECT_EQ(target.grow->value, 2.0F);
    EXPECT_FALSE(target.shrink.has_value());
    EXPECT_TRUE(parser.check(TokenType::SHRINK));
}

TEST(AnimationTarget, EndsWithTheTokens) {
    EXPECT_EQ(filledFields(targetOf({})), 0);
    EXPECT_EQ(filledFields(targetOf({mark(TokenType::TARGET)})), 0);
    EXPECT_EQ(targetOf({mark(TokenType::GROW)}).grow->value, 0.0F);
    EXPECT_EQ(targetOf({mark(TokenType::GROW), word("கழி")}).grow->value, 0.0F);
}

}  // namespace
