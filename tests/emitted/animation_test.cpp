// The animation engine of every program: curves by name, held against their formulas in double
// precision, and the pair that looks at the clock, where there is none.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

using Formula = std::function<double(double)>;

/// A curve that has one formula in its first half and another in its second.
Formula halves(const Formula& first, const Formula& second) {
    return [=](double t) { return t < 0.5 ? first(t) : second(t); };
}

/// t to the power `n`.
Formula power(double n) {
    return [=](double t) { return std::pow(t, n); };
}

/// 1 - (1 - t)^n.
Formula mirroredPower(double n) {
    return [=](double t) { return 1 - std::pow(1 - t, n); };
}

/// factor * t^n, then 1 - (2 - 2t)^n / 2.
Formula powerBothWays(double factor, double n) {
    return halves([=](double t) { return factor * std::pow(t, n); },
                  [=](double t) { return 1 - std::pow(2 - 2 * t, n) / 2; });
}

double bounce(double t) {
    const double d = 2.75;
    if (t < 1 / d) return 7.5625 * t * t;
    if (t < 2 / d) return 7.5625 * std::pow(t - 1.5 / d, 2) + 0.75;
    if (t < 2.5 / d) return 7.5625 * std::pow(t - 2.25 / d, 2) + 0.9375;
    return 7.5625 * std::pow(t - 2.625 / d, 2) + 0.984375;
}

double bounceFromTheStart(double t) { return 1 - bounce(1 - t); }

double elasticFromTheStart(double t) {
    if (t == 0 || t == 1) return t;
    return -std::exp2(10 * t - 10) * std::sin((10 * t - 10.75) * 2 * M_PI / 3);
}

double elastic(double t) {
    if (t == 0 || t == 1) return t;
    return std::exp2(-10 * t) * std::sin((10 * t - 0.75) * 2 * M_PI / 3) + 1;
}

/// A curve that runs `start` in its first half and `end` in its second, each at half its size.
Formula bothWays(double (*start)(double), double (*end)(double)) {
    return halves([=](double t) { return start(2 * t) / 2; },
                  [=](double t) { return end(2 * t - 1) / 2 + 0.5; });
}

double back(double t, double s) { return t * t * ((s + 1) * t - s); }

double leap(double t) { return t == 0 ? 0 : std::exp2(10 * t - 10); }
double leapEnd(double t) { return t == 1 ? 1 : 1 - std::exp2(-10 * t); }
double leapBothWays(double t) {
    if (t == 0 || t == 1) return t;
    return t < 0.5 ? std::exp2(20 * t - 10) / 2 : (2 - std::exp2(10 - 20 * t)) / 2;
}

double sineStart(double t) { return 1 - std::cos(t * M_PI / 2); }
double sineEnd(double t) { return std::sin(t * M_PI / 2); }

double backBothWays(double t) {
    const double s = 1.70158 * 1.525;
    if (2 * t < 1) return 0.5 * back(2 * t, s);
    const double v = 2 * t - 2;
    return 0.5 * (v * v * ((s + 1) * v + s) + 2);
}

struct CurveRow {
    const char* name;
    Formula formula;
};

void PrintTo(const CurveRow& row, std::ostream* out) { *out << row.name; }

