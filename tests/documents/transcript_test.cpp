#include "transcript.h"

#include <gtest/gtest.h>

namespace {

TEST(Transcript, TakesWhatIsTypedOut) {
    const Transcript parts = readTranscript("பெயர்? ⌨ கமலா\nவணக்கம் கமலா\nவயது? ⌨ 9\n");
    EXPECT_EQ(parts.typed, "கமலா\n9\n");
    EXPECT_EQ(parts.printed, "பெயர்? வணக்கம் கமலா\nவயது? ");
}

TEST(Transcript, LetsAPatternStandForAnythingInALine) {
    EXPECT_TRUE(isLike("நேரம்: 10:20\nமுடிந்தது\n", "நேரம்: ⋯:⋯\nமுடிந்தது\n"));
    EXPECT_TRUE(isLike("1 முதல் 6\n", "⋯ முதல் 6\n"));
    EXPECT_FALSE(isLike("நேரம்: 10:20\n", "நேரம்: ⋯:⋯ மணி\n"));
    EXPECT_FALSE(isLike("இன்று நேரம்: 1\n", "நேரம்: ⋯\n"));
    EXPECT_FALSE(isLike("அ\nஆ\n", "⋯\n"));
    EXPECT_FALSE(isLike("அஆ\n", "அ\n"));
}

TEST(Transcript, SplitsWhereTheReportBegins) {
    const std::string rule = "\033[1;31m-----\033[0m\n";
    const RunText text =
        splitAtReport("ஒன்று\n\n" + rule + "  🚨 [ \033[1;93mபொழில்-307\033[0m ]\n" + rule + "\n");
    EXPECT_EQ(text.printed, "ஒன்று\n");
    EXPECT_EQ(text.report, "-----\n  🚨 [ பொழில்-307 ]\n-----\n");
    EXPECT_EQ(splitAtReport("----\nஒன்று\n").report, "");
}

}  // namespace
