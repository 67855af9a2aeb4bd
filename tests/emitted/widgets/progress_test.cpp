// How far an animation is: by frames, as widgets ask, and by the clock. And what animated widgets
// use beside it: colours between two, the parts of a text around its number.
#include "emitted/widgets/surroundings.h"

namespace {

constexpr float kWindow = 600;
constexpr float kInView = 100;
constexpr unsigned long long kId = 7;

class ProgressTest : public Surroundings {
protected:
    /// A frame of a widget that is animated while `isActive`: 0.2 seconds take twelve.
    static float active(bool isActive) {
        return updateProgress(kId, "hover", isActive, kInView, kWindow, 200);
    }
    /// A frame of a widget that starts by itself where its top is `y`, at once.
    static float automatic(float y, const char* condition = "தானாக") {
        return updateProgress(kId, condition, false, y, kWindow, 0);
    }
};

TEST_F(ProgressTest, MovesByAStepAFrameBothWays) {
    EXPECT_FLOAT_EQ(active(true), 1.0F / 12);
    EXPECT_FLOAT_EQ(active(true), 2.0F / 12);
    EXPECT_FLOAT_EQ(active(false), 1.0F / 12);
    EXPECT_NEAR(active(false), 0, 1e-6);
    EXPECT_EQ(active(false), 0) << "not below the start";
    for (int i = 0; i < 13; i++) active(true);
    EXPECT_EQ(active(true), 1) << "not beyond the end";
    EXPECT_FLOAT_EQ(active(false), 11.0F / 12);
}

TEST_F(ProgressTest, AsksNoClock) {
    active(true);
    browser().now += 5000;
    EXPECT_FLOAT_EQ(active(true), 2.0F / 12);
}

TEST_F(ProgressTest, OfNoDurationIsThereInOneFrame) {
    EXPECT_EQ(updateProgress(1, "hover", true, kInView, kWindow, 0), 1);
    EXPECT_EQ(updateProgress(1, "hover", false, kInView, kWindow, 0), 0);
    EXPECT_EQ(updateProgress(2, "hover", true, kInView, kWindow, -5), 1);
}

TEST_F(ProgressTest, IsEachWidgetsOwn) {
    EXPECT_EQ(updateProgress(1, "hover", true, kInView, kWindow, 0), 1);
    EXPECT_EQ(updateProgress(2, "hover", false, kInView, kWindow, 0), 0);
    EXPECT_EQ(g_animationStates[1].currentProgress, 1);
    EXPECT_EQ(g_animationStates.size(), 2U);
}

TEST_F(ProgressTest, StartsByItselfWithinTheWindow) {
    EXPECT_EQ(automatic(0), 0) << "at the upper edge";
    EXPECT_EQ(automatic(-1), 0);
    EXPECT_EQ(automatic(550), 0) << "50 pixels above the lower edge";
    EXPECT_EQ(automatic(600), 0);
    EXPECT_FALSE(g_animationStates[kId].hasTriggered);
    EXPECT_EQ(automatic(549.5F), 1);
    EXPECT_TRUE(g_animationStates[kId].hasTriggered);
}

TEST_F(ProgressTest, StartsByItselfJustBelowTheUpperEdge) { EXPECT_EQ(automatic(0.5F), 1); }

TEST_F(ProgressTest, StartsByItselfInEnglishToo) {
    EXPECT_EQ(automatic(kInView, "auto"), 1);
    EXPECT_EQ(updateProgress(8, "Auto", false, kInView, kWindow, 0), 0);
    EXPECT_FALSE(g_animationStates[8].hasTriggered);
}

TEST_F(ProgressTest, OnceStartedNeverReturns) {
    EXPECT_FLOAT_EQ(updateProgress(kId, "தானாக", false, kInView, kWindow, 200), 1.0F / 12);
    EXPECT_FLOAT_EQ(updateProgress(kId, "தானாக", false, -50, kWindow, 200), 2.0F / 12)
        << "though out of view";
    EXPECT_EQ(automatic(9000), 1);
    EXPECT_EQ(automatic(9000), 1);
}

TEST_F(ProgressTest, OfItsOwnAccordNeedsNoActivity) {
    EXPECT_EQ(updateProgress(kId, "தானாக", true, -50, kWindow, 0), 0) << "nor heeds it";
}

TEST_F(ProgressTest, WithoutAConditionFollowsActivityAlone) {
    EXPECT_EQ(updateProgress(kId, "", true, -50, kWindow, 0), 1);
    EXPECT_EQ(updateProgress(kId, "", false, kInView, kWindow, 0), 0);
    EXPECT_FALSE(g_animationStates[kId].hasTriggered);
}

TEST_F(ProgressTest, RunsThroughACurve) {
    EXPECT_EQ(getCurveValue("மெது_தொடக்கம்", 0.5F), 0.25F);
    EXPECT_EQ(getCurveValue("ease_in_out_cubic", 0.5F), -3.5F);
    EXPECT_EQ(getCurveValue("linear", 0.375F), 0.375F);
}

/// The duration of the pair that looks at the clock is in seconds.
class ClockTest : public Surroundings {
protected:
    static float progress() { return g_animationStates[kId].currentProgress; }
};

TEST_F(ClockTest, StartsWithTheFirstCallAndEndsAtOne) {
    browser().now = 5000;
    application::advanceByTheClock(kId, 2);
    EXPECT_EQ(progress(), 0);
    EXPECT_TRUE(g_animationStates[kId].isRunning);
    EXPECT_EQ(g_animationStates[kId].startTime, 5.0);
    browser().now = 5500;
    application::advanceByTheClock(kId, 2);
    EXPECT_EQ(progress(), 0.25F);
    browser().now = 99000;
    application::advanceByTheClock(kId, 2);
    EXPECT_EQ(progress(), 1);
}

TEST_F(ClockTest, StaysAtItsEnd) {
    g_animationStates[kId] = {1.0, true, 1.0F, false};
    browser().now = 1250;
    application::advanceByTheClock(kId, 2);
    EXPECT_EQ(progress(), 1);
    EXPECT_TRUE(g_animationStates[kId].isRunning) << "so it doesn't begin anew";
}

TEST_F(ClockTest, WithoutADurationStandsStill) {
    for (const float duration : {0.0F, -1.0F}) {
        browser().now += 1000;
        application::advanceByTheClock(kId, duration);
        EXPECT_EQ(progress(), 0);
        EXPECT_FALSE(g_animationStates[kId].isRunning);
    }
}

TEST_F(ClockTest, LeadsAValueAlongACurve) {
    EXPECT_EQ(application::leadByTheClock(kId, 2, "மெது_தொடக்கம்", 10, 20), 10);
    browser().now = 1000;
    EXPECT_EQ(application::leadByTheClock(kId, 2, "மெது_தொடக்கம்", 10, 20), 12.5F);
    EXPECT_EQ(application::leadByTheClock(kId, 2, "linear", 10, 20), 15);
    browser().now = 3000;
    EXPECT_EQ(application::leadByTheClock(kId, 2, "மெது_தொடக்கம்", 10, 20), 20);
}

class AnimatedValuesTest : public Surroundings {};

TEST_F(AnimatedValuesTest, AreColoursBetweenTwo) {
    const NVGcolor from = {0, 0.5F, 1, 1};
    const NVGcolor to = {1, 0.5F, 0.5F, 0};
    const NVGcolor between = lerpColor(from, to, 0.25F);
    EXPECT_EQ(between.r, 0.25F);
    EXPECT_EQ(between.g, 0.5F);
    EXPECT_EQ(between.b, 0.875F);
    EXPECT_EQ(between.a, 0.75F);
    EXPECT_EQ(lerpColor(from, to, 0).b, 1);
    EXPECT_EQ(lerpColor(from, to, 1).r, 1);
}

TEST_F(AnimatedValuesTest, AreTextsAroundANumber) {
    const struct {
        const char* text;
        const char* prefix;
        const char* suffix;
    } rows[] = {
        {"₹1500 மட்டும்", "₹", " மட்டும்"},
        {"1500", "", ""},
        {"அ5", "அ", ""},
        {"5ஆ", "", "ஆ"},
        {"அளவு 1 முதல் 20 வரை", "அளவு ", " வரை"},
        {"10 முதல் 20", "", ""},
        {"எண் இல்லை", "எண் இல்லை", ""},
        {"௧௨", "௧௨", ""},
        {"", "", ""},
        {"0.9%", "", "%"},
    };
    for (const auto& row : rows) {
        const TextParts parts = splitText(row.text);
        EXPECT_EQ(parts.prefix, row.prefix) << row.text;
        EXPECT_EQ(parts.suffix, row.suffix) << row.text;
    }
}

}  // namespace