const std::vector<CurveRow>& curves() {
    static const std::vector<CurveRow> all = {
        {"சாதாரண", power(1)},
        {"இயல்பான", [](double t) { return 3 * t * t - 2 * t * t * t; }},
        {"மெது_தொடக்கம்", power(2)},
        {"மெது_முடிவு", mirroredPower(2)},
        {"மெது_மாற்றம்", powerBothWays(2, 2)},
        {"அலை_தொடக்கம்", sineStart},
        {"அலை_முடிவு", sineEnd},
        {"அலை_மாற்றம்", [](double t) { return (1 - std::cos(M_PI * t)) / 2; }},
        {"அழுத்த_தொடக்கம்", power(2)},
        {"அழுத்த_முடிவு", mirroredPower(2)},
        {"அழுத்த_மாற்றம்", powerBothWays(2, 2)},
        {"கன_தொடக்கம்", power(3)},
        {"கன_முடிவு", mirroredPower(3)},
        {"கன_மாற்றம்", powerBothWays(4, 3)},
        {"வேக_தொடக்கம்", power(4)},
        {"வேக_முடிவு", mirroredPower(4)},
        {"வேக_மாற்றம்", powerBothWays(8, 4)},
        {"அதிவேக_தொடக்கம்", power(5)},
        {"அதிவேக_முடிவு", mirroredPower(5)},
        {"அதிவேக_மாற்றம்", powerBothWays(16, 5)},
        {"பாய்_தொடக்கம்", leap},
        {"பாய்_முடிவு", leapEnd},
        {"பாய்_மாற்றம்", leapBothWays},
        {"வட்ட_தொடக்கம்", [](double t) { return 1 - std::sqrt(1 - t * t); }},
        {"வட்ட_முடிவு", [](double t) { return std::sqrt(1 - std::pow(t - 1, 2)); }},
        {"வட்ட_மாற்றம்",
         halves([](double t) { return (1 - std::sqrt(1 - 4 * t * t)) / 2; },
                [](double t) { return (std::sqrt(1 - std::pow(2 - 2 * t, 2)) + 1) / 2; })},
        {"பின்வாங்கல்_தொடக்கம்", [](double t) { return back(t, 1.70158); }},
        {"பின்வாங்கல்_முடிவு",
         [](double t) { return std::pow(t - 1, 2) * (2.70158 * (t - 1) + 1.70158) + 1; }},
        {"பின்வாங்கல்_மாற்றம்", backBothWays},
        {"துள்ளல்_தொடக்கம்", bounceFromTheStart},
        {"துள்ளல்", bounce},
        {"துள்ளல்_மாற்றம்", bothWays(bounceFromTheStart, bounce)},
        {"மீட்சி_தொடக்கம்", elasticFromTheStart},
        {"மீட்சி", elastic},
        {"மீட்சி_மாற்றம்", bothWays(elasticFromTheStart, elastic)},
        {"வேகம்_குறை", mirroredPower(2)},
        {"வேக_மெது", powerBothWays(4, 3)},
        {"நடு_மெது", halves([](double t) { return 2 * t * t; },
                            [](double t) { return 1 - 2 * std::pow(1 - t, 2); })},
        {"பாய்ந்து_அமர்", bounce},
        {"நிதான_முடிவு", sineEnd},
        {"நிதான_தொடக்கம்", sineStart},
        {"மின்_வேகம்", power(2.5)},
        {"சீறு", power(4)},
    };
    return all;
}

/// What the formulas hold at the quarters, and at places in between that no symmetry hides.
const double kPlaces[] = {0, 0.1, 0.25, 0.4, 0.5, 0.65, 0.75, 0.85, 0.95, 1};

void expectFormula(const std::function<float(float)>& curve, const Formula& formula) {
    for (const double t : kPlaces) EXPECT_NEAR(curve(static_cast<float>(t)), formula(t), 2e-6) << t;
}

class Curve : public testing::TestWithParam<CurveRow> {};

TEST_P(Curve, FollowsItsFormula) {
    expectFormula(பெறு_அசைவூட்ட_வளைவு(GetParam().name), GetParam().formula);
    expectFormula(getEasingFunction(GetParam().name), GetParam().formula);
}

INSTANTIATE_TEST_SUITE_P(All, Curve, testing::ValuesIn(curves()),
                         [](const auto& row) { return std::to_string(row.index); });

TEST(Curves, AreFortyThree) {
    std::set<std::string> names;
    for (const CurveRow& row : curves()) names.insert(row.name);
    EXPECT_EQ(names.size(), 43U);
}

TEST(Curves, OfAnUnknownNameAreTheIdentity) {
    for (const char* name : {"linear", "", "அறியாதது", "Ease_In"}) {
        expectFormula(பெறு_அசைவூட்ட_வளைவு(name), power(1));
        expectFormula(getEasingFunction(name), power(1));
    }
}

TEST(Curves, HaveEnglishNamesOnlyAsEasing) {
    expectFormula(பெறு_அசைவூட்ட_வளைவு("ease_in"), power(1));
    expectFormula(பெறு_அசைவூட்ட_வளைவு("மெதுவா_தொடங்கு"), power(1));
}

