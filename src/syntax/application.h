// The nodes of a web application: the application and its sections.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "syntax/node.h"
#include "syntax/statements.h"
#include "syntax/widgets.h"

struct ScreenConfig {
    bool useDefault = true;
    float width = 0;   ///< Pixels.
    float height = 0;  ///< Pixels.
};

/// தலைமை(...)
struct HeaderNode final : WidgetNode {
    HeaderNode(std::string name, PropertyMap properties, WidgetList children, ScreenConfig screen,
               bool flag = false)
        : WidgetNode(std::move(name), std::move(properties), std::move(children),
                     சீரமைப்பு_வகை::மேல்_இடது, flag),
          screen(screen) {}

    ScreenConfig screen;
};

/// வரையறை(...)
struct LogicBlockNode final : Statement {
    explicit LogicBlockNode(std::unique_ptr<BlockStatement> body) : body(std::move(body)) {}
    std::unique_ptr<BlockStatement> body;  ///< May hold nulls, which consumers skip.
};

/// பயர்பேசு_அமைப்பு(...)
struct FirebaseConfigNode final : Statement {
    explicit FirebaseConfigNode(PropertyMap properties) : properties(std::move(properties)) {}
    PropertyMap properties;
};

/// தரவுத்தளமேலாண்மை(...)
struct DatabaseManagerNode final : Statement {
    explicit DatabaseManagerNode(std::unique_ptr<Statement> firebaseConfig)
        : firebaseConfig(std::move(firebaseConfig)) {}
    std::unique_ptr<Statement> firebaseConfig;  ///< Null if none was given.
};

/// வலைதளம் name(...)
struct WebAppNode final : Statement {
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
    bool flag;  ///< Reserved, as in WidgetNode.
};
