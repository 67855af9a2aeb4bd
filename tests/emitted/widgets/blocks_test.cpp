// Each widget's whole text that tests/widgets holds, and each template with its switches on and
// off, is compiled behind the emitted text, and run.
#include <algorithm>
#include <map>

#include "emitted/widgets/surroundings.h"

namespace {

class BlockTest : public Surroundings, public testing::WithParamInterface<application::Block> {
protected:
    static long count(const Calls& calls, const std::string& call) {
        return std::count(calls.begin(), calls.end(), call);
    }

    /// The height of a column's last share stays forced where nothing around the column restores
    /// it.
    static bool leavesAShare(const std::string& name) {
        return name == "column_shares_of_the_page";
    }

    /// What must hold after each block, whatever it draws.
    static void expectOrder(const std::string& name, const Calls& calls) {
        EXPECT_EQ(count(calls, "nvgSave()"), count(calls, "nvgRestore()"));
        EXPECT_EQ(count(calls, "without the context:"), 0);
        EXPECT_EQ(count(calls, "without the window:"), 0);
        for (const std::string& call : calls) {
            EXPECT_EQ(call.rfind("a script with ", 0), std::string::npos) << call;
        }
        EXPECT_EQ(forcedW, -1.0F);
        EXPECT_EQ(forcedH == -1.0F, !leavesAShare(name)) << forcedH;
        EXPECT_EQ(g_currentClipX, -1.0F);
        EXPECT_EQ(g_currentClipY, -1.0F);
        EXPECT_EQ(g_currentClipW, -1.0F);
        EXPECT_EQ(g_currentClipH, -1.0F);
    }
};

TEST_P(BlockTest, LeavesTheFrameAsItFoundIt) {
    expectOrder(GetParam().name, frame(GetParam().draw));
}

TEST_P(BlockTest, LeavesTheFrameAsItFoundItWhereverAClickFalls) {
    for (const double y : {5, 20, 40, 80, 160, 320, 599}) {
        for (const double x : {5, 20, 40, 80, 160, 320, 799}) {
            browser().window["mouseX"] = x;
            browser().window["mouseY"] = y;
            browser().window["mouseClicked"] = 1;
            browser().window["mouseDownState"] = 1;
            browser().window["wheelDelta"] = 30;
            browser().now += 16;
            expectOrder(GetParam().name, frame(GetParam().draw));
        }
    }
}

std::vector<application::Block> blocks() {
    using namespace application;
    std::vector<Block> all;
    for (const Block* table : {kBlocks, kTemplatesAllOn, kTemplatesAllOff}) {
        for (; table->name != nullptr; table++) all.push_back(*table);
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(All, BlockTest, testing::ValuesIn(blocks()),
                         [](const auto& block) { return block.param.name; });

}  // namespace