TEST(Curves, BounceAndSpringBackByTheirOwnFunctions) {
    EXPECT_EQ(PozhilCurves::PI, 3.14159265358979323846F);
    expectFormula(PozhilCurves::bounceOut, bounce);
    expectFormula(PozhilCurves::bounceIn, bounceFromTheStart);
    expectFormula(PozhilCurves::elasticOut, elastic);
    expectFormula(PozhilCurves::elasticIn, elasticFromTheStart);
}

double quadBothWays(double t) { return t < 0.5 ? 2 * t * t : (4 - 2 * t) * t - 1; }

/// The upper half starts at -3.5, where the usual curve is at 0.5.
double oddCubic(double t) { return t < 0.5 ? 4 * t * t * t : 1 + 4 * (t - 1) * (t - 2) * (t - 2); }

double cubicEnd(double t) { return std::pow(t - 1, 3) + 1; }
double quadEnd(double t) { return t * (2 - t); }

TEST(Easing, FollowsItsFormulas) {
    expectFormula(easeLinear, power(1));
    expectFormula(easeInQuad, power(2));
    expectFormula(easeOutQuad, quadEnd);
    expectFormula(easeInOutQuad, quadBothWays);
    expectFormula(easeInCubic, power(3));
    expectFormula(easeOutCubic, cubicEnd);
    expectFormula(easeInOutCubic, oddCubic);
}

TEST(Easing, OfACubicBothWaysJumpsInTheMiddle) {
    EXPECT_EQ(easeInOutCubic(0.5F), -3.5F);
    EXPECT_EQ(easeInOutCubic(0.75F), -0.5625F);
    EXPECT_EQ(easeInOutCubic(1.0F), 1.0F);
    EXPECT_NEAR(easeInOutCubic(0.4999F), 0.5, 1e-3);
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("கன_மாற்றம்")(0.5F), 0.5F) << "that one is the usual";
}

TEST(Easing, HasOtherNames) {
    const struct {
        std::vector<const char*> names;
        Formula formula;
    } rows[] = {
        {{"ease_in", "easeIn", "மெதுவா_தொடங்கு"}, power(2)},
        {{"ease_out", "easeOut", "மெதுவா_முடி"}, quadEnd},
        {{"ease_in_out", "easeInOut", "மெதுவா_தொடங்கி_முடி"}, quadBothWays},
        {{"ease_in_cubic", "easeInCubic"}, power(3)},
        {{"ease_out_cubic", "easeOutCubic"}, cubicEnd},
        {{"ease_in_out_cubic", "easeInOutCubic"}, oddCubic},
    };
    for (const auto& row : rows) {
        for (const char* name : row.names) {
            SCOPED_TRACE(name);
            expectFormula(getEasingFunction(name), row.formula);
        }
    }
}

TEST(Easing, LeadsFromStartToTarget) {
    EXPECT_EQ(lerp(10, 20, 0), 10);
    EXPECT_EQ(lerp(10, 20, 0.25F), 12.5F);
    EXPECT_EQ(lerp(10, 20, 1), 20);
    EXPECT_EQ(lerp(20, 10, 0.25F), 17.5F);
    EXPECT_EQ(lerp(10, 20, 1.5F), 25) << "a curve may overshoot";
}

TEST(AnimationState, StartsAtRest) {
    const AnimationState state;
    EXPECT_EQ(state.startTime, 0.0);
    EXPECT_FALSE(state.isRunning);
    EXPECT_EQ(state.currentProgress, 0.0F);
    EXPECT_FALSE(state.hasTriggered);
}

TEST(AnimationState, DoesNotMoveWhereThereIsNoClock) {
    g_animationStates.clear();
    updateAnimationProgress(1, 5);
    updateAnimationProgress(1, 5);
    EXPECT_TRUE(g_animationStates[1].isRunning);
    EXPECT_EQ(g_animationStates[1].startTime, 0.0);
    EXPECT_EQ(g_animationStates[1].currentProgress, 0.0F);
    EXPECT_EQ(applyAnimation(1, 5, "மெது_தொடக்கம்", 10, 20), 10);
    g_animationStates[1].currentProgress = 0.5F;
    updateAnimationProgress(1, 0);
    EXPECT_EQ(g_animationStates[1].currentProgress, 0.5F) << "no duration, no step";
}

}  // namespace
