// The parts of an application's text that no whole source leads to, and what is refused.
#include <gtest/gtest.h>

#include <stdexcept>

#include "support/front_end.h"

namespace {

const std::string kBody = "    குமரி()\n    வரையறை()\n)\n";

/// What generateHeader writes for the head of `source`.
std::string headText(const std::string& head) {
    const Parsed parsed = parse("வலைதளம் அ(\n    தலைமை(" + head + ")\n" + kBody);
    const auto& app = dynamic_cast<const WebAppNode&>(*parsed.program.statements.at(0));
    Generator generator(parsed.program, {}, {}, {}, "", "test.பொழில்");
    generator.generateHeader(app.header.get());
    return generator.out.str();
}

TEST(Head, TitleHasADefault) {
    EXPECT_EQ(
        headText(""),
        "emscripten::val::global(\"document\").set(\"title\", std::string(u8\"பொழில் தளம்\"));\n");
}

TEST(Head, TitleAndClearColour) {
    EXPECT_EQ(headText("இணைய_தலைப்பு: \"கணக்கி\", பின்னணி: \"#FF0000\""),
              "emscripten::val::global(\"document\").set(\"title\", std::string(u8\"கணக்கி\"));\n"
              "glClearColor(1.000f, 0.000f, 0.000f, 1.000f);\n");
}

TEST(Head, MissingFilesAreRefused) {
    for (const char* key : {"சின்னம்", "பின்னணிபடம்", "பின்னணிகாணொளி"}) {
        const std::string head = std::string(key) + ": \"எங்கும்_இல்லை.png\"";
        EXPECT_TRUE(refuses("பொழில்-254", 2, [&] { headText(head); })) << key;
    }
}

TEST(Head, IsWrittenByNoPass) {
    const std::string text = generate("வலைதளம் அ(\n    தலைமை(பின்னணி: \"#FF0000\")\n" + kBody);
    EXPECT_EQ(text.find("glClearColor(1.000f"), std::string::npos);
}

TEST(Application, WithADatabaseIsRefusedForNow) {
    const std::string source = "வலைதளம் அ(\n    தலைமை()\n    தரவுத்தளமேலாண்மை()\n" + kBody;
    EXPECT_THROW(generate(source), std::runtime_error);
}

TEST(Application, EmptyOperationsWriteNothing) {
    const Parsed parsed = parse("வலைதளம் அ(\n    தலைமை()\n" + kBody);
    const auto& app = dynamic_cast<const WebAppNode&>(*parsed.program.statements.at(0));
    Generator generator(parsed.program, {}, {}, {}, "", "test.பொழில்");
    generator.calculateLayout(nullptr);
    generator.applyStyles(nullptr);
    generator.generateEventHandlers(&app);
    generator.generateUI(nullptr);
    generator.generateUI(app.body.get());
    EXPECT_EQ(generator.out.str(), "");
}

TEST(WidgetStatement, ColumnVisitsItsChildrenAndOthersWriteNothing) {
    const std::string text =
        generate("எனில் மெய்:\n    நெடுவரிசை(உரை(\"அ\"), பொத்தான்(\"ஆ\"))\n    படம்(\"இ\")\n");
    const std::string call = "drawFixedText(50, 50, ";
    const std::size_t first = text.find(call);
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(text.find(call, first + 1), std::string::npos);
    EXPECT_EQ(text.find("u8\"இ\""), std::string::npos);
}

}  // namespace
