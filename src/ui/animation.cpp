#include "ui/animation.h"

#include "ui/colours.h"
#include "widget_templates.h"
#include "writing/texts.h"

namespace {

/// The targets that are numbers, by their word and by what the template calls them.
const struct {
    const char* word;
    const char* isSet;
    const char* value;
} kNumberTargets[] = {
    {"அகலம்", "HAS_WIDTH", "WIDTH"},         {"உயரம்", "HAS_HEIGHT", "HEIGHT"},
    {"வளைவு", "HAS_RADIUS", "RADIUS"},      {"விரிவு", "HAS_SCALE", "SCALE"},
    {"கி_நகர்வு", "HAS_SHIFT_X", "SHIFT_X"}, {"நெ_நகர்வு", "HAS_SHIFT_Y", "SHIFT_Y"},
};

/// The colour that a target names; null without one.
const std::string* colourTarget(const AnimationNode& animation,
                                std::initializer_list<const char*> keys) {
    for (const char* key : keys) {
        const auto found = animation.stringTargets.find(key);
        if (found != animation.stringTargets.end()) return &found->second;
    }
    return nullptr;
}

}  // namespace

void writeAnimation(WidgetWriter& w, const Site& at, const Moved& moved,
                    std::initializer_list<const char*> colourKeys,
                    const std::function<void()>& turnColour) {
    const AnimationNode* animation = at.node.animation.get();
    if (animation == nullptr) return;
    const std::string* colour = colourTarget(*animation, colourKeys);
    Fills fills = {{"TRIGGER", asWritten(animation->trigger)},
                   {"KEY", at.id + "ULL"},
                   {"LEFT", moved.x},
                   {"TOP", moved.y},
                   {"W", moved.w},
                   {"H", moved.h},
                   {"DURATION", to_fstr(animation->duration)},
                   {"CURVE", asWritten(animation->curve)},
                   {"HAS_COLOUR", colour != nullptr},
                   {"COLOUR", colour == nullptr ? "" : channelTexts(colourOfText(*colour))},
                   {"TURN_COLOUR", turnColour}};
    for (const auto& target : kNumberTargets) {
        const auto found = animation->numberTargets.find(target.word);
        const bool isSet = found != animation->numberTargets.end();
        fills.push_back({target.isSet, isSet});
        fills.push_back({target.value, isSet ? to_fstr(found->second) : ""});
    }
    w.text.block("", [&] { w.text.fill(widget_templates::animation, fills); });
}
