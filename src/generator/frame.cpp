// The generated file from top to bottom: the table of its sections, and the sections that depend
// on the program.
#include <stdexcept>

#include "emitted_text.h"
#include "generator/generator.h"
#include "ui/web_form.h"
#include "writing/marks.h"
#include "writing/texts.h"

namespace {

/// Guards the wrappers of statements at file scope. It is only ever cleared, so they are never
/// written. Meant.
bool g_isGlobalScope = false;

}  // namespace

/// Marks text that every program carries to the letter: an object holds it compiled, and the warmed
/// header says so. The compiler of programs then passes over it; without that header it compiles
/// it.
constexpr bool kHeld = true;

// Each section needs only what stands before it. An empty one keeps the place of text to come.
const Generator::Section Generator::kSections[] = {
    {"includes", emitted::includes, nullptr},
    {"web: text layer and clipboard", emitted::web_text_layer, nullptr},
    {"globals: the variables", emitted::variables, nullptr, kHeld},
    {"globals", emitted::globals, nullptr, kHeld},
    {"globals: count of calls", emitted::call_guard, nullptr, kHeld},
    {"globals: size of the screen", emitted::screen_size, nullptr, kHeld},
    {"navigation", emitted::navigation, nullptr},
    {"input state", emitted::input_state, nullptr, kHeld},
    {"web: entry points", emitted::web_entry_points, nullptr},
    {"web: keyboard", emitted::web_keyboard, nullptr},
    {"base structures and diagnostics headers", emitted::base_structures, nullptr, kHeld},
    {"run-time failures", emitted::runtime_failure, nullptr, kHeld},

    {"values: as text", emitted::any_to_string, nullptr, kHeld},
    {"values: texts as they stand", emitted::plain_text, nullptr, kHeld},
    {"values: as JavaScript", emitted::any_to_json, nullptr, kHeld},
    {"values: names of their kinds", emitted::type_names, nullptr, kHeld},
    {"values: as native numbers", emitted::number_values, nullptr, kHeld},
    {"values: comparison", emitted::comparison, nullptr, kHeld},
    {"values: indices", emitted::indices, nullptr, kHeld},
    {"values: arithmetic", emitted::arithmetic, nullptr, kHeld},
    {"module search", emitted::module_path, nullptr, kHeld},
    {"values: numbers in texts", emitted::number_reading, nullptr, kHeld},
    {"values: conversion", emitted::conversion, nullptr},
    {"values: negation", emitted::negation, nullptr, kHeld},
    {"animation: its state", emitted::animation_state, nullptr, kHeld},
    {"animation: those that run", emitted::animations, nullptr, kHeld},
    {"animation: the engine", emitted::animation, nullptr, kHeld},

    {"library: files", emitted::files, nullptr, kHeld},
    {"library: text", emitted::text, nullptr, kHeld},
    {"library: time", emitted::time, nullptr, kHeld},
    {"library: input", emitted::input, nullptr, kHeld},
    {"library: length", emitted::length, nullptr, kHeld},
    {"library: element access", emitted::element_access, nullptr, kHeld},
    {"library: properties", emitted::properties, nullptr, kHeld},
    {"library: rounding", emitted::rounding, nullptr, kHeld},
    {"library: removal", emitted::removal, nullptr, kHeld},

    {"scroll state: a place", emitted::widget_position, nullptr, kHeld},
    {"scroll state", emitted::scroll_state, nullptr, kHeld},
    {"scroll state: its request", emitted::scrolling, nullptr},
    {"web: boilerplate", emitted::web_boilerplate, nullptr},
    {"web: background video", emitted::web_background_video, nullptr},
    {"web: texts in boxes", emitted::web_box_text, nullptr},
    {"web: animated images", emitted::web_gif_image, nullptr},
    {"web: inputs", emitted::web_inputs, nullptr},

    {"structures", "", &Generator::writeStructures},
    {"functions", "", &Generator::writeFunctions},
    {"init_globals", "", &Generator::writeInitGlobals},
    {"main", "", &Generator::writeMain},
};

