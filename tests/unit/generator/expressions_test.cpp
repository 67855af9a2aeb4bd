// Rows of expression and call tables, one by one; also those that no source leads to.
#include <gtest/gtest.h>

#include <stdexcept>

#include "error_codes.h"
#include "generator/generator.h"
#include "support/refusal.h"

namespace {

using Expressions = std::vector<std::unique_ptr<Expression>>;

std::unique_ptr<Expression> variable(const std::string& name) {
    return std::make_unique<VariableAccess>(name);
}

std::unique_ptr<CallExpression> callOf(std::unique_ptr<Expression> callee, int count) {
    Expressions arguments;
    for (int i = 0; i < count; i++) arguments.push_back(variable("அ"));
    auto call = std::make_unique<CallExpression>(std::move(callee), std::move(arguments));
    call->line = 7;
    return call;
}

std::string textOf(const Expression& expression) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "test.பொழில்");
    generator.visitExpression(&expression);
    return generator.out.str();
}

struct OperatorRow {
    const char* word;
    const char* sign;
};

const OperatorRow kOperators[] = {
    {"கூட்டு", "+"},      {"கழி", "-"},         {"பெருக்கு", "*"},      {"வகு", "/"},
    {"மீதி", "%"},        {"சமம்", "=="},        {"சமமில்லை", "!="},     {"பெரிது", ">"},
    {"சிறிது", "<"},     {"பெரிதுசமம்", ">="},  {"சிறிதுசமம்", "<="},   {"மற்றும்", "&&"},
    {"அல்லது", "||"},     {"இல்லை", "!"},        {"பெருக்குஇருமை", "&"}, {"கூட்டுஇருமை", "|"},
    {"எதிர்இருமை", "~"},  {"இடதுஇருமை", "<<"},  {"வலதுஇருமை", ">>"},   {"கூட்டிசேர்", "+="},
    {"கழிசேர்", "-="},    {"பெருக்குசேர்", "*="}, {"வகுசேர்", "/="},      {"மீதிசேர்", "%="},
    {"பெஇசேர்", "&="},    {"கூட்டுஇசேர்", "|="},  {"வேஇசேர்", "^="},      {"இடதுஇசேர்", "<<="},
    {"வலதுஇசேர்", ">>="}, {"ஒன்றுசேர்", "++"},    {"ஒன்றுகழி", "--"},     {"வேறுஇருமை", "^"},
};

TEST(OperatorTable, HasTheSignOfEachWord) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    for (const OperatorRow& row : kOperators) {
        EXPECT_EQ(generator.mapOperator(row.word), row.sign) << row.word;
    }
}

const OperatorRow kCompounds[] = {
    {"ஒன்றுசேர்", "+"},   {"கூட்டிசேர்", "+"}, {"+=", "+"},         {"ஒன்றுகழி", "-"},
    {"கழிசேர்", "-"},    {"-=", "-"},       {"பெருக்குசேர்", "*"}, {"*=", "*"},
    {"வகுசேர்", "/"},    {"/=", "/"},       {"மீதிசேர்", "%"},     {"%=", "%"},
    {"பெஇசேர்", "&"},    {"&=", "&"},       {"கூட்டுஇசேர்", "|"},  {"|=", "|"},
    {"வேஇசேர்", "^"},    {"^=", "^"},       {"இடதுஇசேர்", "<<"},  {"<<=", "<<"},
    {"வலதுஇசேர்", ">>"}, {">>=", ">>"},
};

TEST(CompoundAssignment, HasARowForEachWordAndSign) {
    for (const OperatorRow& row : kCompounds) {
        const AssignmentExpression assignment("அ", Token{TokenType::ASSIGN_OPERATOR, row.word, 1},
                                              std::make_unique<NumberLiteral>("2"));
        EXPECT_EQ(textOf(assignment),
                  "(global_vars[\"அ\"] = std::any(std::any_cast<long long>(global_vars[\"அ\"]) " +
                      std::string(row.sign) + " 2LL), global_vars[\"அ\"])")
            << row.word;
    }
}

