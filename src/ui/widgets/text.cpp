// Texts.
#include "ui/properties.h"
#include "ui/widgets/kinds.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

std::string globalText(const std::string& name) { return "global_vars[\"" + name + "\"]"; }

/// The face that a text is drawn with outside a browser.
std::string faceText(const std::string& weight) {
    for (const char* heavy : {"700", "800", "900", "தடிமனான", "bold"}) {
        if (weight == heavy) return "\"tamil_font\"";
    }
    return "\"sans\"";
}

/// The value of a target that is a number; null without one.
const float* numberTarget(const AnimationNode* animation, const char* word) {
    if (animation == nullptr) return nullptr;
    const auto found = animation->numberTargets.find(word);
    return found == animation->numberTargets.end() ? nullptr : &found->second;
}

/// The places of an animation in the text's template; all empty without one.
void addAnimation(Fills& fills, const Site& at) {
    static const AnimationNode kNone;
    const AnimationNode* own = at.node.animation.get();
    const AnimationNode& animation = own == nullptr ? kNone : *own;
    const float* target = numberTarget(own, "மதிப்பு");
    fills.insert(fills.end(), {{"IS_ANIMATED", own != nullptr},
                               {"KEY", at.id + "ULL"},
                               {"TRIGGER", asWritten(animation.trigger)},
                               {"DURATION", to_fstr(animation.duration)},
                               {"CURVE", asWritten(animation.curve)},
                               {"FADES", numberTarget(own, "மங்குநழுவு") != nullptr},
                               {"COUNTS", target != nullptr},
                               {"TARGET", to_fstr(target == nullptr ? 0 : *target)}});
}

}  // namespace

float fontSizeOf(const WidgetNode& text) {
    return text.textStyle.fontSize > 0 ? text.textStyle.fontSize : kFontSize;
}

Fill contentOf(WidgetWriter& w, std::string_view name, const WidgetNode& text) {
    const Expression* content = property(text, "உரை");
    if (content == nullptr) return {name, std::string("std::string(\"\")")};
    if (const auto* member = dynamic_cast<const GetExpression*>(content)) {
        const auto* object = dynamic_cast<const VariableAccess*>(member->object.get());
        if (object != nullptr && object->name == "காட்சி_நிலை") {
            return {name, globalText(member->name.text)};
        }
    }
    if (const auto* variable = dynamic_cast<const VariableAccess*>(content)) {
        return {name, globalText(variable->name)};
    }
    if (const WidgetNode* widget = widgetOf(content)) {
        const Expression* own = property(*widget, "உரை");
        if (own == nullptr) return {name, std::string("std::string(u8\"[விட்ஜெட்]\")")};
        return w.expression(name, own);
    }
    return w.expression(name, content);
}

void writeText(WidgetWriter& w, const Site& at) {
    const TextStyle& style = at.node.textStyle;
    const std::string written = orDefault(style.color, "#000000");
    const PozhilColor colour = parsePozhilColor(written, written[0] == '#');
    const std::string weight = orDefault(style.fontWeight, "400");
    Fills fills = {contentOf(w, "CONTENT", at.node),
                   {"FONT_SIZE", to_fstr(fontSizeOf(at.node))},
                   {"IS_CENTRED", style.textAlign == "மையம்" || style.textAlign == "center"},
                   {"COLOUR", asWritten(cssText(colour))},
                   {"WEIGHT", asWritten(weight)},
                   {"UNDERLINE", style.underline ? "true" : "false"},
                   {"FONT", asWritten(style.fontFamily)},
                   {"FACE", faceText(weight)},
                   {"CHANNELS", channelTexts(colour)}};
    addAnimation(fills, at);
    w.fill(widget_templates::text, at, fills);
}
