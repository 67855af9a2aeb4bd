#include "ui/properties.h"

const Expression* property(const WidgetNode& widget, const std::string& key) {
    const auto found = widget.properties.find(key);
    return found == widget.properties.end() ? nullptr : found->second.get();
}

bool isEnabled(const WidgetNode& widget) { return property(widget, "செயலிழப்பு") == nullptr; }

const Expression* styledProperty(const WidgetNode& widget, const std::string& key) {
    const Expression* styled = property(widget, "style_" + key);
    return styled != nullptr ? styled : property(widget, key);
}

const std::string* stringProperty(const WidgetNode& widget, const std::string& key) {
    const auto* literal = dynamic_cast<const StringLiteral*>(property(widget, key));
    return literal == nullptr ? nullptr : &literal->value;
}

const std::string* numberProperty(const WidgetNode& widget, const std::string& key) {
    const auto* literal = dynamic_cast<const NumberLiteral*>(property(widget, key));
    return literal == nullptr ? nullptr : &literal->value;
}

const WidgetNode* widgetOf(const Expression* value) {
    const auto* carrier = dynamic_cast<const WidgetExpression*>(value);
    return carrier == nullptr ? nullptr : dynamic_cast<const WidgetNode*>(carrier->widget.get());
}

bool isTrueLiteral(const WidgetNode& widget, const std::string& key) {
    const auto* literal = dynamic_cast<const BooleanLiteral*>(property(widget, key));
    return literal != nullptr && literal->value == "மெய்";
}

std::vector<const WidgetNode*> widgetChildren(const WidgetNode& widget) {
    std::vector<const WidgetNode*> widgets;
    for (const auto& child : widget.children) {
        if (const auto* node = dynamic_cast<const WidgetNode*>(child.get())) {
            widgets.push_back(node);
        }
    }
    return widgets;
}

const WidgetNode* firstWidget(const WidgetNode& widget) {
    for (const auto& child : widget.children) {
        if (const auto* node = dynamic_cast<const WidgetNode*>(child.get())) return node;
    }
    return nullptr;
}

const WidgetNode* childNamed(const WidgetNode& widget, const std::string& name) {
    for (const auto& child : widget.children) {
        const auto* node = dynamic_cast<const WidgetNode*>(child.get());
        if (node != nullptr && node->name == name) return node;
    }
    return nullptr;
}

const WidgetNode* childWithString(const WidgetNode& widget, const std::string& name,
                                  const std::string& key) {
    for (const WidgetNode* child : widgetChildren(widget)) {
        if (child->name == name && stringProperty(*child, key) != nullptr) return child;
    }
    return nullptr;
}
