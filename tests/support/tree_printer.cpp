#include "support/tree_printer.h"

#include <sstream>

#include "syntax/application.h"
#include "syntax/database.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/statements.h"

namespace {

std::string describeParameters(const std::vector<Param>& parameters) {
    std::string text = "(";
    for (const Param& parameter : parameters) {
        if (text.size() > 1) text += ", ";
        text += (parameter.isMutable ? "&" : "") + parameter.name.text;
    }
    return text + ")";
}

std::string describeNames(const std::vector<Token>& names) {
    std::string text = "(";
    for (const Token& name : names) text += (text.size() > 1 ? ", " : "") + name.text;
    return text + ")";
}

/// As short as it can be told without loss for the numbers that tests use.
std::string describeNumber(float value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

const char* nameOf(சீரமைப்பு_வகை alignment) {
    static const char* const names[] = {"மேல்_இடது", "மேல்_மையம்", "மேல்_வலது", "மைய_இடது", "மையம்",
                                        "மைய_வலது", "கீழ்_இடது",  "கீழ்_மையம்",  "கீழ்_வலது"};
    return names[static_cast<int>(alignment)];
}

/// The class of a widget with what it adds; "widget" for the common one.
std::string describeClass(const WidgetNode* node) {
    if (dynamic_cast<const ColumnNode*>(node) != nullptr) return "column";
    if (dynamic_cast<const RowNode*>(node) != nullptr) return "row";
    if (dynamic_cast<const ListViewNode*>(node) != nullptr) return "list view";
    if (dynamic_cast<const GridViewNode*>(node) != nullptr) return "grid view";
    if (dynamic_cast<const ExpandedNode*>(node) != nullptr) return "expanded";
    if (dynamic_cast<const ContainerNode*>(node) != nullptr) return "container";
    if (const auto* n = dynamic_cast<const FlexibleNode*>(node)) {
        return "flexible of " + std::to_string(n->flex);
    }
    if (const auto* n = dynamic_cast<const PaddingNode*>(node)) {
        return "padding of " + describeNumber(n->padding);
    }
    if (const auto* n = dynamic_cast<const SnackBarNode*>(node)) {
        return "snack bar on " + n->backgroundColor + " for " + std::to_string(n->durationMs) +
               (n->content == nullptr ? "" : " with content");
    }
    if (const auto* n = dynamic_cast<const HeaderNode*>(node)) {
        if (n->screen.useDefault) return "head";
        return "head of " + describeNumber(n->screen.width) + " by " +
               describeNumber(n->screen.height);
    }
    return "widget";
}

class TreePrinter {
public:
    std::string text() const { return out.str(); }

    void print(const std::vector<std::unique_ptr<Statement>>& statements) {
        for (const auto& statement : statements) print(statement.get());
    }

    void print(const Statement* node) {
        if (node == nullptr) return row("null");
        line = node->line;
        if (printControl(node) || printPlain(node) || printDefinition(node) ||
            printApplication(node)) {
            return;
        }
        row("unknown statement");
    }

    void print(const Expression* node) {
        if (node == nullptr) return row("null");
        line = node->line;
        if (printLiteral(node) || printOperation(node) || printCompound(node) ||
            printDatabase(node)) {
            return;
        }
        row("unknown expression");
    }

private:
    std::ostringstream out;
    int depth = 0;
    int line = 0;

    void row(const std::string& label) {
        out << std::string(static_cast<std::size_t>(depth) * 2, ' ') << label;
        if (line != 0) out << " @" << line;
        out << "\n";
        line = 0;
    }

    /// A row with children below it.
    template <typename... Children>
    void branch(const std::string& label, const Children&... children) {
        row(label);
        depth++;
        (print(children.get()), ...);
        depth--;
    }

    /// A row with a list of children below it.
    template <typename List>
    void branchList(const std::string& label, const List& children) {
        row(label);
        depth++;
        for (const auto& child : children) print(child.get());
        depth--;
    }

    /// A named part of a node.
    template <typename Child>
    void part(const std::string& label, const Child& child) {
        depth++;
        branch(label, child);
        depth--;
    }

    bool printLiteral(const Expression* node) {
        if (const auto* n = dynamic_cast<const NumberLiteral*>(node)) {
            row("number " + n->value);
        } else if (const auto* n = dynamic_cast<const DoubleLiteral*>(node)) {
            row("decimal " + n->value);
        } else if (const auto* n = dynamic_cast<const StringLiteral*>(node)) {
            row("string \"" + n->value + "\"");
        } else if (const auto* n = dynamic_cast<const CharLiteral*>(node)) {
            row("character '" + n->value + "'");
        } else if (const auto* n = dynamic_cast<const BooleanLiteral*>(node)) {
            row("boolean " + n->value);
        } else if (const auto* n = dynamic_cast<const PercentageLiteral*>(node)) {
            row("percentage " + n->value);
        } else if (const auto* n = dynamic_cast<const VariableAccess*>(node)) {
            row("name " + n->name);
        } else if (const auto* n = dynamic_cast<const ColorExpression*>(node)) {
            row(n->isHex ? "colour hex " + n->hexValue : "colour named " + n->colorName);
        } else {
            return false;
        }
        return true;
    }

    bool printOperation(const Expression* node) {
        if (const auto* n = dynamic_cast<const GroupingExpression*>(node)) {
            branch("group", n->expression);
        } else if (const auto* n = dynamic_cast<const UnaryExpression*>(node)) {
            branch("unary " + n->op.text, n->right);
        } else if (const auto* n = dynamic_cast<const BinaryExpression*>(node)) {
            branch("binary " + n->op.text, n->left, n->right);
        } else if (const auto* n = dynamic_cast<const LogicalExpression*>(node)) {
            branch("logical " + n->op.text, n->left, n->right);
        } else if (const auto* n = dynamic_cast<const TernaryExpression*>(node)) {
            branch("ternary", n->condition, n->thenBranch, n->elseBranch);
        } else if (const auto* n = dynamic_cast<const AssignmentExpression*>(node)) {
            branch("assign " + n->name + " " + n->op.text, n->value);
        } else {
            return false;
        }
        return true;
    }

    bool printCompound(const Expression* node) {
        if (const auto* n = dynamic_cast<const CallExpression*>(node)) {
            row("call");
            depth++;
            print(n->callee.get());
            branchList("arguments", n->arguments);
            depth--;
        } else if (const auto* n = dynamic_cast<const GetExpression*>(node)) {
            branch("member ." + n->name.text, n->object);
        } else if (const auto* n = dynamic_cast<const SetMemberExpression*>(node)) {
            branch("set member ." + n->name.text, n->object, n->value);
        } else if (const auto* n = dynamic_cast<const IndexExpression*>(node)) {
            branch("index", n->object, n->index);
        } else if (const auto* n = dynamic_cast<const ListLiteral*>(node)) {
            branchList("list", n->elements);
        } else if (const auto* n = dynamic_cast<const MapLiteral*>(node)) {
            row("map");
            for (const auto& entry : n->entries) part("key \"" + entry.first + "\"", entry.second);
        } else if (const auto* n = dynamic_cast<const LambdaExpression*>(node)) {
            branch("lambda " + describeNames(n->parameters), n->body);
        } else if (const auto* n = dynamic_cast<const WidgetExpression*>(node)) {
            branch("widget", n->widget);
        } else {
            return false;
        }
        return true;
    }

    bool printControl(const Statement* node) {
        if (const auto* n = dynamic_cast<const BlockStatement*>(node)) {
            branchList("block", n->statements);
        } else if (const auto* n = dynamic_cast<const IfStatement*>(node)) {
            row("if");
            part("condition", n->condition);
            part("then", n->thenBranch);
            if (n->elseBranch != nullptr) part("else", n->elseBranch);
        } else if (const auto* n = dynamic_cast<const WhileStatement*>(node)) {
            branch("while", n->condition, n->body);
        } else if (const auto* n = dynamic_cast<const ForStatement*>(node)) {
            branch("for " + n->variable.text, n->iterable, n->body);
        } else if (const auto* n = dynamic_cast<const SwitchStatement*>(node)) {
            row("switch");
            part("subject", n->subject);
            for (const CaseBlock& block : n->cases) {
                depth++;
                branch("case", block.value, block.body);
                depth--;
            }
            if (n->defaultBlock != nullptr) part("default", n->defaultBlock);
        } else if (const auto* n = dynamic_cast<const TryCatchStatement*>(node)) {
            branch("try, catch as " + n->errorName, n->tryBlock, n->catchBlock);
        } else {
            return false;
        }
        return true;
    }

    bool printPlain(const Statement* node) {
        if (const auto* n = dynamic_cast<const PrintStatement*>(node)) {
            branchList("print", n->expressions);
        } else if (const auto* n = dynamic_cast<const ExpressionStatement*>(node)) {
            branch("expression", n->expression);
        } else if (const auto* n = dynamic_cast<const VarDeclaration*>(node)) {
            branch(describeDeclaration(*n), n->initializer);
        } else if (const auto* n = dynamic_cast<const SetStatement*>(node)) {
            branch("set", n->target, n->value);
        } else if (const auto* n = dynamic_cast<const CompoundAssignmentStatement*>(node)) {
            branch("compound " + n->op.text, n->target, n->value);
        } else if (const auto* n = dynamic_cast<const IncrementStatement*>(node)) {
            branch("increment " + n->op.text, n->target);
        } else if (const auto* n = dynamic_cast<const ReturnStatement*>(node)) {
            branch("return", n->value);
        } else if (const auto* n = dynamic_cast<const WaitStatement*>(node)) {
            branch("wait", n->duration);
        } else if (dynamic_cast<const BreakStatement*>(node) != nullptr) {
            row("break");
        } else if (dynamic_cast<const ContinueStatement*>(node) != nullptr) {
            row("continue");
        } else if (dynamic_cast<const PassStatement*>(node) != nullptr) {
            row("pass");
        } else if (dynamic_cast<const SetStateStatement*>(node) != nullptr) {
            row("refresh");
        } else {
            return false;
        }
        return true;
    }

    bool printDefinition(const Statement* node) {
        if (const auto* n = dynamic_cast<const FunctionDefinitionStatement*>(node)) {
            branch((n->isPrivate ? "private function " : "function ") + n->name.text +
                       describeParameters(n->parameters),
                   n->body);
        } else if (const auto* n = dynamic_cast<const StructDefinitionStatement*>(node)) {
            row("structure " + n->name.text +
                (n->hasParent ? " of " + n->parentName.text : std::string()));
            depth++;
            for (const auto& field : n->fields) print(field.get());
            for (const auto& method : n->methods) print(method.get());
            depth--;
        } else if (const auto* n = dynamic_cast<const AbstractStructDefinitionStatement*>(node)) {
            row("abstract structure " + n->name.text);
            depth++;
            for (const AbstractMethod& method : n->methods) {
                row("method " + method.name.text + describeParameters(method.parameters));
            }
            depth--;
        } else {
            return false;
        }
        return true;
    }

    bool printDatabase(const Expression* node) {
        if (const auto* n = dynamic_cast<const RTDBInsertExpression*>(node)) {
            branch("insert", n->path, n->data);
        } else if (const auto* n = dynamic_cast<const RTDBUpdateExpression*>(node)) {
            branch("update", n->path, n->data);
        } else if (const auto* n = dynamic_cast<const RTDBDeleteExpression*>(node)) {
            branch("delete", n->path);
        } else {
            return false;
        }
        return true;
    }

    bool printApplication(const Statement* node) {
        if (const auto* n = dynamic_cast<const WebAppNode*>(node)) {
            printWebApp(*n);
        } else if (const auto* n = dynamic_cast<const LogicBlockNode*>(node)) {
            branchList("logic", n->body->statements);
        } else if (const auto* n = dynamic_cast<const DatabaseManagerNode*>(node)) {
            row("database");
            if (n->firebaseConfig == nullptr) return true;
            depth++;
            print(n->firebaseConfig.get());
            depth--;
        } else if (const auto* n = dynamic_cast<const FirebaseConfigNode*>(node)) {
            row("firebase");
            printProperties(n->properties);
        } else if (const auto* n = dynamic_cast<const RTDBReadStatement*>(node)) {
            row("read");
            depth++;
            print(n->path.get());
            branchList("then", n->body);
            depth--;
        } else if (const auto* n = dynamic_cast<const WidgetNode*>(node)) {
            printWidget(*n);
        } else {
            return false;
        }
        return true;
    }

    void printWebApp(const WebAppNode& node) {
        row("application " + node.name + (node.flag ? " flagged" : ""));
        printProperties(node.properties);
        if (node.databaseManager != nullptr) part("database manager", node.databaseManager);
        part("head", node.header);
        part("body", node.body);
        part("logic", node.logic);
    }

    void printProperties(const PropertyMap& properties) {
        for (const auto& property : properties) part(property.first + ":", property.second);
    }

    /// Parts that stand as the constructor left them aren't told.
    void printWidget(const WidgetNode& node) {
        std::string label = describeClass(&node) + " " + node.name;
        if (node.alignment != சீரமைப்பு_வகை::மேல்_இடது) {
            label += std::string(" at ") + nameOf(node.alignment);
        }
        if (node.flag) label += " flagged";
        if (!node.id.empty()) label += " id " + node.id;
        row(label);
        printTextStyle(node.textStyle);
        printProperties(node.properties);
        if (node.animation != nullptr) printAnimation(*node.animation);
        depth++;
        if (!node.onTapStatements.empty()) branchList("on press", node.onTapStatements);
        for (const auto& child : node.children) print(child.get());
        depth--;
    }

    void printTextStyle(const TextStyle& style) {
        const TextStyle plain;
        std::string text;
        if (style.color != plain.color) text += " colour " + style.color;
        if (style.fontSize != plain.fontSize) text += " size " + describeNumber(style.fontSize);
        if (style.fontWeight != plain.fontWeight) text += " weight " + style.fontWeight;
        if (style.textAlign != plain.textAlign) text += " align " + style.textAlign;
        if (style.fontFamily != plain.fontFamily) text += " family " + style.fontFamily;
        if (style.underline != plain.underline) text += " underlined";
        if (!text.empty()) partRow("text style" + text);
    }

    void printAnimation(const AnimationNode& node) {
        std::string text = "animation " + node.curve + " for " + describeNumber(node.duration);
        if (!node.trigger.empty()) text += " on " + node.trigger;
        partRow(text);
        depth++;
        for (const auto& target : node.numberTargets) {
            partRow(target.first + " to " + describeNumber(target.second));
        }
        for (const auto& target : node.stringTargets) {
            partRow(target.first + " to \"" + target.second + "\"");
        }
        depth--;
    }

    /// A part that is told in one row.
    void partRow(const std::string& label) {
        depth++;
        row(label);
        depth--;
    }

    static std::string describeDeclaration(const VarDeclaration& node) {
        return (node.isPrivate ? "private field " : "field ") + node.name + " kind " +
               std::to_string(static_cast<int>(node.type));
    }
};

}  // namespace

std::string printTree(const Program& program) {
    TreePrinter printer;
    printer.print(program.statements);
    return printer.text();
}

std::string printTree(const Expression& expression) {
    TreePrinter printer;
    printer.print(&expression);
    return printer.text();
}

std::string printTables(const Parser& parser) {
    std::ostringstream out;
    for (const auto& [name, parameters] : parser.functionParameters) {
        out << "function " << name << describeParameters(parameters) << "\n";
    }
    for (const auto& [name, node] : parser.structDefinitions) {
        out << "structure " << name << ": " << node->name.text << "\n";
    }
    for (const auto& [name, node] : parser.abstractStructDefinitions) {
        out << "abstract structure " << name << ": " << node->name.text << "\n";
    }
    for (const auto& [name, members] : parser.enumerations) {
        for (const auto& [member, place] : members) {
            out << "enumeration " << name << "." << member << " = " << place << "\n";
        }
    }
    for (const std::string& file : parser.importedFiles) out << "imported " << file << "\n";
    return out.str();
}
