// Refusals that have no line: the text that the exception carries.
#include "static_error.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

std::string textOf(const std::string& code, const std::string& detail) {
    try {
        throw_static_error(code, detail);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

TEST(StaticError, JoinsCodeMeaningAndFix) {
    EXPECT_EQ(textOf("பொழில்-315", ""),
              "பொழில்-315: மாறிலியை (Constant) மாற்ற முயற்சி. - "
              "ஒருமுறை முடிவு செஞ்ச மதிப்ப ('=' மூலம்) மீண்டும் மாற்ற முடியாது மச்சி!");
}

TEST(StaticError, PutsDetailInBrackets) {
    EXPECT_EQ(textOf("பொழில்-315", "அளவு"), textOf("பொழில்-315", "") + " (அளவு)");
}

TEST(StaticError, KeepsTheBlankThatEndsAMeaning) {
    EXPECT_EQ(textOf("பொழில்-301", "cols"),
              "பொழில்-301: பூஜ்ஜியத்தால் வகுக்க முயற்சி  - "
              "மச்சி, ஒரு எண்ணை '0' ஆல வகுக்க முடியாது, வகுக்கும் எண்ணை மாத்து! (cols)");
}

TEST(StaticError, OfACodeThatTheCatalogueLacksNamesTheCodeAlone) {
    EXPECT_EQ(textOf("பொழில்-999", ""), "அறியப்படாத பிழைக் குறியீடு: பொழில்-999");
    EXPECT_EQ(textOf("பொழில்-999", "அளவு"), "அறியப்படாத பிழைக் குறியீடு: பொழில்-999");
}

}  // namespace
