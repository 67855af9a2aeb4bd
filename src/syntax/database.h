// The nodes of the realtime database. The line of each, and of its map, is the keyword's.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "syntax/expressions.h"
#include "syntax/node.h"

/// நிகழ்நேர.தரவுசேர்(path) { data }
struct RTDBInsertExpression final : Expression {
    RTDBInsertExpression(std::unique_ptr<Expression> path, std::unique_ptr<MapLiteral> data)
        : path(std::move(path)), data(std::move(data)) {}
    std::unique_ptr<Expression> path;
    std::unique_ptr<MapLiteral> data;
};

/// நிகழ்நேர.தரவுமாற்று(path) { data }
struct RTDBUpdateExpression final : Expression {
    RTDBUpdateExpression(std::unique_ptr<Expression> path, std::unique_ptr<MapLiteral> data)
        : path(std::move(path)), data(std::move(data)) {}
    std::unique_ptr<Expression> path;
    std::unique_ptr<MapLiteral> data;
};

/// நிகழ்நேர.தரவுஅழி(path)
struct RTDBDeleteExpression final : Expression {
    explicit RTDBDeleteExpression(std::unique_ptr<Expression> path) : path(std::move(path)) {}
    std::unique_ptr<Expression> path;
};

/// நிகழ்நேர.தரவுபடி(path) { statements }
struct RTDBReadStatement final : Statement {
    RTDBReadStatement(std::unique_ptr<Expression> path,
                      std::vector<std::unique_ptr<Statement>> body)
        : path(std::move(path)), body(std::move(body)) {}
    std::unique_ptr<Expression> path;
    std::vector<std::unique_ptr<Statement>> body;
};
