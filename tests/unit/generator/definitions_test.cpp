// Functions, structures and instances, to the blank.
#include <gtest/gtest.h>

#include "support/generated_text.h"

namespace {

/// Passes if the generated text of `source` holds `expected` as it stands.
testing::AssertionResult writes(const std::string& source, const std::string& expected) {
    const std::string text = generate(source);
    if (text.find(expected) != std::string::npos) return testing::AssertionSuccess();
    const std::size_t from = text.find("// --- Web Boilerplate ---");
    return testing::AssertionFailure() << source << "\nbecomes\n" << text.substr(from);
}

TEST(FunctionText, TopLevel) {
    EXPECT_TRUE(writes("செயல் கூடு(அ, மாற்று ஆ):\n    திரும்பு அ\n",
                       R"(
std::any fn_கூடு(std::any அ, std::any& ஆ) {
    CallTracker _tracker("test.பொழில்");
    return std::any(அ);

    return std::any(); // Default return
}

void init_globals() {
)"));
}

TEST(FunctionText, MethodsTakeTheReceiverFirst) {
    EXPECT_TRUE(writes("கட்டமைப்பு கருவி:\n    செயல் ஓடு(தான், மாற்று அ, ஆ):\n        திரும்பு\n",
                       R"(
using T_கருவி = std::shared_ptr<கருவி>;
std::any fn_கருவி_ஓடு(std::shared_ptr<_StructBase> தான், std::any& அ, std::any ஆ) {
    CallTracker _tracker("test.பொழில்");
    return std::any();

    return std::any(); // Default return
}

void init_globals() {
)"));
}

TEST(FunctionText, Nested) {
    EXPECT_TRUE(writes("செயல் வெளி():\n    செயல் உள்(அ, மாற்று ஆ):\n        விடு\n    திரும்பு உள்\n",
                       R"(
std::any fn_வெளி() {
    CallTracker _tracker("test.பொழில்");
    std::any உள் = std::any(std::function<std::any(std::any, std::any)>([=](std::any அ, std::any ஆ) mutable -> std::any {
        CallTracker _tracker("test.பொழில்");
        (void)0;

        return std::any();
    }));
    return std::any(உள்);

    return std::any(); // Default return
}

)"));
}

TEST(FunctionText, StartsAtTheMarginWhereverItStands) {
    EXPECT_TRUE(writes("எனில் மெய்:\n    செயல் உள்():\n        விடு\n    அச்சிடு(1)\n",
                       R"(
    if (std::any_cast<bool>(true)) {
std::any fn_உள்() {
    CallTracker _tracker("test.பொழில்");
    (void)0;

    return std::any(); // Default return
}

        std::cout << fn_any_to_string(1LL) << std::endl;
    }
)"));
}

TEST(FunctionText, NestedSeesTheLocalsAroundItAndNotBeyondItsOwnEnd) {
    EXPECT_TRUE(writes("செயல் வெளி(அ):\n    செயல் உள்(ஆ):\n        திரும்பு அ இணை ஆ\n    திரும்பு ஆ\n",
                       R"(
        return std::any(std::string(fn_any_to_string(அ) + fn_any_to_string(ஆ)));

        return std::any();
    }));
    return std::any(global_vars["ஆ"]);
)"));
}

/// The text of a return that stands among the top-level statements: the grammar refuses it there.
std::string returnInMain(std::unique_ptr<Expression> value) {
    Program program;
    program.statements.push_back(std::make_unique<ReturnStatement>(std::move(value)));
    const std::string text = Generator(program, {}, {}, {}, "", "test.பொழில்").generate();
    return text.substr(text.find("int main() {"));
}

TEST(ReturnText, OutsideAFunctionDropsItsValueAndEndsMain) {
    const char* const expected =
        "int main() {\n    return 0; // C++ main requires int;\nreturn 0;\n}\n";
    EXPECT_EQ(returnInMain(std::make_unique<NumberLiteral>("5")), expected);
    EXPECT_EQ(returnInMain(nullptr), expected);
}

TEST(StructureText, PrivateMembersThenPublicOnes) {
    EXPECT_TRUE(
        writes("கட்டமைப்பு கருவி:\n    அளவை = 1\n    ரகசிய உள்_எண் = 2\n    பெயர் = 3\n"
               "    செயல் ஓடு(தான்):\n        விடு\n"
               "    ரகசிய செயல் ஓய்(தான்):\n        விடு\n",
               R"(
struct கருவி : public _StructBase {
private:
// உள்_எண்
// ஓய்()
public:
// அளவை
// பெயர்
// ஓடு()
};
using T_கருவி = std::shared_ptr<கருவி>;
std::any fn_கருவி_ஓடு(std::shared_ptr<_StructBase> தான்) {
)"));
}

TEST(StructureText, OneVisibilityAlone) {
    EXPECT_TRUE(writes("கட்டமைப்பு கருவி:\n    அளவை = 1\n",
                       "struct கருவி : public _StructBase {\npublic:\n// அளவை\n};\n"));
    EXPECT_TRUE(writes("கட்டமைப்பு கருவி:\n    ரகசிய அளவை = 1\n",
                       "struct கருவி : public _StructBase {\nprivate:\n// அளவை\n};\n"));
}

TEST(InstanceText, ParentsMembersThenTheOwnThenTheNearestConstructor) {
    EXPECT_TRUE(
        writes("கட்டமைப்பு தந்தை:\n    வயது = 60\n    செயல் துவக்கம்(தான், அ, ஆ):\n        விடு\n"
               "கட்டமைப்பு மகன்(தந்தை):\n    வயது = 30\n    செயல் பேசு(self):\n        விடு\n"
               "ம = மகன்(5, \"அ\")\n",
               R"(
int main() {
    (global_vars["ம"] = [&]() -> std::any {
        auto temp_obj = std::make_shared<மகன்>();
        temp_obj->properties["வயது"] = std::any(60LL);
        temp_obj->properties["துவக்கம்"] = std::any(std::function<std::any(std::any, std::any)>([=](std::any அ, std::any ஆ) { return fn_தந்தை_துவக்கம்(std::static_pointer_cast<_StructBase>(temp_obj), அ, ஆ); }));
        temp_obj->properties["வயது"] = std::any(30LL);
        temp_obj->properties["பேசு"] = std::any(std::function<std::any()>([=]() { return fn_மகன்_பேசு(std::static_pointer_cast<_StructBase>(temp_obj)); }));
        fn_தந்தை_துவக்கம்(std::static_pointer_cast<_StructBase>(temp_obj), std::any(5LL), std::any(std::string(u8"அ")));
        return std::any(std::static_pointer_cast<_StructBase>(temp_obj));
    }(), global_vars["ம"]);
return 0;
)"));
}

TEST(InstanceText, WithoutAConstructorNothingIsCalled) {
    EXPECT_TRUE(writes("கட்டமைப்பு கருவி:\n    அளவை = 1\nஅச்சிடு(கருவி())\n",
                       R"(
    std::cout << fn_any_to_string([&]() -> std::any {
        auto temp_obj = std::make_shared<கருவி>();
        temp_obj->properties["அளவை"] = std::any(1LL);
        return std::any(std::static_pointer_cast<_StructBase>(temp_obj));
    }()) << std::endl;
)"));
}

TEST(MemberAssignmentText, IsALineOfItsOwnInsideTheStatement) {
    EXPECT_TRUE(writes("கட்டமைப்பு கருவி:\n    அளவை = 1\nக = கருவி()\nக.அளவை = 4\n",
                       "\n        fn_set_property(global_vars[\"க\"], \"அளவை\", std::any(4LL), "
                       "\"test.பொழில்\", 4);\n;\n"));
    EXPECT_TRUE(
        writes("காட்சி_நிலை.அளவை : 4\n", "\n        global_vars[\"அளவை\"] = std::any(4LL);\n;\n"));
}

}  // namespace
