// The widget tree of a page. So far it shows texts: each on a line of its own below the last, at
// the size and in the colour that its style gives.
#include "generator/generator.h"

namespace {

constexpr int kLineHeight = 32;  // pixels

}  // namespace

void Generator::generateWidgetCode(const WidgetNode* widget, const std::string& x,
                                   const std::string& y) {
    int line = 0;
    writeTexts(*widget, x, y, line);
}

void Generator::writeTexts(const WidgetNode& widget, const std::string& x, const std::string& y,
                           int& line) {
    const auto text = widget.properties.find("உரை");
    if (widget.name == "உரை" && text != widget.properties.end()) {
        const TextStyle& style = widget.textStyle;
        indent();
        out << "drawFixedText(" << x << " + 16.0f, " << y << " + "
            << to_fstr(static_cast<float>(16 + kLineHeight * line)) << ", fn_any_to_string(";
        visitExpression(text->second.get());
        out << ").c_str(), " << quoted(style.color) << ", " << to_fstr(style.fontSize)
            << ", \"left\");\n";
        line++;
    }
    for (const auto& child : widget.children) {
        if (const auto* inner = dynamic_cast<const WidgetNode*>(child.get())) {
            writeTexts(*inner, x, y, line);
        }
    }
}
