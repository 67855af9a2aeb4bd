// The animation of a widget.
#pragma once

#include <map>
#include <optional>
#include <string>

struct AnimationDelta {
    float value = 0;
    bool isRelative = false;
    bool isNegative = false;
};

/// What an animation moves, one field a target word.
struct AnimationTargetNode {
    std::optional<AnimationDelta> fadeIn;
    std::optional<AnimationDelta> fadeOut;
    std::optional<AnimationDelta> grow;
    std::optional<AnimationDelta> shrink;
    std::optional<AnimationDelta> slideLeft;
    std::optional<AnimationDelta> slideRight;
    std::optional<AnimationDelta> slideUp;
    std::optional<AnimationDelta> slideDown;
    std::optional<AnimationDelta> rotateClockwise;
    std::optional<AnimationDelta> rotateAnticlockwise;
    std::optional<AnimationDelta> moveHorizontal;
    std::optional<AnimationDelta> moveVertical;
    std::optional<AnimationDelta> width;
    std::optional<AnimationDelta> height;
    std::optional<AnimationDelta> curveRadius;
    std::optional<std::string> color;
    bool fadeSlide = false;
    bool fly = false;
};

/// A plain record, owned by its widget.
struct AnimationNode {
    float duration = 0;  ///< Milliseconds.
    std::string curve = "linear";
    std::map<std::string, float> numberTargets;
    std::string trigger;
    std::map<std::string, std::string> stringTargets;
    AnimationTargetNode target;
};
