// The generated file from top to bottom.
#include <gtest/gtest.h>

#include <string>

#include "support/generated_text.h"

namespace {

std::string generateProgram(const Program& program) {
    return Generator(program, {}, {}, {}, "", "test.பொழில்").generate();
}

bool endsWith(const std::string& text, const std::string& ending) {
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

const char* const kEmptyMain = "void init_globals() {\n}\n\nint main() {\nreturn 0;\n}\n";

TEST(GeneratedFile, BeginsWithTheIncludes) {
    const std::string includes =
        "#include <iostream>\n#include <string>\n#include <iomanip>\n#include <cmath>\n"
        "#include <thread>\n#include <chrono>\n#include <ctime>\n#include <any>\n"
        "#include <vector>\n#include <map>\n#include <set>\n#include <memory>\n"
        "#include <functional>\n#include <algorithm>\n#include <sstream>\n#include <fstream>\n"
        "#include <cstdio>\n#include <cstdlib>\n\n#ifdef __EMSCRIPTEN__\n";
    EXPECT_EQ(generate("").substr(0, includes.size()), includes);
}

TEST(GeneratedFile, TextLayerStandsInOneBlockWithItsHeaders) {
    const std::string text = generate("");
    const std::size_t helper = text.find("void setupClipboardListener() {\n");
    ASSERT_NE(helper, std::string::npos);
    EXPECT_LT(helper, text.find("#endif\n"));
}

TEST(GeneratedFile, HoldsItsSectionsInOrder) {
    const char* const marks[] = {
        "#include <cstdlib>\n",
        "#ifdef __EMSCRIPTEN__\n",
        "#include <emscripten.h>\n",
        "#include <emscripten/html5.h>\n",
        "#include <emscripten/val.h>\n",
        "#include <emscripten/bind.h>\n",
        "#include <cstring>\n",
        "#include \"nanovg.h\"\n",
        "#define NANOSVG_IMPLEMENTATION\n",
        "#include \"nanosvg.h\"\n",
        "#define NANOSVGRAST_IMPLEMENTATION\n",
        "#include \"nanosvgrast.h\"\n",
        "void setupAndClearTextLayer() {\n",
        "void drawFixedText(float x, float y, const char* text, const char* color, float fontSize, "
        "const char* align, const char* fontWeight = \"400\", bool isUnderline = false, "
        "const char* fontPath = \"\", float alpha = 1.0f, float offsetY = 0.0f) {\n",
        "void drawWebText(",
        "float getTextWidth(const char* text, float fontSize) {\n",
        "void copyToClipboard(const char* text) {\n",
        "void setupClipboardListener() {\n",
        "#endif\n",
        "std::map<std::string, std::any> global_vars;\n",
        "std::map<std::string, std::string> g_inputErrors;\n",
        "std::map<std::string, bool> g_kaatchi_nilai;\n",
        "std::set<std::string> g_alert_names;\n",
        "bool g_block_background_clicks = false;\n",
        "bool g_inside_overlay = false;\n",
        "std::any fn_return_value;\n",
        "std::vector<std::function<void()>> g_overlays;\n",
        "void pozhil_runtime_error(std::string code, std::string file, int line);\n\n",
        "int g_call_depth = 0;\n",
        "int g_current_call_line = 0;",
        "// 🔥 வரியின் எண்ணை ட்ராக் செய்ய\n",
        "const int MAX_CALL_DEPTH = 150;\n",
        "struct CallTracker {",
        "float திரை_அகலம் = 1280.0f;\n",
        "float திரை_உயரம் = 720.0f;\n",
        "std::string g_currentPage = \"home\";\n",
        "void செல்க(std::string pageName)",
        "std::map<std::string, std::string> g_inputValues;\n",
        "std::map<std::string, int> g_inputCursorPos;\n",
        "std::string g_focusedInput = \"\";\n",
        "std::map<std::string, bool> g_inputSelected;\n",
        "#ifdef __EMSCRIPTEN__\nvoid நகர்த்து(std::string id);\n",
        "extern \"C\" {\n",
        "void set_input_value(const char* id, const char* val) {",
        "void clear_input_error(const char* id) {",
        "#endif\n",
        "#ifdef __EMSCRIPTEN__\nEMSCRIPTEN_BINDINGS(scroll_logic)",
        "emscripten::function(\"நகர்த்து\", &நகர்த்து);",
        "#endif\n",
        "#ifdef __EMSCRIPTEN__\nextern \"C\" {\n",
        "void on_paste_text(const char* text) {\n",
        "#endif\n",
        "#ifdef __EMSCRIPTEN__\nEM_BOOL key_callback(",
        "#endif\n",
        "struct _PozhilChar { std::string val; };\n",
        "struct _StructBase { std::map<std::string, std::any> properties; "
        "virtual ~_StructBase() = default; };\n",
        "#include \"error_codes.h\"\n",
        "#include \"error_handler.h\"\n",
        "void pozhil_runtime_error(std::string code, std::string file, int line) {\n",
        "std::string fn_முழுவதும்(std::tm* t);\n",
        "std::string fn_any_to_string(const std::any& val) {\n",
        "std::string fn_any_to_json(const std::any& val) {\n",
        "std::string என்னவகை_கண்டுபிடி(const std::any& ",
        "long double fn_get_double(const std::any& a) {\n",
        "bool fn_compare_any(const std::any& left, const std::any& right, std::string op) {\n",
        "long long fn_index(long long ",
        "long long fn_index(int ",
        "long long fn_index(const std::any& ",
        "std::any fn_div_any(const std::any& left, const std::any& right) {\n",
        "std::any fn_add_any(const std::any& left, const std::any& right) {\n",
        "std::string fn_resolve_module_path(const std::string& module_name) {\n",
        "\"/usr/local/lib/Pozhil/தொகுப்புகள்/\"",
        "std::any fn_cast_to_number(const std::any& val, int line_num) {\n",
        "\"test.பொழில்\", line_num);\n",
        "\"test.பொழில்\", line_num);\n",
        "std::any fn_logic_not(const std::any& val) {\n",
        "std::any fn_கோப்பு_எழுது(std::string path, std::string content, std::string file, int "
        "line)",
        "std::any fn_கோப்பு_படி(std::string path, std::string file, int line)",
        "std::any fn_கோப்பு_சேர்(std::string path, std::string content, std::string file, int line)",
        "std::any fn_கோப்பு_அழி(std::string path)",
        "std::any fn_கோப்பு_உள்ளதா(std::string path)",
        "std::any fn_பிளவு(std::string s, std::string delim)",
        "std::any fn_பதில்(std::string s, std::string find, std::string replace)",
        "std::any fn_பெரியஎ(std::string s)",
        "std::any fn_சிறியஎ(std::string s)",
        "std::any fn_சுத்தம்(std::string s)",
        "std::string fn_நேரம்_உருவாக்கு(std::tm* t, const char* format)",
        "std::string fn_தேதி(std::tm* t)",
        "std::string fn_நேரம்(std::tm* t)",
        "std::string fn_முழுவதும்(std::tm* t) {",
        "std::any fn_உள்ளீடு(std::string prompt)",
        "int fn_நீளம்(std::any val)",
        "std::any fn_எடு(std::any obj, std::any key, std::string file, int line)",
        "std::any& fn_index_ref(std::any& obj, const std::any& key, std::string file = \"\", int "
        "line = 0)",
        "std::any fn_index_ref(std::any&& obj, const std::any& key, std::string file = \"\", int "
        "line = 0)",
        "std::any fn_get_property(std::shared_ptr<_StructBase> obj, std::string prop, std::string "
        "file, int line)",
        "std::any fn_set_property(std::any obj, std::string prop, std::any val, std::string file, "
        "int line)",
        "long long fn_மேல்எண்(long double val)",
        "long long fn_கீழ்எண்(long double val)",
        "std::any fn_நீக்கு(std::any& lst_any, const std::any& item, std::string file, int line)",
        "std::any fn_நீக்கு(std::any&& lst_any, const std::any& item, std::string file, int line)",
        "struct WidgetPos {",
        " g_widgetPositions;\n",
        " id_map;\n",
        " g_scrollToId",
        " targetScrollY",
        " currentScrollY",
        "void நகர்த்து(std::string id)",
        "std::any fn_நகர்த்து(std::any id_any)",
        "void updateUI() {}\n",
        "// --- Web Boilerplate ---\n",
        "#ifdef __EMSCRIPTEN__\n",
        "#include <GL/glew.h>\n",
        "#include <GLFW/glfw3.h>\n",
        "#include <emscripten.h>\n",
        "#define NANOVG_GLES2_IMPLEMENTATION\n",
        "#include \"nanovg_gl.h\"\n",
        "NVGcontext* vg = NULL;\n",
        "GLFWwindow* window = NULL;\n",
        "float g_currentClipX = -1.0f;\n",
        "float g_currentClipY = -1.0f;\n",
        "float g_currentClipW = -1.0f;\n",
        "float g_currentClipH = -1.0f;\n",
        "bool g_isHoveringH = false;\n",
        "bool g_nextHoveringH = false;\n",
        "bool g_mouseClicked = false;\n",
        "#endif\n",
        "void init_globals() {\n",
        "int main() {\n",
    };
    const std::string text = generate("");
    std::size_t from = 0;
    for (const char* mark : marks) {
        const std::size_t at = text.find(mark, from);
        ASSERT_NE(at, std::string::npos) << "missing, or not in its place: " << mark;
        from = at + 1;
    }
}

TEST(GeneratedFile, OfAnEmptyProgramReturnsZero) {
    EXPECT_TRUE(endsWith(generate(""), kEmptyMain));
}

TEST(GeneratedFile, HoldsTheStatementsInMain) {
    EXPECT_TRUE(endsWith(generate("அச்சிடு(1)\nஅச்சிடு()\n"),
                         "void init_globals() {\n}\n\nint main() {\n"
                         "    std::cout << fn_any_to_string(1LL) << std::endl;\n"
                         "    std::cout << std::endl;\n"
                         "return 0;\n}\n"));
}

TEST(GeneratedFile, PassesOverWhatIsAbsentOrAbstract) {
    Program program;
    program.statements.push_back(nullptr);
    program.statements.push_back(std::make_unique<AbstractStructDefinitionStatement>(
        Token{TokenType::IDENTIFIER, "அ", 1}, std::vector<AbstractMethod>{}));
    EXPECT_EQ(generateProgram(program), generateProgram(Program{}));
}

TEST(GeneratedFile, LeavesNoPlaceholder) {
    EXPECT_EQ(generate("அச்சிடு(1)").find("POZHIL_"), std::string::npos);
}

TEST(GeneratedFile, IsTheSameForTheSameInput) {
    const std::string source = "அச்சிடு(1, 2.5, \"அ\", 'ஆ', மெய்)\n";
    EXPECT_EQ(generate(source), generate(source));
}

/// The text with the quoted path taken out.
std::string withoutPath(std::string text, const std::string& path) {
    for (std::size_t at = text.find(path); at != std::string::npos; at = text.find(path, at)) {
        text.erase(at, path.size());
    }
    return text;
}

TEST(GeneratedFile, DependsOnThePathOnlyWhereItIsQuoted) {
    const std::string source =
        "கட்டமைப்பு கணக்கு:\n    இருப்பு = 5\n    செயல் சொல்(தான்):\n        திரும்பு தான்.இருப்பு\n"
        "செயல் பார்(ப):\n    ஒவ்வொன்றாக இ இல் ப:\n        அச்சிடு(இ)\n"
        "க = கணக்கு()\nக.இருப்பு = 1\nஅச்சிடு(க.சொல்())\nப = [1]\nப[0] = 2\nஅச்சிடு(ப[0])\n"
        "ப.சேர்(3)\nநீக்கு(ப, 3)\nவை(ப, 0, 1)\nகோப்பு_எழுது(\"a\", 1)\nகோப்பு_சேர்(\"a\", 1)\n"
        "அச்சிடு(கோப்பு_படி(\"a\"), எண்(\"1\"))\n";
    const std::string first = generate(source, "one/அ.பொழில்");
    const std::string second = generate(source, "another/place/ஆ.பொழில்");
    EXPECT_EQ(withoutPath(first, "\"one/அ.பொழில்\""),
              withoutPath(second, "\"another/place/ஆ.பொழில்\""));
}

TEST(GeneratedFile, MayComeFromAFileNamedLikeAPlaceholder) {
    const std::string name = "POZHIL_INITIAL_PAGE";
    const std::string text = generate("", name);
    EXPECT_EQ(text.find(name + "\"\""), std::string::npos);
    EXPECT_NE(text.find("g_currentPage = \"home\";"), std::string::npos);
    EXPECT_EQ(withoutPath(text, "\"" + name + "\""),
              withoutPath(generate("", "other"), "\"other\""));
}

}  // namespace
