// What the real g++ says of texts that it refuses is understood: the line of the source, and the
// row that explains it.
#include <gtest/gtest.h>

#include "companion/run/afterword.h"
#include "files.h"
#include "support/native_program.h"

namespace {

bool readFromNowhere(const std::string&, std::string&) { return false; }

/// A source among those that only g++ refuses, and what stands behind g++'s words.
struct Understood {
    const char* name;
    const char* begin;
};

class NativeWords : public testing::TestWithParam<Understood> {};

TEST_P(NativeWords, AreUnderstood) {
    const std::string name = GetParam().name;
    const std::string path = std::string(POZHIL_ROOT) + "/tests/native_refusals/" + name + ".பொழில்";
    const NativeProgram program("understood_" + name, path);
    const std::string words = program.checkSyntax().err;
    ASSERT_TRUE(companion::holdsRefusal(words)) << words;

    const companion::SourceText source(name + ".பொழில்", readText(path));
    const companion::CompiledSource compiled(source, readFromNowhere);
    const std::string text =
        companion::afterRefusal(words, companion::generateText(compiled), source);
    EXPECT_EQ(text.rfind("\n💡 " + std::string(GetParam().begin), 0), 0U) << text << words;
}

const Understood kUnderstood[] = {
    {"call_of_a_later_function", "வரி 2: திரும்பு அடுத்தது()\n   'அடுத்தது' என்ற செயல்"},
    {"counting_variable_assigned_in_a_function", "வரி 4: இ = 10\n   இங்கே வைக்கும் மதிப்பின் வகை"},
    {"digit_eight_behind_a_leading_zero", "வரி 1: அச்சிடு(08)\n   0-இல் தொடங்கும்"},
    {"function_defined_twice", "வரி 3: செயல் கூடு(ஆ):\n   'கூடு' என்ற பெயர் இருமுறை"},
    {"method_without_receiver", "வரி 3: செயல் ஓடு():\n   'கருவி_ஓடு' அழைப்பில்"},
    {"variable_as_ternary_condition", "வரி 2: அச்சிடு(x ? 1 : 2)\n   நிபந்தனை நிற்கும் இடத்தில்"},
    {"walk_over_a_result", "வரி 3: ஒவ்வொன்றாக உ இல் எண்கள்():\n   இங்கே ஒரு மாறியின் பெயர்"},
};

INSTANTIATE_TEST_SUITE_P(Refused, NativeWords, testing::ValuesIn(kUnderstood),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
