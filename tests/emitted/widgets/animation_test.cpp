// The animation of a button or a box: each condition, and each target on its way.
#include "emitted/widgets/placeholders/animation.h"

#include "emitted/widgets/blocks.h"
#include "emitted/widgets/surroundings.h"

namespace {

std::string condition;
bool isHover;
float left, top, width, height, radius;
NVGcolor colour;

}  // namespace

// 100 milliseconds: six frames, and three are half way.
#undef POZHIL_TRIGGER
#define POZHIL_TRIGGER condition
#undef POZHIL_DURATION
#define POZHIL_DURATION 100.0F
#define POZHIL_HAS_WIDTH 1
#define POZHIL_HAS_HEIGHT 1
#define POZHIL_HAS_RADIUS 1
#define POZHIL_HAS_SCALE 0
#define POZHIL_HAS_SHIFT_X 0
#define POZHIL_HAS_SHIFT_Y 0
#define POZHIL_HAS_COLOUR 1
namespace sized {
#include "emitted/widgets/animation.cpp"
}
#undef POZHIL_CURVE
#define POZHIL_CURVE "ease_in"
#undef POZHIL_HAS_WIDTH
#define POZHIL_HAS_WIDTH 0
#undef POZHIL_HAS_HEIGHT
#define POZHIL_HAS_HEIGHT 0
#undef POZHIL_HAS_RADIUS
#define POZHIL_HAS_RADIUS 0
#undef POZHIL_HAS_COLOUR
#define POZHIL_HAS_COLOUR 0
#undef POZHIL_HAS_SCALE
#define POZHIL_HAS_SCALE 1
namespace scaled {
#include "emitted/widgets/animation.cpp"
}
#undef POZHIL_HAS_SCALE
#define POZHIL_HAS_SCALE 0
#undef POZHIL_HAS_SHIFT_X
#define POZHIL_HAS_SHIFT_X 1
#undef POZHIL_HAS_SHIFT_Y
#define POZHIL_HAS_SHIFT_Y 1
namespace shifted {
#include "emitted/widgets/animation.cpp"
}
#undef POZHIL_HAS_WIDTH
#define POZHIL_HAS_WIDTH 1
#undef POZHIL_HAS_SCALE
#define POZHIL_HAS_SCALE 1
#undef POZHIL_CURVE
#define POZHIL_CURVE "linear"
namespace all {
#include "emitted/widgets/animation.cpp"
}

namespace {

class AnimationTest : public Surroundings {
protected:
    AnimationTest() {
        condition = "hover";
        isHover = true;
    }

    /// The last of `frames` frames: each begins with a widget of 30 by 40 pixels at 10, 20.
    static void run(int frames, void (*block)()) {
        for (int i = 0; i < frames; i++) {
            left = 10;
            top = 20;
            width = 30;
            height = 40;
            radius = 5;
            colour = {0, 0, 0, 0};
            block();
        }
    }

    /// How far it is, by its width between 30 and 60.
    static float progress() { return (width - 30) / 30; }

    static void expectPlace(float x, float y, float w, float h) {
        EXPECT_FLOAT_EQ(left, x);
        EXPECT_FLOAT_EQ(top, y);
        EXPECT_FLOAT_EQ(width, w);
        EXPECT_FLOAT_EQ(height, h);
    }
};

TEST_F(AnimationTest, RunsWhileThePointerIsThereUnderThreeWords) {
    for (const char* word : {"மவுஸ்_மேலே", "hover", "சுட்டி_மேல்"}) {
        g_animationStates.clear();
        condition = word;
        isHover = true;
        run(3, sized::animation);
        EXPECT_FLOAT_EQ(progress(), 0.5F) << word;
        isHover = false;
        run(1, sized::animation);
        EXPECT_NEAR(progress(), 1.0 / 3, 1e-6) << word;
        run(5, sized::animation);
        EXPECT_EQ(progress(), 0) << word;
    }
}

TEST_F(AnimationTest, RunsByItselfOnceInView) {
    isHover = false;
    for (const char* word : {"தானாக", "auto"}) {
        g_animationStates.clear();
        condition = word;
        run(3, sized::animation);
        EXPECT_FLOAT_EQ(progress(), 0.5F) << word;
    }
}

TEST_F(AnimationTest, StaysAtItsStartUnderAnyOtherCondition) {
    for (const char* word : {"", "click", "Hover"}) {
        condition = word;
        run(10, sized::animation);
        EXPECT_EQ(progress(), 0) << word;
    }
}

TEST_F(AnimationTest, LeadsSizesRadiusAndColour) {
    run(3, sized::animation);
    expectPlace(10, 20, 45, 60);
    EXPECT_FLOAT_EQ(radius, 7.5F);
    EXPECT_FLOAT_EQ(colour.r, 0.5F);
    EXPECT_FLOAT_EQ(colour.a, 0.5F);
    run(3, sized::animation);
    expectPlace(10, 20, 60, 80);
    EXPECT_FLOAT_EQ(radius, 10);
    EXPECT_FLOAT_EQ(colour.r, 1);
}

TEST_F(AnimationTest, ScalesAroundItsMiddleAlongItsCurve) {
    run(3, scaled::animation);  // a quarter of the way from 1 to 1.5
    expectPlace(10 - 30 * 0.0625F, 20 - 40 * 0.0625F, 30 * 1.125F, 40 * 1.125F);
    run(3, scaled::animation);
    expectPlace(2.5F, 10, 45, 60);
}

TEST_F(AnimationTest, ShiftsByWhatItsTargetsSay) {
    run(3, shifted::animation);
    expectPlace(10 + 5 * 0.25F, 20 + 6 * 0.25F, 30, 40);
    run(3, shifted::animation);
    expectPlace(15, 26, 30, 40);
}

TEST_F(AnimationTest, ScalesTheWidthThatItHasReachedAndThenShifts) {
    run(6, all::animation);
    expectPlace(10 - 60 * 0.25F + 5, 20 - 40 * 0.25F + 6, 90, 60);
}

}  // namespace
