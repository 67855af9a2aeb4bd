// Widgets that stand as ordinary statements, outside the widget tree.
#include "ui/properties.h"
#include "ui/web_form.h"

/// Any other name writes nothing, a button neither. Meant.
void WebForm::visitWidgetNode(const WidgetNode& widget) {
    if (widget.name == "உரை") {
        genTextWidget(widget);
    } else if (widget.name == "நெடுவரிசை") {
        genColumnWidget(widget);
    }
}

void WebForm::genTextWidget(const WidgetNode& widget) {
    const Expression* content = property(widget, "உரை");
    text.out << "#ifdef __EMSCRIPTEN__\n";
    text.indent();
    text.out << "drawFixedText(50, 50, ";
    if (content == nullptr) {
        text.out << "\"\"";
    } else {
        text.out << "fn_any_to_string(";
        programText.visitExpression(content);
        text.out << ").c_str()";
    }
    text.out << ", \"black\", 20.0, \"left\");\n#endif\n";
}

void WebForm::genColumnWidget(const WidgetNode& widget) {
    for (const auto& child : widget.children) programText.visitStatement(child.get());
}
