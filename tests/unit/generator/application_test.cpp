// The parts of an application's text that no whole source leads to, and what is refused.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "support/generated_text.h"

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

/// What the browser's main asks of the window for one application after the other.
std::string windowOf(std::vector<std::unique_ptr<Statement>> headers) {
    Program program;
    for (auto& header : headers) {
        const std::string name = "தளம்" + std::to_string(program.statements.size());
        program.statements.push_back(
            std::make_unique<WebAppNode>(name, nullptr, std::move(header), nullptr, nullptr));
    }
    const std::string text = Generator(program, {}, {}, {}, "", "").generate();
    const std::size_t at = text.find("glfwCreateWindow(");
    return text.substr(at, text.find(';', at) - at);
}

std::unique_ptr<Statement> headerOf(const ScreenConfig& screen) {
    return std::make_unique<HeaderNode>("தலைமை", PropertyMap(),
                                        std::vector<std::unique_ptr<Statement>>(), screen, false);
}

TEST(Window, HasTheSizeThatTheFirstApplicationDeclares) {
    std::vector<std::unique_ptr<Statement>> headers;
    headers.push_back(headerOf({false, 800, 600.5F}));
    headers.push_back(headerOf({false, 1, 2}));
    EXPECT_EQ(windowOf(std::move(headers)),
              "glfwCreateWindow((int)800, (int)600.5, \"தளம்0\", NULL, NULL)");
}

TEST(Window, HasTheDefaultSizeOtherwise) {
    const std::string text = "glfwCreateWindow((int)1280, (int)720, \"தளம்0\", NULL, NULL)";
    std::vector<std::unique_ptr<Statement>> headers;
    headers.push_back(headerOf({true, 800, 600}));
    EXPECT_EQ(windowOf(std::move(headers)), text) << "the flag holds, not the numbers";
    headers.clear();
    headers.push_back(std::make_unique<PassStatement>());
    EXPECT_EQ(windowOf(std::move(headers)), text) << "no head";
}

TEST(PageVideo, OfAFileThatIsThere) {
    const std::string path = POZHIL_BUILD_DIR "/page_video.mp4";
    std::ofstream(std::filesystem::u8path(path)) << "video";
    const std::string text =
        generate("வலைதளம் அ(\n    தலைமை(பின்னணிகாணொளி: \"" + path + "\")\n" + kBody);
    EXPECT_NE(text.find("        bool bgSet = false;\n"
                        "        {\n"
                        "            static bool bgVideoStarted = false;\n"
                        "            if (!bgVideoStarted) {\n"
                        "                bgVideoStarted = true;\n"
                        "                std::string videoPath = "
                        "fn_any_to_string(std::string(u8\"" +
                        path +
                        "\"));\n"
                        "                startBackgroundVideo(videoPath.c_str());\n"
                        "            }\n"
                        "        }\n"
                        "        nvgFillColor(vg, nvgRGBA(0, 0, 0, 0));\n"
                        "        bgSet = true;\n"
                        "        if (!bgSet) nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));\n"
                        "        nvgFill(vg);\n"),
              std::string::npos);
}

TEST(Application, CarriesTheRuntimeOfAConsoleProgram) {
    const auto runtime = [](const std::string& source) {
        const std::string text = generate(source);
        return text.substr(0, text.find("void init_globals() {\n"));
    };
    EXPECT_EQ(runtime("வலைதளம் அ(\n    தலைமை()\n" + kBody), runtime(""));
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
