// What the generator refuses: by report at a line, with its detail, or without a line.
#include <gtest/gtest.h>

#include <stdexcept>

#include "error_codes.h"
#include "support/deep_stack.h"
#include "support/generated_text.h"

namespace {

struct ReportRow {
    const char* source;
    const char* code;
    int line;
    const char* detail;  ///< What stands in brackets behind the meaning; "" for none.
};

class Reports : public testing::TestWithParam<ReportRow> {};

TEST_P(Reports, CodeLineAndDetail) {
    const ReportRow& row = GetParam();
    try {
        generate(row.source);
        FAIL() << row.source << "\nis not refused";
    } catch (const Refusal& refusal) {
        const std::string meaning = பிழை_அகராதி.at(row.code).விளக்கம்;
        const std::string detail = row.detail;
        EXPECT_EQ(refusal.code, row.code) << row.source;
        EXPECT_EQ(refusal.line, row.line) << row.source;
        EXPECT_EQ(refusal.message, detail.empty() ? meaning : meaning + " (" + detail + ")");
        EXPECT_EQ(refusal.kind, SEMANTIC_ERROR);
    }
}

const char* const kAccount =
    "கட்டமைப்பு கணக்கு:\n    ரகசிய இருப்பு = 5\n    செயல் சொல்(தான்):\n"
    "        திரும்பு தான்.இருப்பு\n";

const ReportRow kOperatorRows[] = {
    {"\nஅ = [1] கூட்டு 2\n", "பொழில்-304", 2, ""},
    {"அ = 2 கழி [1]\n", "பொழில்-304", 1, ""},
    {"அ = {} பெருக்கு 2\n", "பொழில்-304", 1, ""},
    {"அ = (x => x)\nஆ = x => x\nஇ = ஆ வகு 2\n", "பொழில்-304", 3, ""},
    {"அ = [1] மீதி 2\n", "பொழில்-304", 1, ""},
    {"அ = 1\nஆ = அ வகு 0\n", "பொழில்-301", 2, ""},
    {"ஆ = அ வகு 0.0\n", "பொழில்-301", 1, ""},
    {"ஆ = அ வகு 0.\n", "பொழில்-301", 1, ""},
    {"அ = 1 கூட்டு \"a\"\n", "பொழில்-303", 1, ""},
    {"அ = \"a\" கூட்டு 1\n", "பொழில்-303", 1, ""},
    {"அ = \"a\" பெருக்கு 1.5\n", "பொழில்-303", 1, ""},
    {"அ = 1.5 கழி \"a\"\n", "பொழில்-303", 1, ""},
    {"அ = 1\nஆ = \"a\"\nஇ = அ மீதி ஆ\n", "பொழில்-303", 3, ""},
    {"அ = 99999999999999999999\n", "பொழில்-305", 1, ""},
    // What is no number at all comes first, then the zero, then text beside number.
    {"அ = [1] வகு 0\n", "பொழில்-304", 1, ""},
    {"அ = \"a\" வகு 0\n", "பொழில்-301", 1, ""},
    {"அ = \"a\" வகு 2\n", "பொழில்-303", 1, ""},
    {"அ = \"a\" கூட்டு {}\n", "பொழில்-304", 1, ""},
    {"கட்டமைப்பு கருவி:\n    அளவை = 1\nஅ = கருவி() கூட்டு 1\n", "பொழில்-304", 3, ""},
};
INSTANTIATE_TEST_SUITE_P(Operators, Reports, testing::ValuesIn(kOperatorRows));

const ReportRow kAccessRows[] = {
    {"அச்சிடு(தான்)\n", "பொழில்-325", 1, ""},
    {"அ = self\n", "பொழில்-325", 1, ""},
    {"அ = 1\nஅச்சிடு(அ.பெயர்)\n", "பொழில்-304", 2, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது."},
    {"செயல் சே(அ):\n    திரும்பு அ.பெயர்\n", "பொழில்-304", 2,
     "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது."},
    // Functions are visited before the top level gives the name a kind.
    {"கட்டமைப்பு கணக்கு:\n    இருப்பு = 5\nசெயல் பார்():\n    திரும்பு க.இருப்பு\nக = கணக்கு()\n",
     "பொழில்-304", 4, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது."},
    {"நே = இப்போதுநேரம்()\nஅச்சிடு(நே.நூற்றாண்டு)\n", "பொழில்-304", 2,
     "நேரப் பொருளில் 'நூற்றாண்டு' என்ற பகுதி இல்லை."},
    {"நே = இப்போதுநேரம்()\nநே.ஆண்டு = 1\n", "பொழில்-322", 2, ""},
    {"அ = 1\nஅ.பெயர் = 1\n", "பொழில்-304", 2, "இந்த வகைக்குள் பண்புகளை மாற்ற முடியாது"},
    {"மாறிலி = 1\nமாறிலி = 2\n", "பொழில்-315", 2, ""},
    {"மாறிலி_எல்லை = 1\nமாறிலி_எல்லை = 2\n", "பொழில்-315", 2, ""},
    // A list walk writes its body twice, and with it the assignment.
    {"ஒவ்வொன்றாக இ இல் அ:\n    மாறிலி_எல்லை = 1\n", "பொழில்-315", 2, ""},
    {"மாறிலி_எல்லை = 1\nமாறிலி_எல்லை கூட்டிசேர் 2\n", "பொழில்-315", 2, ""},
    {"செயல் சே():\n    மாறிலி_எல்லை = 1\nமாறிலி_எல்லை = 2\n", "பொழில்-315", 3, ""},
    {"செயல் சே(அ):\n    அ.பெயர் = 1\n", "பொழில்-304", 2, "இந்த வகைக்குள் பண்புகளை மாற்ற முடியாது"},
    {"தான்.பெயர் = 1\n", "பொழில்-325", 1, ""},
    {"\nஅச்சிடு(காட்சி_நிலை.அளவை)\n", "பொழில்-304", 2,
     "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது."},
    {"அ = [1]\nஅச்சிடு(அ[0].பெயர்)\n", "பொழில்-304", 2,
     "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது."},
    // The target has its new kind before the right side is written.
    {"நே = இப்போதுநேரம்()\nநே = நே.ஆண்டு\n", "பொழில்-304", 2,
     "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது."},
    {"கட்டமைப்பு கருவி:\n    அளவை = 1\nக = கருவி()\nக = க.அளவை\n", "பொழில்-304", 4,
     "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது."},
};
INSTANTIATE_TEST_SUITE_P(Access, Reports, testing::ValuesIn(kAccessRows));

const char* const kAppendTwice = "அ = []\nஅ.சேர்(1, 2)\n";
const ReportRow kCallRows[] = {
    {kAppendTwice, "பொழில்-331", 2, "'.சேர்()' 1 argument மட்டுமே ஏற்கும்."},
    {"அ = []\nஅ.சேர்()\n", "பொழில்-331", 2, "'.சேர்()' 1 argument மட்டுமே ஏற்கும்."},
    {"செயல் கூடு(அ, ஆ):\n    விடு\nகூடு(1)\n", "பொழில்-331", 3,
     "'கூடு' 2 உள்ளீடுகளை ஏற்கும், ஆனால் 1 கொடுக்கப்பட்டுள்ளது."},
    {"செயல் கூடு():\n    விடு\nகூடு(1, 2)\n", "பொழில்-331", 3,
     "'கூடு' 0 உள்ளீடுகளை ஏற்கும், ஆனால் 2 கொடுக்கப்பட்டுள்ளது."},
    {"செயல் மாறு(மாற்று அ):\n    விடு\nமாறு(x கூட்டு 1)\n", "பொழில்-331", 3,
     "'மாற்று' parameter-க்கு ஒரு மாறி (Variable)-ஐ மட்டும் தான் அனுப்ப முடியும்."},
    {"அச்சிடு(என்னவகை())\n", "பொழில்-331", 1, "('என்னவகை' செயலுக்கு ஒரு மதிப்பு மட்டுமே தர வேண்டும்)"},
    {"அச்சிடு(எண்())\n", "பொழில்-331", 1, ""},
    {"வை(அ, 1)\n", "பொழில்-331", 1,
     "('வை' செயலுக்கு 3 மதிப்புகள் தேவை: பட்டியல்/அகராதி, குறியீடு/சாவி, மதிப்பு)"},
    {"வை([1], 0, 1)\n", "பொழில்-313", 1,
     "('வை' செயலின் முதல் மதிப்பு ஒரு மாறி, பட்டியல் உறுப்பு அல்லது பொருள் பண்பாக இருக்க "
     "வேண்டும்.)"},
    {"நீக்கு(அ)\n", "பொழில்-331", 1, ""},
    {"கோப்பு_எழுது(\"அ\")\n", "பொழில்-331", 1, "'கோப்பு_எழுது' 2 உள்ளீடுகளை ஏற்கும் (path, content)."},
    {"கோப்பு_படி()\n", "பொழில்-331", 1, "'கோப்பு_படி' 1 உள்ளீட்டை ஏற்கும் (path)."},
    {"கோப்பு_சேர்(\"அ\")\n", "பொழில்-331", 1, "'கோப்பு_சேர்' 2 உள்ளீடுகளை ஏற்கும் (path, content)."},
};
INSTANTIATE_TEST_SUITE_P(Calls, Reports, testing::ValuesIn(kCallRows));

#define A_NUMBER(name) "'" name "' ஒரு 'எண்' (Number)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது."
#define A_TEXT(name) "'" name "' ஒரு 'உரை' (String)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது."
#define A_LIST(name) "'" name "' ஒரு 'பட்டியல்' (List)-ஐ அனுப்ப வேண்டும்."

const ReportRow kReturnRows[] = {
    {"செயல் தொகை_எண்():\n    திரும்பு \"அ\"\n", "பொழில்-334", 2, A_NUMBER("தொகை_எண்")},
    {"செயல் தொகை_எண்():\n    திரும்பு {}\n", "பொழில்-334", 2, A_NUMBER("தொகை_எண்")},
    {"செயல் தொகை_எண்():\n    திரும்பு x => x\n", "பொழில்-334", 2, A_NUMBER("தொகை_எண்")},
    {"செயல் எண்():\n    திரும்பு []\n", "பொழில்-334", 2, A_NUMBER("எண்")},
    {"செயல் வரி_உரை():\n    திரும்பு 5\n", "பொழில்-334", 2, A_TEXT("வரி_உரை")},
    {"செயல் வரி_உரை():\n    திரும்பு 5.5\n", "பொழில்-334", 2, A_TEXT("வரி_உரை")},
    {"செயல் வரி_உரை():\n    திரும்பு [1]\n", "பொழில்-334", 2, A_TEXT("வரி_உரை")},
    {"செயல் வரி_உரை():\n    திரும்பு {}\n", "பொழில்-334", 2, A_TEXT("வரி_உரை")},
    {"செயல் என்_பட்டியல்():\n    திரும்பு \"அ\"\n", "பொழில்-334", 2, A_LIST("என்_பட்டியல்")},
    {"செயல் என்_பட்டியல்():\n    திரும்பு {}\n", "பொழில்-334", 2, A_LIST("என்_பட்டியல்")},
    {"செயல் என்_பட்டியல்():\n    திரும்பு x => x\n", "பொழில்-334", 2, A_LIST("என்_பட்டியல்")},
    {"செயல் பட்டியல்():\n    திரும்பு மெய்\n", "பொழில்-334", 2, A_LIST("பட்டியல்")},
    // The word may stand anywhere in the name, and the first rule that fits is the only one.
    {"செயல் மொத்த_எண்ணிக்கை():\n    திரும்பு \"அ\"\n", "பொழில்-334", 2, A_NUMBER("மொத்த_எண்ணிக்கை")},
    {"செயல் வரி_உரை_எண்():\n    திரும்பு \"அ\"\n", "பொழில்-334", 2, A_NUMBER("வரி_உரை_எண்")},
    {"செயல் வரி_பட்டியல்_உரை():\n    திரும்பு [1]\n", "பொழில்-334", 2, A_TEXT("வரி_பட்டியல்_உரை")},
    // A method and a nested function are asked by their own names.
    {"கட்டமைப்பு கருவி:\n    செயல் தொகை_எண்(தான்):\n        திரும்பு \"அ\"\n", "பொழில்-334", 3,
     A_NUMBER("தொகை_எண்")},
    {"செயல் வரி_உரை():\n    செயல் தொகை_எண்():\n        திரும்பு \"அ\"\n    திரும்பு \"அ\"\n",
     "பொழில்-334", 3, A_NUMBER("தொகை_எண்")},
    {"செயல் தொகை_எண்():\n    செயல் உள்():\n        திரும்பு \"அ\"\n    திரும்பு \"அ\"\n", "பொழில்-334", 4,
     A_NUMBER("தொகை_எண்")},
    // The line is the value's own: a folded member of an enumeration has none.
    {"வகை வண்ணங்கள்:\n    கருப்பு\n;\nசெயல் வரி_உரை():\n    திரும்பு வண்ணங்கள்.கருப்பு\n", "பொழில்-334", 0,
     A_TEXT("வரி_உரை")},
    {"செயல் தொகை_எண்():\n    திரும்பு {\n        \"அ\": 1\n    }\n", "பொழில்-334", 2,
     A_NUMBER("தொகை_எண்")},
};
INSTANTIATE_TEST_SUITE_P(Returns, Reports, testing::ValuesIn(kReturnRows));

TEST(StructureReports, PrivateFieldThroughAnyOtherVariable) {
    const std::string read = std::string(kAccount) + "க = கணக்கு()\nஅச்சிடு(க.இருப்பு)\n";
    EXPECT_TRUE(refuses("பொழில்-321", 6, [&] { generate(read); }));
    const std::string write = std::string(kAccount) + "க = கணக்கு()\nக.இருப்பு = 1\n";
    EXPECT_TRUE(refuses("பொழில்-321", 6, [&] { generate(write); }));
    // Also if the private one is another structure's.
    const std::string other =
        std::string(kAccount) + "கட்டமைப்பு பணம்:\n    இருப்பு = 1\nப = பணம்()\nஅச்சிடு(ப.இருப்பு)\n";
    EXPECT_TRUE(refuses("பொழில்-321", 8, [&] { generate(other); }));
}

TEST(StructureReports, PrivateFieldIsReachedByWhatIsNoVariable) {
    EXPECT_NO_THROW(
        generate(std::string(kAccount) + "அச்சிடு(கணக்கு().இருப்பு)\nகணக்கு().இருப்பு = 1\n"));
}

TEST(StructureReports, PrivateFieldThatIsCalled) {
    EXPECT_TRUE(refuses("பொழில்-321", 6,
                        [] { generate(std::string(kAccount) + "க = கணக்கு()\nக.இருப்பு()\n"); }));
}

TEST(StructureReports, PrivateMethodIsReached) {
    EXPECT_NO_THROW(generate(
        "கட்டமைப்பு கருவி:\n    ரகசிய செயல் ஓடு(தான்):\n        விடு\nக = கருவி()\nக.ஓடு()\n"));
}

TEST(StructureReports, ReceiverReachesItsPrivateField) { EXPECT_NO_THROW(generate(kAccount)); }

TEST(StructureReports, ArgumentsWithoutConstructor) {
    const std::string source = std::string(kAccount) + "க = கணக்கு(1)\n";
    EXPECT_TRUE(refuses("பொழில்-333", 5, [&] { generate(source); }));
    EXPECT_NO_THROW(generate(std::string(kAccount) + "க = கணக்கு()\n"));
}

TEST(StructureReports, UnknownParentInATreeBuiltByHand) {
    Program program;
    program.statements.push_back(std::make_unique<StructDefinitionStatement>(
        Token{TokenType::IDENTIFIER, "மகன்", 3}, Token{TokenType::IDENTIFIER, "தந்தை", 3}, true,
        std::vector<std::unique_ptr<VarDeclaration>>(),
        std::vector<std::unique_ptr<FunctionDefinitionStatement>>(), false));
    Generator generator(program, {}, {}, {}, "", "test.பொழில்");
    EXPECT_TRUE(refuses("பொழில்-323", 0, [&] { generator.generate(); }));
    Generator other(program, {}, {}, {}, "", "test.பொழில்");
    EXPECT_TRUE(refuses("பொழில்-323", 0, [&] { other.bindPropertiesAndMethods("எங்கோ", "o"); }));
}

TEST(StructureReports, FieldThatMakesItsOwnStructure) {
    EXPECT_TRUE(refuses("பொழில்-335", 1,
                        [] { generate("கட்டமைப்பு கணு:\n    அடுத்து = கணு()\nக = கணு()\n"); }));
    // By way of another, which the first one's instance makes.
    EXPECT_TRUE(refuses("பொழில்-335", 1, [] {
        generate(
            "கட்டமைப்பு கணு:\n    செயல் புதிது(தான்):\n        திரும்பு 1\n"
            "    அடுத்து = கிளை()\nகட்டமைப்பு கிளை:\n    வேர் = கணு()\nக = கணு()\n");
    }));
}

TEST(StructureReports, ParentsThatGoRoundInACircle) {
    EXPECT_TRUE(refuses("பொழில்-335", 5, [] {
        generate(
            "கட்டமைப்பு அ:\n    எ = 1\nகட்டமைப்பு ஆ(அ):\n    ஏ = 1\nகட்டமைப்பு அ(ஆ):\n    ஐ = 1\n"
            "க = அ()\n");
    }));
}

TEST(StructureReports, ParentsUpToAHundredThousandPass) {
    std::vector<std::unique_ptr<StructDefinitionStatement>> line;
    std::map<std::string, StructDefinitionStatement*> definitions;
    for (int count = 0; count < 100'000; count++) {
        const Token name{TokenType::IDENTIFIER, "வகுப்பு" + std::to_string(count), 1};
        const Token parent = count == 0 ? name : line.back()->name;
        std::vector<std::unique_ptr<VarDeclaration>> fields;
        if (count == 0) {
            fields.push_back(std::make_unique<VarDeclaration>(
                "எ", std::make_unique<NumberLiteral>("1"), VarType::Unset, false));
        }
        line.push_back(std::make_unique<StructDefinitionStatement>(
            name, parent, count > 0, std::move(fields),
            std::vector<std::unique_ptr<FunctionDefinitionStatement>>(), false));
        definitions[name.text] = line.back().get();
    }
    const Program program;
    Generator generator(program, {}, definitions, {}, "", "test.பொழில்");
    generator.bindPropertiesAndMethods(line.back()->name.text, "o");
    EXPECT_EQ(generator.out.str(), "o->properties[\"எ\"] = std::any(1LL);\n");
}

TEST(StructureReports, FieldOfAnotherStructureAndArgumentsOfTheOwnPass) {
    EXPECT_NO_THROW(
        generate("கட்டமைப்பு அ:\n    எ = 1\nகட்டமைப்பு ஆ(அ):\n    ஏ = அ()\n    செயல் துவக்கம்(தான், ம):\n"
                 "        தான்.ஏ = ம\nக = ஆ(ஆ(1))\n"));
}

TEST(ReturnKinds, WhatPasses) {
    for (const char* source : {
             "செயல் வரி_உரை(அ):\n    திரும்பு அ\n",
             "செயல் வரி_உரை():\n    திரும்பு மெய்\n",
             "செயல் வரி_உரை():\n    திரும்பு x => x\n",
             "செயல் வரி_உரை():\n    திரும்பு இப்போதுநேரம்()\n",
             "செயல் தொகை_எண்():\n    திரும்பு 5\n",
             "செயல் தொகை_எண்():\n    திரும்பு 5.5\n",
             "செயல் தொகை_எண்():\n    திரும்பு மெய்\n",
             "செயல் தொகை_எண்():\n    திரும்பு இப்போதுநேரம்()\n",
             "செயல் தொகை_எண்():\n    திரும்பு (\"அ\")\n",
             "செயல் தொகை_எண்():\n    திரும்பு\n",
             "செயல் வரி_உரை_பட்டியல்():\n    திரும்பு \"அ\"\n",
             "செயல் என்_பட்டியல்(அ):\n    திரும்பு அ\n",
             "செயல் என்_பட்டியல்():\n    திரும்பு [1]\n",
             "செயல் எண்கள்():\n    திரும்பு \"அ\"\n",
             "செயல் சே():\n    திரும்பு \"அ\"\n",
         }) {
        EXPECT_NO_THROW(generate(source)) << source;
    }
}

TEST(OperatorKinds, WhatPasses) {
    for (const char* source : {
             "அ = \"a\" கழி \"b\"\n",
             "அ = \"a\" கூட்டு மெய்\n",
             "அ = \"a\" கூட்டு (1)\n",
             "அ = \"a\" சமம் 1\n",
             "அ = [1] சமம் [1]\n",
             "அ = [1] இணை 1\n",
             "அ = [1] பெருக்குஇருமை 1\n",
             "அ = [1]\nஅ = அ கூட்டு 2\n",
         }) {
        EXPECT_NO_THROW(generate(source)) << source;
    }
}

TEST(Constants, WhatPasses) {
    EXPECT_NO_THROW(generate("மாறிலிகள் = 1\nமாறிலிகள் = 2\n"));
    EXPECT_NO_THROW(generate("என்_மாறிலி = 1\nஎன்_மாறிலி = 2\n"));
    EXPECT_NO_THROW(generate("மாறிலி_அ = 1\nமாறிலி_ஆ = 2\nமாறிலி = 3\n"));
}

struct StaticRow {
    const char* source;
    const char* code;
    const char* detail;
};

class StaticRefusals : public testing::TestWithParam<StaticRow> {};

TEST_P(StaticRefusals, TextWithoutALine) {
    const StaticRow& row = GetParam();
    const பிழைதகவல்& entry = பிழை_அகராதி.at(row.code);
    const std::string text =
        std::string(row.code) + ": " + entry.விளக்கம் + " - " + entry.தீர்வு + " (" + row.detail + ")";
    try {
        generate(row.source);
        FAIL() << row.source << "\nis not refused";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(error.what(), text);
    } catch (const Refusal& refusal) {
        FAIL() << row.source << "\nis refused at a line, with " << refusal.code;
    }
}

const StaticRow kStaticRows[] = {
    {"நீளம்(1, 2)\n", "பொழில்-331", "'நீளம்' 1 argument மட்டுமே ஏற்கும்."},
    {"உள்ளீடு(1, 2)\n", "பொழில்-331", "'உள்ளீடு' 0 அல்லது 1 argument மட்டுமே ஏற்கும்."},
    {"செல்க()\n", "பொழில்-331", "'செல்க' 1 argument only."},
    {"நகர்த்து()\n", "பொழில்-331", "'நகர்த்து' 1 argument மட்டுமே ஏற்கும் (அடையாளம்)."},
    {"சீரற்ற_எண்(1)\n", "பொழில்-331", "'சீரற்ற_எண்' 2 arguments ஏற்கும் (min, max)."},
    {"எடு(1)\n", "பொழில்-331", "'எடு' 2 arguments ஏற்கும் (object, index)."},
    {"வர்க்கமூலம்()\n", "பொழில்-331", "'வர்க்கமூலம்' 1 argument மட்டுமே ஏற்கும்."},
    {"அடுக்கு(1.0)\n", "பொழில்-331", "'அடுக்கு' 2 arguments ஏற்கும் (அடி, அடுக்கு)."},
    {"தனிமதிப்பு()\n", "பொழில்-331", "'தனிமதிப்பு' 1 argument மட்டுமே ஏற்கும்."},
    {"மேல்எண்()\n", "பொழில்-331", "'மேல்எண்' 1 argument மட்டுமே ஏற்கும்."},
    {"கீழ்எண்()\n", "பொழில்-331", "'கீழ்எண்' 1 argument மட்டுமே ஏற்கும்."},
    {"சைன்()\n", "பொழில்-331", "'சைன்' 1 argument மட்டுமே ஏற்கும்."},
    {"டேன்()\n", "பொழில்-331", "'டேன்' 1 argument மட்டுமே ஏற்கும்."},
    {"மடக்கு()\n", "பொழில்-331", "'மடக்கு' 1 argument மட்டுமே ஏற்கும்."},
    {"பிளவு(\"அ\")\n", "பொழில்-331", "'பிளவு' 2 arguments ஏற்கும் (string, delimiter)."},
    {"பதில்(\"அ\")\n", "பொழில்-331", "'பதில்' 3 arguments ஏற்கும் (string, find, replace)."},
    {"பெரியஎ()\n", "பொழில்-331", "'பெரியஎ' 1 argument மட்டுமே ஏற்கும்."},
    {"சிறியஎ()\n", "பொழில்-331", "'சிறியஎ' 1 argument மட்டுமே ஏற்கும்."},
    {"கோப்பு_அழி()\n", "பொழில்-331", "'கோப்பு_அழி' 1 argument ஏற்கும் (path)."},
    {"கோப்பு_உள்ளதா()\n", "பொழில்-331", "'கோப்பு_உள்ளதா' 1 argument ஏற்கும் (path)."},
    {"தேதி(1, 2)\n", "பொழில்-331", "'தேதி' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"நேரம்(1, 2)\n", "பொழில்-331", "'நேரம்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"முழுவதும்(1, 2)\n", "பொழில்-331", "'முழுவதும்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"நேரம்.வினாடிகள்(1)\n", "பொழில்-331", "'நேரம்.வினாடிகள்()' arguments எதையும் ஏற்காது."},
    {"நே = நேரம்.உருவாக்கு(1)\n", "பொழில்-332", "'உருவாக்கு' என்பது ஒரு function இல்லை."},
    {"அ = 1\nஅ.ஓடு()\n", "பொழில்-332", "'ஓடு' என்பது ஒரு function இல்லை."},
    {"நே = இப்போதுநேரம்()\nநே.ஆண்டு()\n", "பொழில்-332", "'ஆண்டு' என்பது ஒரு function இல்லை."},
    {"நீளம்()\n", "பொழில்-331", "'நீளம்' 1 argument மட்டுமே ஏற்கும்."},
    {"கட்டமைப்பு கருவி:\n    செயல் ஓடு(தான்):\n        விடு\nக = கருவி()\nக = க.ஓடு()\n", "பொழில்-332",
     "'ஓடு' என்பது ஒரு function இல்லை."},
    {"எங்கும்_இல்லாதது()\n", "பொழில்-332", "'எங்கும்_இல்லாதது' என்பது ஒரு function இல்லை."},
    {"ஒவ்வொன்றாக இ இல் வரம்பு(1, 2, 3):\n    விடு\n", "பொழில்-331",
     "'வரம்பு' 1 அல்லது 2 arguments-ஐ மட்டுமே ஏற்கும்."},
    {"ஒவ்வொன்றாக இ இல் வரம்பு():\n    விடு\n", "பொழில்-331",
     "'வரம்பு' 1 அல்லது 2 arguments-ஐ மட்டுமே ஏற்கும்."},
    {"1()\n", "பொழில்-399", "Unknown call expression"},
    {"க[0]()\n", "பொழில்-399", "Unknown call expression"},
    {"க(1)(2)\n", "பொழில்-399", "Unknown call expression"},
    {"அ = 50%\n", "பொழில்-399", "Unknown expression type in generator"},
};
INSTANTIATE_TEST_SUITE_P(Generator, StaticRefusals, testing::ValuesIn(kStaticRows));

TEST(Refusals, IndexStoreThatTheUserCallsWithTooLittle) {
    EXPECT_THROW(generate("_set_index_internal(1)\n"), std::runtime_error);
    EXPECT_THROW(generate("_set_index_internal(அ, 0)\n"), std::runtime_error);
}

TEST(Refusals, WalksInsideEachOtherWithoutEnd) {
    // Each doubles the text of its body, so a dozen is the limit.
    std::string source;
    for (int depth = 0; depth < 13; depth++) {
        source += std::string(static_cast<std::size_t>(depth) * 4, ' ') + "ஒவ்வொன்றாக இ இல் அ:\n";
    }
    source += std::string(13 * 4, ' ') + "விடு\n";
    EXPECT_THROW(generate(source), std::runtime_error);
}

/// Brings a doubling text to its limit in few steps.
const std::string kLongText = '"' + std::string(100'000, 'a') + '"';

/// A random number's lower end is written twice: inside itself it doubles the text every time.
TEST(Refusals, RandomNumbersInsideEachOtherWithoutEnd) {
    std::string number = kLongText;
    for (int depth = 0; depth < 40; depth++) number = "சீரற்ற_எண்(" + number + ", 9)";
    EXPECT_THROW(generate("அ = " + number + "\n"), std::runtime_error);
}

/// Two fields that make the structure before double the text from structure to structure.
TEST(Refusals, StructuresThatMakeEachOtherWithoutEnd) {
    std::string source = "கட்டமைப்பு வகுப்பு0:\n    எ = " + kLongText + "\n";
    for (int count = 1; count < 40; count++) {
        const std::string made = "வகுப்பு" + std::to_string(count - 1) + "()\n";
        source +=
            "கட்டமைப்பு வகுப்பு" + std::to_string(count) + ":\n    எ = " + made + "    ஏ = " + made;
    }
    EXPECT_THROW(generate(source + "க = வகுப்பு39()\n"), std::runtime_error);
}

TEST(Refusals, FieldsThatMakeStructuresBeyondTheStack) {
    const std::string open(100, '[');
    const std::string close(100, ']');
    std::string source = "கட்டமைப்பு வகுப்பு0:\n    எ = 1\n";
    for (int count = 1; count < 400; count++) {
        source += "கட்டமைப்பு வகுப்பு" + std::to_string(count) + ":\n    எ = " + open + "வகுப்பு" +
                  std::to_string(count - 1) + "()" + close + "\n";
    }
    source += "க = வகுப்பு399()\n";
    runOnStack(4 * kMebibyte, [&] { EXPECT_THROW(generate(source), std::runtime_error); });
}

TEST(Operators, UnknownWordIsRefusedAtLineZero) {
    Program program;
    Generator generator(program, {}, {}, {}, "", "test.பொழில்");
    try {
        generator.mapOperator("இணை");
        FAIL();
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.code, "பொழில்-304");
        EXPECT_EQ(refusal.line, 0);
        EXPECT_NE(refusal.message.find("(Operator: இணை)"), std::string::npos);
    }
}

}  // namespace
