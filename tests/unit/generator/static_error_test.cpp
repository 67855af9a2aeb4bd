// The text of a refusal without a line.
#include "generator/static_error.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "error_codes.h"

namespace {

std::string textOf(const std::string& code, const std::string& detail) {
    try {
        throw_static_error(code, detail);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

TEST(StaticError, JoinsCodeMeaningFixAndDetail) {
    const பிழைதகவல்& entry = பிழை_அகராதி.at("பொழில்-331");
    const std::string text = "பொழில்-331: " + entry.விளக்கம் + " - " + entry.தீர்வு;
    EXPECT_EQ(textOf("பொழில்-331", "விவரம்"), text + " (விவரம்)");
    EXPECT_EQ(textOf("பொழில்-331", ""), text) << "no brackets without a detail";
}

TEST(StaticError, TellsACodeThatTheCatalogueLacks) {
    EXPECT_EQ(textOf("பொழில்-999", "விவரம்"), "அறியப்படாத பிழைக் குறியீடு: பொழில்-999");
}

}  // namespace