TEST(DirectCall, TakesTheArityOfALambdaFromItsParameters) {
    auto lambda = std::make_unique<LambdaExpression>(
        std::vector<Token>{Token{TokenType::IDENTIFIER, "x", 1}}, variable("x"));
    EXPECT_EQ(textOf(*callOf(std::move(lambda), 2)),
              "std::any_cast<std::function<std::any(std::any)>>(std::function<std::any(std::any)>("
              "[=](std::any x) { return std::any(x); }))(std::any(global_vars[\"அ\"]), "
              "std::any(global_vars[\"அ\"]))");
}

TEST(DirectCall, TakesTheArityOfAGroupingFromTheArguments) {
    auto grouping = std::make_unique<GroupingExpression>(variable("f"));
    EXPECT_EQ(textOf(*callOf(std::move(grouping), 0)),
              "std::any_cast<std::function<std::any()>>((global_vars[\"f\"]))()");
}

TEST(Builtins, CosineHasItsRowThoughNoSourceCanSpellIt) {
    EXPECT_EQ(textOf(*callOf(variable("காஸ்"), 1)),
              "std::any(std::cos(std::any_cast<long double>(global_vars[\"அ\"])))");
    const பிழைதகவல்& entry = பிழை_அகராதி.at("பொழில்-331");
    try {
        textOf(*callOf(variable("காஸ்"), 2));
        FAIL() << "two arguments pass";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(error.what(), "பொழில்-331: " + std::string(entry.விளக்கம்) + " - " + entry.தீர்வு +
                                    " ('காஸ்' 1 argument மட்டுமே ஏற்கும்.)");
    }
}

struct CountRow {
    const char* name;
    int least;
    int most;
};

constexpr int kEndless = 9;

const CountRow kCounts[] = {
    {"இப்போதுநேரம்", 0, kEndless},
    {"என்னவகை", 1, 1},
    {"வரம்பு", 0, kEndless},
    {"நீளம்", 1, 1},
    {"உள்ளீடு", 0, 1},
    {"எண்", 1, 1},
    {"வை", 3, 3},
    {"நீக்கு", 2, 2},
    {"செல்க", 1, 1},
    {"நகர்த்து", 1, 1},
    {"சீரற்ற_எண்", 2, 2},
    {"எடு", 2, 2},
    {"வர்க்கமூலம்", 1, 1},
    {"அடுக்கு", 2, 2},
    {"தனிமதிப்பு", 1, 1},
    {"மேல்எண்", 1, 1},
    {"கீழ்எண்", 1, 1},
    {"சைன்", 1, 1},
    {"காஸ்", 1, 1},
    {"டேன்", 1, 1},
    {"மடக்கு", 1, 1},
    {"பிளவு", 2, 2},
    {"பதில்", 3, 3},
    {"பெரியஎ", 1, 1},
    {"சிறியஎ", 1, 1},
    {"கோப்பு_எழுது", 2, 2},
    {"கோப்பு_படி", 1, 1},
    {"கோப்பு_சேர்", 2, 2},
    {"கோப்பு_அழி", 1, 1},
    {"கோப்பு_உள்ளதா", 1, 1},
    {"தேதி", 0, 1},
    {"நேரம்", 0, 1},
    {"முழுவதும்", 0, 1},
};

TEST(Builtins, TakeTheirCountOfArgumentsAndNoOther) {
    for (const CountRow& row : kCounts) {
        for (int count = 0; count <= 5; count++) {
            const auto call = callOf(variable(row.name), count);
            if (count >= row.least && count <= row.most) {
                EXPECT_NO_THROW(textOf(*call)) << row.name << " with " << count;
            } else {
                EXPECT_ANY_THROW(textOf(*call)) << row.name << " with " << count;
            }
        }
    }
}

TEST(Builtins, CurrentTimeIgnoresItsArguments) {
    EXPECT_EQ(textOf(*callOf(variable("இப்போதுநேரம்"), 2)),
              textOf(*callOf(variable("இப்போதுநேரம்"), 0)));
}

TEST(IndexStore, LeavesFurtherArgumentsAlone) {
    EXPECT_EQ(
        textOf(*callOf(variable("_set_index_internal"), 4)),
        "(fn_index_ref(global_vars[\"அ\"], std::any(global_vars[\"அ\"]), \"test.பொழில்\", 7) = "
        "std::any(global_vars[\"அ\"]))");
}

}  // namespace
