// The variables and structures that every generated program begins with.
#include <gtest/gtest.h>

#include "emitted/placeholders.h"
#include "emitted_in_order.h"

namespace {

TEST(Globals, StartEmpty) {
    EXPECT_TRUE(global_vars.empty());
    EXPECT_TRUE(g_inputErrors.empty());
    EXPECT_TRUE(g_kaatchi_nilai.empty());
    EXPECT_TRUE(g_alert_names.empty());
    EXPECT_FALSE(g_block_background_clicks);
    EXPECT_FALSE(g_inside_overlay);
    EXPECT_FALSE(fn_return_value.has_value());
    EXPECT_TRUE(g_overlays.empty());
    EXPECT_TRUE(g_inputValues.empty());
    EXPECT_TRUE(g_inputCursorPos.empty());
    EXPECT_EQ(g_focusedInput, "");
    EXPECT_TRUE(g_inputSelected.empty());
}

TEST(Globals, KnowTheScreen) {
    EXPECT_EQ(திரை_அகலம், 1280.0F);
    EXPECT_EQ(திரை_உயரம், 720.0F);
}

TEST(Navigation, ShowsThePageItWasSentTo) {
    EXPECT_EQ(g_currentPage, "home");
    செல்க("மற்றொரு பக்கம்");
    EXPECT_EQ(g_currentPage, "மற்றொரு பக்கம்");
    g_currentPage = "home";
}

TEST(Structures, AreDestroyedThroughTheirBase) {
    struct Child : _StructBase {
        bool* destroyed;
        explicit Child(bool* flag) : destroyed(flag) {}
        ~Child() override { *destroyed = true; }
    };
    bool destroyed = false;
    std::unique_ptr<_StructBase> structure = std::make_unique<Child>(&destroyed);
    EXPECT_TRUE(structure->properties.empty());
    structure.reset();
    EXPECT_TRUE(destroyed);
}

}  // namespace
