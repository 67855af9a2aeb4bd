// The manual and the shell's completion know each command of the companion.
#include "companion/commands.h"

#include <gtest/gtest.h>

#include "support/case_files.h"

namespace {

TEST(Commands, StandInTheManualAndInTheCompletion) {
    const std::string packaging = POZHIL_ROOT "/packaging/";
    const std::string completion = readText(packaging + "completion/pozhil");
    for (const companion::Command& command : companion::commands()) {
        const std::string names = std::string(command.name) + ", " + command.latinName;
        for (const char* page : {"man/pozhil-thunai.1", "man/ta/pozhil-thunai.1"}) {
            EXPECT_NE(readText(packaging + page).find('"' + names + '"'), std::string::npos)
                << names << " in " << page;
        }
        for (const std::string name : {command.name, command.latinName}) {
            EXPECT_NE((completion + " ").find(" " + name), std::string::npos) << name;
        }
    }
}

}  // namespace
