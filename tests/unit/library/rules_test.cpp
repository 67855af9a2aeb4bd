// The rules themselves: each complains about what breaks it, so that silence means something.
#include "rules.h"

#include <gtest/gtest.h>

#include "support/front_end.h"

namespace {

/// A function `பெ_அ(x)` with this body, a line each.
Program withBody(const std::vector<std::string>& lines) {
    std::string source = "செயல் பெ_அ(x):\n";
    for (const std::string& line : lines) source += "    " + line + "\n";
    return std::move(parse(source).program);
}

TEST(LibraryRules, StatementsThatRun) {
    EXPECT_EQ(statementsThatRun(withBody({"திரும்பு x"})), Complaints());
    EXPECT_EQ(statementsThatRun(parse("a = 1\nஅச்சிடு(a)\n").program),
              Complaints({"2 statements that aren't functions"}));
}

TEST(LibraryRules, CallsOfUnknownNames) {
    EXPECT_EQ(callsOutOfReach(withBody({"திரும்பு நீளம்(x)"})), Complaints());
    EXPECT_EQ(callsOutOfReach(withBody({"திரும்பு x(1)"})), Complaints());
    EXPECT_EQ(callsOutOfReach(withBody({"திரும்பு பெ_ஆ(x)"})),
              Complaints({"பெ_அ: can't call 'பெ_ஆ'"}));
    EXPECT_EQ(callsOutOfReach(withBody({"திரும்பு எடு(x, 0)"})),
              Complaints({"பெ_அ: can't call 'எடு'"}));
}

TEST(LibraryRules, CallsOfThemselvesAndOfLaterFunctions) {
    EXPECT_EQ(callsOutOfReach(withBody({"திரும்பு பெ_அ(x)"})),
              Complaints({"பெ_அ: can't call 'பெ_அ'"}));
    const std::string first = "செயல் பெ_அ(x):\n    திரும்பு பெ_ஆ(x)\n";
    const std::string second = "செயல் பெ_ஆ(x):\n    திரும்பு x\n";
    EXPECT_EQ(callsOutOfReach(parse(second + first).program), Complaints());
    EXPECT_EQ(callsOutOfReach(parse(first + second).program),
              Complaints({"பெ_அ: can't call 'பெ_ஆ'"}));
}

TEST(LibraryRules, CallsWithAWrongCount) {
    EXPECT_EQ(callsOutOfReach(withBody({"திரும்பு நீளம்(x, x)"})),
              Complaints({"பெ_அ: wrong count for நீளம்"}));
    const std::string callee = "செயல் பெ_ஆ(x):\n    திரும்பு x\n";
    EXPECT_EQ(callsOutOfReach(parse(callee + "செயல் பெ_அ():\n    திரும்பு பெ_ஆ()\n").program),
              Complaints({"பெ_அ: wrong count for பெ_ஆ"}));
}

TEST(LibraryRules, CallsAnywhereInABody) {
    const Complaints unknown = {"பெ_அ: can't call 'f'"};
    EXPECT_EQ(callsOutOfReach(withBody({"எனில் f():", "    விடு"})), unknown);
    EXPECT_EQ(callsOutOfReach(withBody({"எனில் x:", "    விடு", "இல்லை:", "    f()"})), unknown);
    EXPECT_EQ(callsOutOfReach(withBody({"சுற்று x:", "    f()"})), unknown);
    EXPECT_EQ(callsOutOfReach(withBody({"ஒவ்வொன்றாக y இல் f():", "    விடு"})), unknown);
    EXPECT_EQ(callsOutOfReach(withBody({"தேர்வு x:", "    நிலை f():", "        விடு"})), unknown);
    EXPECT_EQ(callsOutOfReach(withBody({"முயற்சி:", "    விடு", "பிடி:", "    f()"})), unknown);
    EXPECT_EQ(callsOutOfReach(withBody({"திரும்பு [x[{\"a\": (1 கூட்டு f())}]]"})), unknown);
    EXPECT_EQ(callsOutOfReach(withBody({"x = y => குறை f()"})), unknown);
}

TEST(LibraryRules, FunctionsInsideFunctions) {
    EXPECT_EQ(callsOutOfReach(withBody({"செயல் பெ_உ(y):", "    திரும்பு y"})),
              Complaints({"பெ_அ: a function inside a function"}));
}

TEST(LibraryRules, ShadowedNames) {
    EXPECT_EQ(shadowedNames(parse("செயல் நீளம்(x):\n    திரும்பு x\n").program),
              Complaints({"நீளம்: a built-in's name"}));
    EXPECT_EQ(shadowedNames(withBody({"எண் = 1"})), Complaints({"எண்: a built-in's name"}));
    EXPECT_EQ(shadowedNames(withBody({"பெ_அ = 1"})),
              Complaints({"பெ_அ: a function and a variable"}));
    const std::string function = "செயல் பெ_அ():\n    விடு\n";
    EXPECT_EQ(shadowedNames(parse(function + function).program),
              Complaints({"பெ_அ: defined twice"}));
}

TEST(LibraryRules, MembersOfUnknownValues) {
    EXPECT_EQ(memberAccess(withBody({"திரும்பு x.பெயர்"})), Complaints({"பெ_அ: reads .பெயர்"}));
    EXPECT_EQ(memberAccess(withBody({"திரும்பு x.மணி"})), Complaints({"பெ_அ: reads .மணி"}));
    EXPECT_EQ(memberAccess(withBody({"x.பெயர் = 1"})), Complaints({"பெ_அ: sets a member"}));
    EXPECT_EQ(memberAccess(withBody({"x.நீக்கு(1)"})), Complaints({"பெ_அ: reads .நீக்கு"}));
    EXPECT_EQ(memberAccess(withBody({"x.சேர்(1, 2)"})), Complaints({"பெ_அ: reads .சேர்"}));
    EXPECT_EQ(memberAccess(withBody({"x.சேர்(1)"})), Complaints());
}

TEST(LibraryRules, FieldsOfATimeJustTaken) {
    const std::string take = "பெ_த = இப்போதுநேரம்()";
    EXPECT_EQ(memberAccess(withBody({take, "திரும்பு பெ_த.மணி"})), Complaints());
    EXPECT_EQ(memberAccess(withBody({take, "பெ_த = 1", "திரும்பு பெ_த.மணி"})),
              Complaints({"பெ_அ: reads .மணி"}));
    EXPECT_EQ(memberAccess(withBody({take, "திரும்பு பெ_த.பெயர்"})),
              Complaints({"பெ_அ: reads .பெயர்"}));
}

TEST(LibraryRules, NamesWithoutThePrefix) {
    EXPECT_EQ(namesWithoutPrefix(withBody({"பெ_த = x"}), "பெ_"), Complaints());
    EXPECT_EQ(namesWithoutPrefix(withBody({"t = x"}), "பெ_"), Complaints({"t: assigned"}));
    EXPECT_EQ(namesWithoutPrefix(withBody({"x = 1"}), "பெ_"), Complaints({"x: assigned"}));
    EXPECT_EQ(namesWithoutPrefix(withBody({"x(1)"}), "பெ_"), Complaints({"x: called parameter"}));
    EXPECT_EQ(namesWithoutPrefix(withBody({"விடு"}), "மே_"), Complaints({"பெ_அ: function"}));
    const Program attempt = withBody({"முயற்சி:", "    விடு", "பிடி (e):", "    விடு"});
    EXPECT_EQ(namesWithoutPrefix(attempt, "பெ_"), Complaints({"e: assigned"}));
}

TEST(LibraryRules, SharedNamesLeaveOutParametersAndLoopVariables) {
    const Program program = withBody({"ஒவ்வொன்றாக y இல் x:", "    பெ_த = y", "x = 1", "y = 2"});
    EXPECT_EQ(sharedNames(program), std::vector<std::string>({"பெ_த"}));
}

TEST(LibraryRules, WalksOverWhatIsNoVariable) {
    EXPECT_EQ(brokenWalks(withBody({"ஒவ்வொன்றாக y இல் x:", "    விடு"})), Complaints());
    EXPECT_EQ(brokenWalks(withBody({"ஒவ்வொன்றாக y இல் வரம்பு(3):", "    விடு"})), Complaints());
    const Complaints broken = {"பெ_அ: no variable"};
    EXPECT_EQ(brokenWalks(withBody({"ஒவ்வொன்றாக y இல் [1]:", "    விடு"})), broken);
    EXPECT_EQ(brokenWalks(withBody({"ஒவ்வொன்றாக y இல் பிளவு(x, \",\"):", "    விடு"})), broken);
    EXPECT_EQ(brokenWalks(withBody({"ஒவ்வொன்றாக y இல் x[0]:", "    விடு"})), broken);
}

TEST(LibraryRules, RangesOutsideAWalk) {
    EXPECT_EQ(brokenWalks(withBody({"திரும்பு வரம்பு(3)"})),
              Complaints({"பெ_அ: a range outside a walk"}));
}

TEST(LibraryRules, AssignmentsToALoopVariable) {
    EXPECT_EQ(brokenWalks(withBody({"ஒவ்வொன்றாக y இல் வரம்பு(3):", "    y = 1"})),
              Complaints({"பெ_அ: assigns y"}));
}

TEST(LibraryRules, BareLengths) {
    EXPECT_EQ(misusedValues(withBody({"திரும்பு நீளம்(x) கூட்டு 1"})), Complaints());
    EXPECT_EQ(misusedValues(withBody({"திரும்பு நீளம்(x) கழி 1"})),
              Complaints({"பெ_அ: a length in கழி"}));
    EXPECT_EQ(misusedValues(withBody({"திரும்பு 2 பெருக்கு (நீளம்(x))"})),
              Complaints({"பெ_அ: a length in பெருக்கு"}));
    const Complaints index = {"பெ_அ: a length as an index"};
    EXPECT_EQ(misusedValues(withBody({"திரும்பு x[நீளம்(x)]"})), index);
    EXPECT_EQ(misusedValues(withBody({"x[நீளம்(x)] = 1"})), index);
}

TEST(LibraryRules, TextsThatReadAsColours) {
    EXPECT_EQ(misusedValues(withBody({"திரும்பு \"#\""})),
              Complaints({"பெ_அ: a text that reads as a colour"}));
}

TEST(LibraryRules, ReturnsAgainstTheName) {
    const auto returning = [](const std::string& name, const std::string& value) {
        return kindMistakes(parse("செயல் " + name + "(x):\n    திரும்பு " + value + "\n").program);
    };
    const auto broken = [](const std::string& name) {
        return Complaints({name + ": returns another kind than its name says"});
    };
    EXPECT_EQ(returning("பெ_எண்", "\"அ\""), broken("பெ_எண்"));
    EXPECT_EQ(returning("பெ_எண்ணிக்கை", "[1]"), broken("பெ_எண்ணிக்கை"));
    EXPECT_EQ(returning("பெ_எண்", "நீளம்(x)"), Complaints());
    EXPECT_EQ(returning("பெ_உரை", "1"), broken("பெ_உரை"));
    EXPECT_EQ(returning("பெ_உரை", "1 இணை \"அ\""), Complaints());
    EXPECT_EQ(returning("பெ_பட்டியல்", "\"அ\""), broken("பெ_பட்டியல்"));
    EXPECT_EQ(returning("பெ_பட்டியல்", "பிளவு(x, \",\")"), Complaints());
    EXPECT_EQ(returning("பெ_பட்டியல்", "x"), Complaints());
}

TEST(LibraryRules, ReturnsOfVariables) {
    const std::string head = "செயல் பெ_உரை():\n";
    EXPECT_EQ(kindMistakes(parse(head + "    பெ_த = 1\n    திரும்பு பெ_த\n").program),
              Complaints({"பெ_உரை: returns another kind than its name says"}));
    EXPECT_EQ(kindMistakes(parse(head + "    பெ_த = \"\"\n    திரும்பு பெ_த\n").program),
              Complaints());
}

TEST(LibraryRules, ArithmeticOnTextsAndLists) {
    EXPECT_EQ(kindMistakes(withBody({"திரும்பு \"1\" கூட்டு 1"})),
              Complaints({"பெ_அ: கூட்டு on a text and a number"}));
    EXPECT_EQ(kindMistakes(withBody({"பெ_த = []", "திரும்பு பெ_த கூட்டு x"})),
              Complaints({"பெ_அ: கூட்டு on a list, map or object"}));
    EXPECT_EQ(kindMistakes(withBody({"திரும்பு x கூட்டு 1"})), Complaints());
}

}  // namespace
