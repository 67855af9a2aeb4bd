// The nodes of a web application: the application, its sections, and the node of every widget.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "syntax/animation.h"
#include "syntax/node.h"
#include "syntax/statements.h"

using PropertyMap = std::map<std::string, std::unique_ptr<Expression>>;

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

struct ScreenConfig {
    bool useDefault = true;
    float width = 0;   ///< Pixels.
    float height = 0;  ///< Pixels.
};

/// Any widget. Its properties, by their literal keys, are what grammar and drawing agree on.
struct WidgetNode : Statement {
    WidgetNode(std::string name, PropertyMap properties,
               std::vector<std::unique_ptr<Statement>> children, சீரமைப்பு_வகை alignment, bool flag)
        : name(std::move(name)),
          properties(std::move(properties)),
          children(std::move(children)),
          alignment(alignment),
          flag(flag) {}

    std::string name;  ///< The widget word as written.
    PropertyMap properties;
    std::vector<std::unique_ptr<Statement>> children;
    std::string id;
    std::vector<std::unique_ptr<Statement>> onTapStatements;
    சீரமைப்பு_வகை alignment;
    bool flag;
    TextStyle textStyle;
    std::unique_ptr<AnimationNode> animation;  ///< Null if the widget doesn't move.
};

/// தலைமை(...)
struct HeaderNode : WidgetNode {
    HeaderNode(std::string name, PropertyMap properties,
               std::vector<std::unique_ptr<Statement>> children, ScreenConfig screen, bool flag)
        : WidgetNode(std::move(name), std::move(properties), std::move(children),
                     சீரமைப்பு_வகை::மேல்_இடது, flag),
          screen(screen) {}

    ScreenConfig screen;
};

/// வரையறை(...)
struct LogicBlockNode : Statement {
    explicit LogicBlockNode(std::unique_ptr<BlockStatement> body) : body(std::move(body)) {}
    std::unique_ptr<BlockStatement> body;  ///< May hold nulls, which consumers skip.
};

/// வலைதளம் name(...)
struct WebAppNode : Statement {
    WebAppNode(std::string name, std::unique_ptr<Statement> databaseManager,
               std::unique_ptr<Statement> header, std::unique_ptr<Statement> body,
               std::unique_ptr<Statement> logic, bool flag = false)
        : name(std::move(name)),
          databaseManager(std::move(databaseManager)),
          header(std::move(header)),
          body(std::move(body)),
          logic(std::move(logic)),
          flag(flag) {}

    std::string name;
    std::unique_ptr<Statement> databaseManager;  ///< Null if none was given.
    std::unique_ptr<Statement> header;
    std::unique_ptr<Statement> body;  ///< Null for an empty body.
    std::unique_ptr<Statement> logic;
    PropertyMap properties;
    bool flag;
};
