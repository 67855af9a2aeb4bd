// Widgets that stand as ordinary statements, outside the widget tree.
#include "generator/generator.h"

/// Any other name writes nothing. Meant.
void Generator::visitWidgetNode(const WidgetNode* widget) {
    if (widget->name == "உரை") {
        genTextWidget(widget);
    } else if (widget->name == "பொத்தான்") {
        genButtonWidget(widget);
    } else if (widget->name == "நெடுவரிசை") {
        genColumnWidget(widget);
    }
}

void Generator::genTextWidget(const WidgetNode* widget) {
    const auto text = widget->properties.find("உரை");
    out << "#ifdef __EMSCRIPTEN__\n";
    indent();
    out << "drawFixedText(50, 50, ";
    if (text == widget->properties.end()) {
        out << "\"\"";
    } else {
        out << "fn_any_to_string(";
        visitExpression(text->second.get());
        out << ").c_str()";
    }
    out << ", \"black\", 20.0, \"left\");\n#endif\n";
}

void Generator::genButtonWidget(const WidgetNode*) {}

void Generator::genColumnWidget(const WidgetNode* widget) {
    for (const auto& child : widget->children) visitStatement(child.get());
}
