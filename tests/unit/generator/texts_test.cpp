// Floats and strings as generated text, whatever the locale.
#include "writing/texts.h"

#include <gtest/gtest.h>

#include <locale>

#include "support/generated_text.h"

namespace {

/// A locale as some countries write numbers: 1.234,5.
class CommaNumbers : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
    std::string do_truename() const override { return "மெய்"; }
};

/// Makes it the global locale for as long as it lives.
class CommaLocale {
public:
    CommaLocale() : before(std::locale::global({std::locale::classic(), new CommaNumbers})) {}
    ~CommaLocale() { std::locale::global(before); }

private:
    std::locale before;
};

TEST(FloatText, HasThreeDecimalsAndASuffix) {
    EXPECT_EQ(to_fstr(1.5F), "1.500f");
    EXPECT_EQ(to_fstr(0.0F), "0.000f");
    EXPECT_EQ(to_fstr(-1.0F), "-1.000f");
    EXPECT_EQ(to_fstr(1280.0F), "1280.000f");
    EXPECT_EQ(to_fstr(0.12345F), "0.123f");
    EXPECT_EQ(to_fstr(0.9999F), "1.000f");
    EXPECT_EQ(to_fstr(1234567.0F), "1234567.000f");
}

TEST(FloatText, IsTheSameInEveryLocale) {
    const CommaLocale locale;
    EXPECT_EQ((std::ostringstream() << 1234.5).str(), "1.234,5");
    EXPECT_EQ(to_fstr(1234.5F), "1234.500f");
}

TEST(GeneratedText, IsTheSameInEveryLocale) {
    const std::string source = "அச்சிடு(1234567, 1234.5, \"அ\", மெய்)\n";
    const std::string expected = generate(source);
    const CommaLocale locale;
    EXPECT_EQ(generate(source), expected);
}

TEST(GeneratedText, WritesFloatsInTheClassicLocale) {
    const CommaLocale locale;
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    generator.generate();
    generator.out.str("");
    generator.out << 1280.5F;
    EXPECT_EQ(generator.out.str(), "1280.5");
}

TEST(Quoting, EscapesQuotesAndBackslashes) {
    EXPECT_EQ(quoted("கோப்பு.பொழில்"), "\"கோப்பு.பொழில்\"");
    EXPECT_EQ(quoted(""), "\"\"");
    EXPECT_EQ(quoted(R"(a"b\c)"), R"("a\"b\\c")");
}

TEST(GeneratorStart, HoldsNothing) {
    const Program program;
    const Generator generator(program, {}, {}, {}, "source", "file");
    EXPECT_EQ(&generator.program, &program);
    EXPECT_EQ(generator.out.str(), "");
    EXPECT_EQ(generator.currentStruct, "");
    EXPECT_EQ(generator.currentFunction, "");
    EXPECT_EQ(generator.sourceText, "source");
    EXPECT_EQ(generator.filename, "file");
    EXPECT_EQ(generator.indentLevel, 0);
    EXPECT_TRUE(generator.variableTypes.empty());
    EXPECT_TRUE(generator.structNames.empty());
    EXPECT_TRUE(generator.constants.empty());
    EXPECT_TRUE(generator.localVariables.empty());
}

}  // namespace
