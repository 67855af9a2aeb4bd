#include "programs_in_one.h"

#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

/// Two are refused for the same thing, which the native compiler says once.
TEST(ProgramsInOne, JudgesEachAsIfItStoodAlone) {
    const std::string sources[] = {
        "அச்சிடு(1 கூட்டு 2)\n",
        "x = 1\nஅச்சிடு(குறை x)\n",
        "அச்சிடு(வர்க்கமூலம்(4))\n",
        "x = 2\nஅச்சிடு(குறை x)\n",
        "அ = 5\nஅச்சிடு(1.5 பெருக்குஇருமை 2)\n",
    };
    ProgramsInOne programs("programs_in_one");
    for (const std::string& source : sources) programs.add(source, generate(source, kProgramName));

    const auto refused = programs.leaveOutRefused();
    EXPECT_EQ(refused.size(), 3U);
    EXPECT_NE(refused.at(1).find("no match for ‘operator-’"), std::string::npos) << refused.at(1);
    EXPECT_EQ(refused.count(3), 1U);
    EXPECT_EQ(refused.count(4), 1U);

    ASSERT_EQ(programs.build(), "");
    EXPECT_EQ(programs.run(0, "", 30).out, "3\n");
    EXPECT_NE(programs.run(2, "", 30).signal, 0);
}

TEST(ProgramsInOne, KnowsWhatANamespaceWouldHide) {
    const ProgramsInOne programs("programs_in_one_names");
    const auto meets = [&](const std::string& source) {
        return programs.meetsCommonName(generate(source, kProgramName));
    };
    EXPECT_TRUE(meets("செயல் நீளம்(சொல்):\n    திரும்பு 5\nஅச்சிடு(நீளம்(\"அணில்\"))\n"));
    EXPECT_TRUE(meets("கட்டமைப்பு CallTracker:\n    அ = 1\n"));
    EXPECT_FALSE(meets("செயல் நீளமானது(சொல்):\n    திரும்பு 5\nஅச்சிடு(நீளமானது(\"அணில்\"))\n"));
    EXPECT_FALSE(meets("கட்டமைப்பு பறவை:\n    அ = 1\nஅச்சிடு(நீளம்(\"அணில்\"))\n"));
}

TEST(ProgramsInOne, GivesEachItsInputAndAFolderWithItsSource) {
    const std::string source = "அச்சிடு(உள்ளீடு(\"\"))\nஅச்சிடு(கோப்பு_படி(\"நிரல்.பொழில்\"))\n";
    ProgramsInOne programs("programs_in_one_input");
    const int number = programs.add(source, generate(source, kProgramName));
    ASSERT_EQ(programs.build(), "");
    EXPECT_EQ(programs.run(number, "வணக்கம்\n", 30).out, "வணக்கம்\n" + source + "\n");
}

}  // namespace
