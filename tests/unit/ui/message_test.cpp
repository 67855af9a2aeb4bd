// The trigger of a message as a value of the program.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/generated_text.h"

namespace {

const std::string kHead = "std::function<std::any()>([=]() mutable -> std::any {\n";

/// The trigger of a message whose `செய்தி` is `widget`.
std::string triggerOf(std::unique_ptr<WidgetNode> widget) {
    auto message = std::make_unique<SnackBarNode>(WidgetList());
    message->properties["செய்தி"] = std::make_unique<WidgetExpression>(std::move(widget));
    const WidgetExpression value(std::move(message));
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    generator.visitExpression(&value);
    return generator.out.str();
}

std::unique_ptr<WidgetNode> widget(const char* name) {
    return std::make_unique<WidgetNode>(name, PropertyMap(), WidgetList(), சீரமைப்பு_வகை::மேல்_இடது,
                                        false);
}

TEST(Message, IsAFunctionThatAVariableCanHold) {
    const std::string text = generate("அ = அறிவிப்பு_பட்டை(செய்தி: \"ஆ\")\n");
    const std::size_t at = text.find(kHead + "        global_vars[\"active_sb\"]");
    ASSERT_NE(at, std::string::npos);
    EXPECT_EQ(text.substr(text.find("        return std::any();\n    })", at), 34),
              "        return std::any();\n    }))");
}

TEST(Message, SaysTheTextOfAWidgetThatIsItsValue) {
    auto label = widget("உரை");
    label->properties["உரை"] = std::make_unique<StringLiteral>("அ");
    const std::string text = triggerOf(std::move(label));
    EXPECT_EQ(text.rfind(kHead, 0), 0U);
    EXPECT_NE(text.find("std::any(fn_any_to_string(std::string(u8\"அ\")));\n"), std::string::npos);
}

TEST(Message, SaysThatAWidgetIsOneIfItHasNoText) {
    EXPECT_NE(
        triggerOf(widget("படம்")).find("std::any(fn_any_to_string(std::string(u8\"[விட்ஜெட்]\")));\n"),
        std::string::npos);
}

TEST(Message, InTheTreeIsNotWritten) {
    const Program program;
    Generator generator(program, {}, {}, {}, "", "");
    const SnackBarNode message((WidgetList()));
    generator.generateWidgetCode(&message, "wX", "wY");
    EXPECT_EQ(generator.out.str(), "");
}

}  // namespace
