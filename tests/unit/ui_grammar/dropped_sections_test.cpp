// A section that a later one replaces is gone from the tree, and what it defined stays known.
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

}  // namespace
