// The node of every widget, and those of the layout widgets.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "syntax/animation.h"
#include "syntax/node.h"

using PropertyMap = std::map<std::string, std::unique_ptr<Expression>>;
using WidgetList = std::vector<std::unique_ptr<Statement>>;

/// Alignment of a widget's content.
enum class சீரமைப்பு_வகை {
    மேல்_இடது = 0,
    மேல்_மையம் = 1,
    மேல்_வலது = 2,
    மைய_இடது = 3,
    மையம் = 4,
    மைய_வலது = 5,
    கீழ்_இடது = 6,
    கீழ்_மையம் = 7,
    கீழ்_வலது = 8,
};

struct TextStyle {
    std::string color = "#000000";
    float fontSize = 16.0F;  ///< Pixels.
    std::string fontWeight = "normal";
    std::string textAlign = "left";
    std::string fontFamily;
    bool underline = false;
};

/// Any widget. Its properties, by their literal keys, are what grammar and drawing agree on.
struct WidgetNode : Statement {
    WidgetNode(std::string name, PropertyMap properties, WidgetList children, சீரமைப்பு_வகை alignment,
               bool flag = false)
        : name(std::move(name)),
          properties(std::move(properties)),
          children(std::move(children)),
          alignment(alignment),
          flag(flag) {}

    std::string name;  ///< The widget word as written.
    PropertyMap properties;
    WidgetList children;
    std::string id;  ///< Reserved: always empty, and nothing reads it.
    WidgetList onTapStatements;
    சீரமைப்பு_வகை alignment;
    bool flag;  ///< Reserved: always false, and nothing reads it.
    TextStyle textStyle;
    std::unique_ptr<AnimationNode> animation;  ///< Null if the widget doesn't move.
};

/// What layout widgets have in common: a fixed name; the property map is assigned afterwards.
struct LayoutNode : WidgetNode {
    LayoutNode(const char* name, WidgetList children, சீரமைப்பு_வகை alignment = சீரமைப்பு_வகை::மேல்_இடது,
               bool flag = false)
        : WidgetNode(name, {}, std::move(children), alignment, flag) {}
};

struct ColumnNode : LayoutNode {
    ColumnNode(WidgetList children, சீரமைப்பு_வகை alignment)
        : LayoutNode("நெடுவரிசை", std::move(children), alignment) {}
};

struct RowNode : LayoutNode {
    RowNode(WidgetList children, சீரமைப்பு_வகை alignment)
        : LayoutNode("கிடைவரிசை", std::move(children), alignment) {}
};

struct ListViewNode : LayoutNode {
    explicit ListViewNode(WidgetList children) : LayoutNode("பட்டியல்_காட்சி", std::move(children)) {}
};

struct GridViewNode : LayoutNode {
    explicit GridViewNode(WidgetList children) : LayoutNode("கட்டம்_காட்சி", std::move(children)) {}
};

struct ExpandedNode : LayoutNode {
    explicit ExpandedNode(WidgetList children) : LayoutNode("விரிவாக்கம்", std::move(children)) {}
};

struct FlexibleNode : LayoutNode {
    FlexibleNode(int flex, WidgetList children)
        : LayoutNode("நெகிழ்வு", std::move(children)), flex(flex) {}
    int flex;  ///< Share of the free space.
};

struct PaddingNode : LayoutNode {
    PaddingNode() : LayoutNode("உள்_இவே", {}) {}
    float padding = 0;  ///< Pixels.
};

/// The parser sets none of the added fields: what it reads stands in the properties.
struct ContainerNode : LayoutNode {
    ContainerNode(WidgetList children, சீரமைப்பு_வகை alignment, bool flag = false)
        : LayoutNode("பெட்டி", std::move(children), alignment, flag) {}
    float width = 0;         ///< Pixels.
    float height = 0;        ///< Pixels.
    float cornerRadius = 0;  ///< Pixels.
    std::string color = "#000000";
    std::string backgroundImage;
};

struct SnackBarNode : LayoutNode {
    explicit SnackBarNode(WidgetList children, bool flag = false)
        : LayoutNode("அறிவிப்பு_பட்டை", std::move(children), சீரமைப்பு_வகை::மேல்_இடது, flag) {}
    Statement* content = nullptr;  ///< Owned by `children`.
    std::string backgroundColor = "#333333";
    int durationMs = 3000;
    std::string slideDirection = "கீழ்_இருந்து_மேல்";
    float width = 0;   ///< Pixels.
    float height = 0;  ///< Pixels.
    bool isFloating = true;
};
