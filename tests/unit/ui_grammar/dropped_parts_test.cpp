// Sections and values that a later one replaces, or that nobody keeps, are gone from the tree, and
// what they defined stays known: the tables never point at a node that is no more.
#include <gtest/gtest.h>

#include "support/front_end.h"
#include "support/tree_printer.h"

namespace {

TEST(ReplacedLogic, LeavesItsStructuresInTheTable) {
    const Parsed parsed = parse(
        "வலைதளம் அ(\n    தலைமை()\n    குமரி()\n    வரையறை(\n        கட்டமைப்பு ஊர்தி:\n"
        "            வேகம் = 0\n    )\n    வரையறை(\n        கட்டமைப்பு கார்(ஊர்தி):\n"
        "            வேகம் = 0\n    )\n)\n");
    EXPECT_EQ(printTables(*parsed.parser), "structure ஊர்தி: ஊர்தி\nstructure கார்: கார்\n");
}

/// A value that defines ஊர்தி and இயக்கம் in a press handler.
const std::string kDefining =
    "உரை(அழுத்தினால்(\n"
    "        கட்டமைப்பு ஊர்தி:\n"
    "            வேகம் = 0\n"
    "        வடிவமைப்பு இயக்கம்:\n"
    "            செயல் ஓடு(தான்)\n"
    "    ))";

/// Children of both: the parser reads the abstract one's methods.
const std::string kChildren =
    "கட்டமைப்பு கார்(ஊர்தி):\n"
    "    வேகம் = 0\n"
    "கட்டமைப்பு ரயில்(இயக்கம்):\n"
    "    செயல் ஓடு(தான்):\n"
    "        விடு\n";

/// `source` with the defining value in the place of "@", and the children behind it.
std::string defining(std::string source) {
    const std::size_t at = source.find('@');
    return source.replace(at, 1, kDefining) + "\n" + kChildren;
}

/// The tables behind it, each name with the name that its node holds.
std::string tablesOf(const std::string& source) {
    return printTables(*parse(defining(source)).parser);
}

const std::string kAllKnown =
    "structure ஊர்தி: ஊர்தி\nstructure கார்: கார்\nstructure ரயில்: ரயில்\n"
    "abstract structure இயக்கம்: இயக்கம்\n";

TEST(ReplacedProperty, LeavesItsStructuresInTheTable) {
    for (const char* source : {
             "உரை(\n    குறி: @\n    குறி: 1\n)",
             "உரை(\n    அழுத்தினால்: @\n    அழுத்தினால்: 1\n)",
             "உரை(\n    அழுத்தினால்(@)\n    அழுத்தினால்(\"அ\")\n)",
             "உரை(\n    உரை: @\n    \"அ\"\n)",
             "உரை(\n    உரைபாணி(உயரம்: @, உயரம்: 1)\n)",
             "பொத்தான்(\n    பொ_பாணி(உயரம்: @ உயரம்: 1)\n)",
             "உரைபொத்தான்(\n    உரை(@)\n    உரை(1)\n)",
             "உரைபொத்தான்(\n    உரை(@)\n    உரை \"அ\"\n)",
             "அறிவிப்பு_பட்டை(\n    குறி: @\n    குறி: 1\n)",
             "அறிவிப்பு_பட்டை(\n    செய்தி: [@]\n    செய்தி: 1\n)",
         }) {
        EXPECT_EQ(tablesOf(source), kAllKnown) << source;
    }
}

TEST(PassedOverValue, LeavesItsStructuresInTheTable) {
    for (const char* source : {
             "உரை(\n    உரைபாணி(குறி: @)\n)",
             "உரை(\n    உரைபாணி(அளவு: @)\n)",
             "பொத்தான்(\n    சீரமைப்பு: @\n)",
             "நெகிழ்வு(\n    பங்கு: @\n)",
             "நெகிழ்வு(\n    குறி: @\n)",
             "வலைதளம் அ(\n    தலைமை(குறி: @)\n    குமரி()\n    வரையறை()\n)",
         }) {
        EXPECT_EQ(tablesOf(source), kAllKnown) << source;
    }
}

TEST(ReplacedSection, LeavesItsStructuresInTheTable) {
    const std::string rest = "\n    குமரி()\n    வரையறை()\n)";
    const std::string firebase = "பயர்பேசு_அமைப்பு(குறி: @)";
    for (const std::string& source : {
             "வலைதளம் அ(\n    தலைமை(பக்கம்: @)\n    தலைமை()" + rest,
             "வலைதளம் அ(\n    தலைமை(பக்கம்: @ பக்கம்: 1)" + rest,
             "வலைதளம் அ(\n    பக்கம்: @\n    பக்கம்: 1\n    தலைமை()" + rest,
             "வலைதளம் அ(\n    தலைமை()\n    தரவுத்தளமேலாண்மை(" + firebase + ")\n    தரவுத்தளமேலாண்மை()" +
                 rest,
             "வலைதளம் அ(\n    தலைமை()\n    தரவுத்தளமேலாண்மை(" + firebase + " பயர்பேசு_அமைப்பு())" + rest,
         }) {
        EXPECT_EQ(tablesOf(source), kAllKnown) << source;
    }
}

/// A value in place whose number doesn't convert is given up in its middle, behind definitions.
const std::string kGivenUp =
    "உரை(\n"
    "    [உரை(அழுத்தினால்(\n"
    "        கட்டமைப்பு ஊர்தி:\n"
    "            வேகம் = 0\n"
    "        வடிவமைப்பு இயக்கம்:\n"
    "            செயல் ஓடு(தான்)\n"
    "    )\n"
    "    உரைபாணி(அளவு: ௧௬\n"
    ")\n";

TEST(GivenUpValue, TakesItsStructuresFromTheTable) {
    EXPECT_EQ(printTables(*parse(kGivenUp).parser), "");
    EXPECT_TRUE(refused(kGivenUp + "கட்டமைப்பு கார்(ஊர்தி):\n    வேகம் = 0\n", "பொழில்-272", 10));
    EXPECT_TRUE(refused(kGivenUp + "கட்டமைப்பு ரயில்(இயக்கம்):\n    வேகம் = 0\n", "பொழில்-272", 10));
}

TEST(GivenUpValue, GivesNamesBackToEarlierStructures) {
    const Parsed parsed =
        parse("கட்டமைப்பு ஊர்தி:\n    எடை = 0\nவடிவமைப்பு இயக்கம்:\n    செயல் பற(தான்)\n" + kGivenUp);
    EXPECT_EQ(parsed.parser->structDefinitions.at("ஊர்தி"), parsed.program.statements.at(0).get());
    EXPECT_EQ(parsed.parser->abstractStructDefinitions.at("இயக்கம்"),
              parsed.program.statements.at(1).get());
}

}  // namespace
