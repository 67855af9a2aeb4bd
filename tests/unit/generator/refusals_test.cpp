// The generator's two ways to refuse.
#include <gtest/gtest.h>

#include <stdexcept>

#include "generator/static_error.h"
#include "support/front_end.h"
#include "support/subprocess.h"

namespace {

const Program kNoProgram;
const char* const kSource = "முதல்\n\n  மூன்று\nநான்கு";

Generator newGenerator() { return Generator(kNoProgram, {}, {}, {}, kSource, "file.பொழில்"); }

Refusal refusalOf(const std::string& code, int line, const std::string& detail) {
    Generator generator(kNoProgram, {}, {}, {}, kSource, "file.பொழில்");
    try {
        generator.பிழை(code, line, detail);
    } catch (const Refusal& refusal) {
        return refusal;
    }
}

TEST(GeneratorRefusal, CarriesAllFields) {
    const Refusal refusal = refusalOf("பொழில்-315", 3, "");
    EXPECT_EQ(refusal.kind, SEMANTIC_ERROR);
    EXPECT_EQ(refusal.code, "பொழில்-315");
    EXPECT_EQ(refusal.message, "மாறிலியை (Constant) மாற்ற முயற்சி.");
    EXPECT_EQ(refusal.file, "file.பொழில்");
    EXPECT_EQ(refusal.line, 3);
    EXPECT_EQ(refusal.lineText, "  மூன்று");
    EXPECT_EQ(refusal.fix, "ஒருமுறை முடிவு செஞ்ச மதிப்ப ('=' மூலம்) மீண்டும் மாற்ற முடியாது மச்சி!");
}

TEST(GeneratorRefusal, PutsDetailInBrackets) {
    EXPECT_EQ(refusalOf("பொழில்-315", 1, "அளவு").message, "மாறிலியை (Constant) மாற்ற முயற்சி. (அளவு)");
}

TEST(GeneratorRefusal, AtALineThatIsNotThereShowsNoText) {
    EXPECT_EQ(refusalOf("பொழில்-315", 0, "").lineText, "");
    EXPECT_EQ(refusalOf("பொழில்-315", 5, "").lineText, "");
}

TEST(GeneratorRefusal, OfACodeThatTheCatalogueLacksEndsTheProcess) {
    const ProcessResult result =
        runForked([]() -> int { newGenerator().பிழை("பொழில்-999", 1, "அ"); });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "பொழில்-399: அறியப்படாத பிழை (பொழில்-999)\n");
}

TEST(GeneratorLineText, CountsFromOne) {
    Generator generator(kNoProgram, {}, {}, {}, kSource, "");
    EXPECT_EQ(generator.getLineText(1), "முதல்");
    EXPECT_EQ(generator.getLineText(2), "");
    EXPECT_EQ(generator.getLineText(3), "  மூன்று");
    EXPECT_EQ(generator.getLineText(4), "நான்கு");
}

TEST(GeneratorLineText, IsEmptyWhereThereIsNoLine) {
    Generator generator(kNoProgram, {}, {}, {}, kSource, "");
    EXPECT_EQ(generator.getLineText(0), "");
    EXPECT_EQ(generator.getLineText(-1), "");
    EXPECT_EQ(generator.getLineText(5), "");
    Generator empty(kNoProgram, {}, {}, {}, "", "");
    EXPECT_EQ(empty.getLineText(1), "");
}

/// What the exception that `action` ends in says.
template <typename Action>
std::string messageOf(Action action) {
    try {
        action();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing was thrown";
}

TEST(StaticError, TellsMeaningAndFix) {
    EXPECT_EQ(messageOf([] { throw_static_error("பொழில்-204", ""); }),
              "பொழில்-204: எதிர்பார்க்கப்பட்ட ')' விடுபட்டுள்ளது. - "
              "திறந்த அடைப்புக்குறியைச் சரியாக மூடினால் பொழில் ஓடும்!");
}

TEST(StaticError, PutsDetailInBrackets) {
    EXPECT_EQ(messageOf([] { throw_static_error("பொழில்-204", "அளவு"); }),
              "பொழில்-204: எதிர்பார்க்கப்பட்ட ')' விடுபட்டுள்ளது. - "
              "திறந்த அடைப்புக்குறியைச் சரியாக மூடினால் பொழில் ஓடும்! (அளவு)");
}

TEST(StaticError, OfACodeThatTheCatalogueLacksSaysSo) {
    EXPECT_EQ(messageOf([] { throw_static_error("பொழில்-999", "அளவு"); }),
              "அறியப்படாத பிழைக் குறியீடு: பொழில்-999");
}

/// What no visitor knows.
struct UnknownStatement : Statement {};
struct UnknownExpression : Expression {};

const std::string kUnknown =
    "பொழில்-399: அறியப்படாத பிழை (Unknown Error). - "
    "ஏதோ ஒன்னு தப்பா ஆகிடுச்சு மச்சி, கோடை ஒருவாட்டி ஆழமா செக் பண்ணு! ";

TEST(UnknownNode, AsAStatementIsRefused) {
    const UnknownStatement statement;
    EXPECT_EQ(messageOf([&] { newGenerator().visitStatement(&statement); }),
              kUnknown + "(Unknown statement type in generator)");
}

TEST(UnknownNode, AsAnExpressionIsRefused) {
    const UnknownExpression expression;
    EXPECT_EQ(messageOf([&] { newGenerator().visitExpression(&expression); }),
              kUnknown + "(Unknown expression type in generator)");
}

TEST(UnknownNode, InAProgramIsRefused) {
    Program program;
    program.statements.push_back(std::make_unique<UnknownStatement>());
    EXPECT_EQ(messageOf([&] { Generator(program, {}, {}, {}, "", "").generate(); }),
              kUnknown + "(Unknown statement type in generator)");
}

}  // namespace