std::string Generator::generate() {
    out.imbue(std::locale::classic());  // a decimal point in every locale
    bool isInHeld = false;
    for (const Section& section : kSections) {
        if (section.isHeld != isInHeld) {
            out << (section.isHeld ? "#ifndef pozhil_runtime_is_held\n" : "#endif\n\n");
            isInHeld = section.isHeld;
        }
        if (section.write == nullptr) {
            writeText(section.text);
        } else {
            (this->*section.write)();
        }
    }
    return out.str();
}

/// Runtime text with its placeholders filled in, and a blank line behind it.
void Generator::writeText(std::string_view section) {
    if (section.empty()) return;
    fillMarks(out, section, kCodeMarks, [this](std::string_view name) {
        if (name == "SOURCE_FILE") {
            out << sourceFile;
        } else if (name == "INITIAL_PAGE") {
            out << asWritten(web->head().initialPage);
        } else {
            throw std::logic_error("placeholder " + std::string(name) + " isn't filled");
        }
        return true;
    });
    out << "\n";
}

/// The definitions of one class: those at top level, then those that stand directly in an
/// application's logic, in source order. All of them are written at file scope.
template <typename Definition, typename Visit>
void Generator::visitDefinitions(Visit visit) {
    for (const auto& statement : program.statements) {
        if (const auto* node = nodeAs<Definition>(statement.get())) visit(node);
    }
    for (const auto& statement : program.statements) {
        const auto* app = nodeAs<WebAppNode>(statement.get());
        if (app == nullptr) continue;
        const auto* logic = nodeAs<LogicBlockNode>(app->logic.get());
        if (logic == nullptr || logic->body == nullptr) continue;
        for (const auto& inner : logic->body->statements) {
            if (const auto* node = nodeAs<Definition>(inner.get())) visit(node);
        }
    }
}

void Generator::writeStructures() {
    visitDefinitions<StructDefinitionStatement>(
        [this](const auto* node) { visitStructDefinitionStatement(node); });
}

/// In source order, without prototypes: a function can call what stands before it, and itself.
void Generator::writeFunctions() {
    visitDefinitions<FunctionDefinitionStatement>(
        [this](const auto* node) { visitFunctionDefinitionStatement(node); });
}

void Generator::writeInitGlobals() {
    out << "void init_globals() ";
    text.braces([this] {
        for (const auto& statement : program.statements) {
            const auto* app = nodeAs<WebAppNode>(statement.get());
            if (app == nullptr) continue;
            const auto* manager = nodeAs<DatabaseManagerNode>(app->databaseManager.get());
            if (manager != nullptr) visitDatabaseManagerNode(manager);
        }
        g_isGlobalScope = false;
        for (const auto& statement : program.statements) {
            if (const auto* app = nodeAs<WebAppNode>(statement.get())) {
                generateLogic(app->logic.get());
            }
        }
    });
    out << "\n\n";
}

void Generator::writeMain() {
    if (web->head().isApplication) {
        web->write();
    } else {
        writeConsoleMain();
    }
}

/// It doesn't call init_globals. Meant: a console program has nothing there.
void Generator::writeConsoleMain() {
    out << "int main() {\n";
    indentLevel++;
    for (const auto& statement : program.statements) {
        const Statement* node = statement.get();
        if (node == nullptr || nodeAs<StructDefinitionStatement>(node) != nullptr ||
            nodeAs<FunctionDefinitionStatement>(node) != nullptr ||
            nodeAs<AbstractStructDefinitionStatement>(node) != nullptr) {
            continue;
        }
        visitStatement(node);
    }
    indentLevel--;
    text.line("return 0;");  // at the margin
    out << "}\n";
}

void Generator::generateLogic(const Statement* statement) {
    if (const auto* logic = nodeAs<LogicBlockNode>(statement)) {
        visitLogicBlockNode(logic);
    }
}

void Generator::visitLogicBlockNode(const LogicBlockNode* logic) {
    if (logic->body == nullptr) return;
    for (const auto& statement : logic->body->statements) {
        // Functions were written at file scope.
        const bool isFunction = nodeAs<FunctionDefinitionStatement>(statement.get()) != nullptr;
        if (statement != nullptr && !isFunction) visitStatement(statement.get());
    }
}
