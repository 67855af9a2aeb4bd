// The frame of a web application: the order of its text, its pages, its start.
#include <filesystem>
#include <fstream>

#include "emitted_text.h"
#include "generator/generator.h"
#include "generator/static_error.h"

namespace {

constexpr std::string_view kPagesPlaceholder = "    POZHIL_PAGES;\n";

const Expression* property(const WidgetNode* widget, const std::string& key) {
    if (widget == nullptr) return nullptr;
    const auto found = widget->properties.find(key);
    return found == widget->properties.end() ? nullptr : found->second.get();
}

}  // namespace

/// The render loop with all pages, and main. Other top-level statements aren't written. Meant.
void Generator::writeWebForm() {
    generateWebBoilerplate(windowSize());
    indentLevel++;
    for (const char* name : {"forcedW", "forcedH", "maxW", "maxH"}) {
        writeLine("float " + std::string(name) + " = -1.0f;");
    }
    for (const auto& statement : program.statements) {
        if (const auto* app = dynamic_cast<const WebAppNode*>(statement.get())) {
            visitWebAppNode(app);
        }
    }
    indentLevel--;
    const std::string_view frame = emitted::web_frame;
    writeText(frame.substr(frame.find(kPagesPlaceholder) + kPagesPlaceholder.size()));
    writeText(emitted::web_main);
}

/// The size that the first application asks for; the default window if it asks for none.
ScreenConfig Generator::windowSize() const {
    const WebAppNode* app = firstWebApp();
    const auto* header = app == nullptr ? nullptr : dynamic_cast<HeaderNode*>(app->header.get());
    const ScreenConfig screen = header == nullptr ? ScreenConfig{} : header->screen;
    return screen.useDefault ? ScreenConfig{true, 1280.0F, 720.0F} : screen;
}

std::string Generator::windowTitle() const {
    const WebAppNode* app = firstWebApp();
    return app == nullptr ? "Pozhil App" : app->name;
}

const WebAppNode* Generator::firstWebApp() const {
    for (const auto& statement : program.statements) {
        if (const auto* app = dynamic_cast<const WebAppNode*>(statement.get())) return app;
    }
    return nullptr;
}

/// Helpers and the head of render_frame. The size isn't read: main opens the window.
void Generator::generateWebBoilerplate(const ScreenConfig&) {
    const std::string_view frame = emitted::web_frame;
    writeText(frame.substr(0, frame.find(kPagesPlaceholder)));
}

/// One page: if (g_currentPage == "...") { background; title; widgets }
void Generator::visitWebAppNode(const WebAppNode* app) {
    if (app->databaseManager != nullptr) {
        throw_static_error("பொழில்-399", "Unknown statement type in generator");
    }
    const auto* header = dynamic_cast<const WidgetNode*>(app->header.get());
    const auto* page = dynamic_cast<const StringLiteral*>(property(header, "பக்கம்"));
    openBrace("if (g_currentPage == \"" + (page == nullptr ? "home" : page->value) + "\") ");
    writeLine("nvgBeginPath(vg);");
    writeLine("nvgRect(vg, 0, 0, winWidth, winHeight);");
    writeLine("bool bgSet = false;");
    writePageColour(property(header, "பின்னணி"));
    writePageImage(property(header, "பின்னணிபடம்"));
    writePageVideo(property(header, "பின்னணிகாணொளி"));
    writeLine("if (!bgSet) nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));");
    writeLine("nvgFill(vg);");
    writePageTitle(property(header, "இணைய_தலைப்பு"));
    generateUI(app->body.get());
    closeBrace();
}

void Generator::writeLine(const std::string& text) {
    indent();
    out << text << "\n";
}

void Generator::writePageColour(const Expression* value) {
    const auto* colour = dynamic_cast<const ColorExpression*>(value);
    if (colour == nullptr) return;
    writeLine("nvgFillColor(vg, nvgRGBAf(" + channelTexts(*colour) + "));");
    writeLine("nvgFill(vg);");
    writeLine("bgSet = true;");
}

/// Loaded once, tried once: a failure leaves 0 and not -1.
void Generator::writePageImage(const Expression* value) {
    if (value == nullptr) return;
    openBrace("");
    writeLine("static int bgImgHandle = -1;");
    openBrace("if (bgImgHandle == -1) ");
    indent();
    out << "std::string bgPath = fn_any_to_string(";
    visitExpression(value);
    out << ");\n";
    writeLine("bgImgHandle = nvgCreateImage(vg, bgPath.c_str(), 0);");
    closeBrace();
    openBrace("if (bgImgHandle > 0) ");
    writeLine(
        "nvgFillPaint(vg, nvgImagePattern(vg, 0, 0, winWidth, winHeight, 0, bgImgHandle, 1.0f));");
    writeLine("nvgFill(vg);");
    writeLine("bgSet = true;");
    closeBrace();
    closeBrace();
}

/// Raises 254 for a literal path that doesn't open; any other value is left to the run.
void Generator::checkMediaFile(const Expression* value, const std::string& detail) {
    const auto* path = dynamic_cast<const StringLiteral*>(value);
    if (path == nullptr || std::ifstream(std::filesystem::u8path(path->value)).is_open()) return;
    பிழை("பொழில்-254", path->line, detail + path->value);
}

/// Each page starts its own once: one that is left and comes back doesn't start it again.
void Generator::writePageVideo(const Expression* value) {
    if (value == nullptr) return;
    checkMediaFile(value, "ஊடகப் பிழை: காணொளியின் முகவரி சரியாக இல்லை (");
    openBrace("");
    writeLine("static bool bgVideoStarted = false;");
    openBrace("if (!bgVideoStarted) ");
    writeLine("bgVideoStarted = true;");
    indent();
    out << "std::string videoPath = fn_any_to_string(";
    visitExpression(value);
    out << ");\n";
    writeLine("startBackgroundVideo(videoPath.c_str());");
    closeBrace();
    closeBrace();
    writeLine("nvgFillColor(vg, nvgRGBA(0, 0, 0, 0));");
    writeLine("bgSet = true;");
}

/// The title is written anew in each frame.
void Generator::writePageTitle(const Expression* value) {
    if (value == nullptr) return;
    indent();
    out << "emscripten::val::global(\"document\").set(\"title\", fn_any_to_string(";
    visitExpression(value);
    out << "));\n";
}

void Generator::generateHeader(const Statement* statement) {
    const auto* header = dynamic_cast<const WidgetNode*>(statement);
    if (header == nullptr) return;
    const auto* title = dynamic_cast<const StringLiteral*>(property(header, "இணைய_தலைப்பு"));
    writeLine("emscripten::val::global(\"document\").set(\"title\", std::string(u8\"" +
              (title == nullptr ? "பொழில் தளம்" : title->value) + "\"));");
    const auto* colour = dynamic_cast<const ColorExpression*>(property(header, "பின்னணி"));
    if (colour != nullptr) {
        writeLine("glClearColor(" + channelTexts(*colour) + ");");
    }
    for (const char* key : {"சின்னம்", "பின்னணிபடம்", "பின்னணிகாணொளி"}) {
        checkMediaFile(property(header, key), "ஊடகப் பிழை: முகவரி சரியாக இல்லை (");
    }
}

void Generator::generateUI(const Statement* statement) {
    if (const auto* widget = dynamic_cast<const WidgetNode*>(statement)) {
        generateWidgetCode(widget, "0.0f", "0.0f");
    }
}
