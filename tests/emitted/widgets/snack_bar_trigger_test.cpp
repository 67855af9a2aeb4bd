// The trigger of a message, from its template: what it stores, and that the frame shows it.
#include "emitted/widgets/placeholders/snack_bar_trigger.h"

#include <algorithm>

#include "emitted/widgets/surroundings.h"

namespace {
#include "emitted/widgets/snack_bar_trigger.cpp"

class SnackBarTriggerTest : public Surroundings {
protected:
    template <typename Value>
    static Value stored(const char* name) {
        return std::any_cast<Value>(global_vars.at(name));
    }
};

TEST_F(SnackBarTriggerTest, StoresWhatTheFrameReads) {
    browser().now = 1234.5;
    snack_bar_trigger();
    EXPECT_TRUE(stored<bool>("active_sb"));
    EXPECT_EQ(stored<double>("sb_start_time"), 1234.5);
    EXPECT_EQ(stored<float>("sb_y_pos"), -100.0F);
    EXPECT_EQ(stored<std::string>("sb_msg"), "வணக்கம்");
    EXPECT_EQ(stored<int>("sb_bg_r"), 51);
    EXPECT_EQ(stored<int>("sb_bg_g"), 102);
    EXPECT_EQ(stored<int>("sb_bg_b"), 153);
}

TEST_F(SnackBarTriggerTest, IsShownByTheFrame) {
    snack_bar_trigger();
    const Calls calls = frame();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "nvgFillColor(rgba(51, 102, 153, 255))"), 1);
}

}  // namespace
