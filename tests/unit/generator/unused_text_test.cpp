// What a generated file carries and never uses, and what it could write and never does.
#include <gtest/gtest.h>

#include <string>

#include "support/generated_text.h"

namespace {

const char* const kEveryKindOfStatement =
    "கட்டமைப்பு கணக்கு:\n    இருப்பு = 5\n"
    "செயல் கூடு(அ):\n    திரும்பு அ\n"
    "எண்ணிக்கை = 1\n"
    "எண்ணிக்கை = எண்ணிக்கை கூட்டு 1\n"
    "கூடு(எண்ணிக்கை)\n"
    "பணம் = கணக்கு()\n"
    "அச்சிடு(எண்ணிக்கை)\n";

TEST(UnusedText, ModuleSearchIsDefinedAndNotCalled) {
    EXPECT_EQ(countOf("fn_resolve_module_path(", generate(kEveryKindOfStatement)), 1);
}

TEST(UnusedText, ScrollPlacesAreDeclaredAndNotRead) {
    const std::string text = generate(kEveryKindOfStatement);
    for (const char* name : {"id_map", "targetScrollY", "currentScrollY"}) {
        EXPECT_EQ(countOf(name, text), 1) << name;
    }
}

TEST(UnusedText, StatementsAtFileScopeHaveNoWrapper) {
    const std::string text = generate(kEveryKindOfStatement);
    EXPECT_EQ(text.find("_global_init_"), std::string::npos);
    EXPECT_EQ(text.find("struct Init_"), std::string::npos);
}

}  // namespace
