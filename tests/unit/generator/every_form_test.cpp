// Every form that the grammar accepts has a text: each kind of expression in each place that takes
// one, each statement in each block, each widget with each of its keys. The generator's last word,
// பொழில்-399, is left to a short table of forms that are no value.
#include <cxxabi.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <typeinfo>

#include "support/generated_text.h"
#include "support/pattern.h"
#include "unit/generator/walked_forms.h"

namespace {

const char* const kUnknown = "பொழில்-399";

/// The code in which the source ends; "" if it has a text.
std::string endOf(const std::string& source) {
    try {
        generate(source);
        return "";
    } catch (const Refusal& refusal) {
        return refusal.code;
    } catch (const std::runtime_error& error) {
        const std::string text = error.what();
        return text.substr(0, text.find(':'));
    }
}

/// The pattern with `form` in the place of each $.
std::string filled(const std::string& pattern, const std::string& form) {
    std::string source;
    for (const char letter : pattern) {
        if (letter == '$')
            source += form;
        else
            source += letter;
    }
    return source;
}

/// Lines of `form` in the place of the line that is a $, each indented as it is.
std::string filledBlock(const std::string& pattern, const std::string& form) {
    std::istringstream lines(pattern);
    std::string source;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t at = line.find('$');
        if (at == std::string::npos) {
            source += line + "\n";
            continue;
        }
        std::istringstream inner(form);
        for (std::string part; std::getline(inner, part);)
            source += line.substr(0, at) + part + "\n";
    }
    return source;
}

std::string className(const std::type_info& type) {
    int status = 0;
    char* text = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
    const std::string name = text == nullptr ? "" : text;
    std::free(text);
    return name;
}

/// The names of all structures of the tree that derive from `base` at once.
std::set<std::string> nodesOf(const std::string& base) {
    const Pattern heading("struct (\\w+)(?: final)? : " + base + " ");
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(POZHIL_ROOT "/src/syntax")) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            if (const auto match = heading.first(line)) names.insert((*match)[1]);
        }
    }
    return names;
}

/// Adds the class of the expression that the form is, and of what it has in brackets.
void addClasses(std::set<std::string>& names, const std::string& form) {
    const Parsed parsed = parse("பொத்தான்(\n    அழுத்தினால்: " + form + ")\n");
    const auto& widget = dynamic_cast<const WidgetNode&>(*parsed.program.statements.at(0));
    const Expression* value = widget.properties.at("அழுத்தினால்").get();
    while (value != nullptr) {
        names.insert(className(typeid(*value)));
        const auto* group = dynamic_cast<const GroupingExpression*>(value);
        value = group == nullptr ? nullptr : group->expression.get();
    }
}

/// Adds the classes of the statements; none where they only stand inside others.
void addStatementClasses(std::set<std::string>& names, const std::string& source) {
    try {
        const Parsed parsed = parse(source);
        for (const auto& statement : parsed.program.statements) {
            if (const Statement* node = statement.get()) names.insert(className(typeid(*node)));
        }
    } catch (const Refusal&) {
        return;
    }
}

std::vector<std::string> allExpressions() {
    std::vector<std::string> forms(std::begin(kExpressions), std::end(kExpressions));
    forms.insert(forms.end(), std::begin(kNoValues), std::end(kNoValues));
    return forms;
}

// ---- The walk goes everywhere ----

TEST(EveryForm, StandsForEachClassOfExpression) {
    std::set<std::string> walked;
    for (const std::string& form : allExpressions()) addClasses(walked, form);
    EXPECT_EQ(walked, nodesOf("Expression"));
}

TEST(EveryForm, StandsForEachClassOfStatement) {
    std::set<std::string> walked(std::begin(kInnerStatements), std::end(kInnerStatements));
    for (const char* form : kStatements) addStatementClasses(walked, form);
    for (const std::string& name : nodesOf("Statement")) {
        EXPECT_EQ(walked.count(name), 1U) << name << " is in no row";
    }
}

// ---- Expressions ----

TEST(EveryForm, OfAnExpressionHasATextInEachPlace) {
    int texts = 0;
    for (const char* place : kPlaces) {
        for (const char* form : kExpressions) {
            const std::string source = kSurroundings + filled(place, form);
            const std::string end = endOf(source);
            EXPECT_NE(end, kUnknown) << source;
            texts += end.empty() ? 1 : 0;
        }
    }
    EXPECT_GT(texts, 1000) << "what is refused for another reason proves nothing";
}

TEST(EveryForm, HasAPlaceInWhichItIsAccepted) {
    for (const char* form : kExpressions) {
        bool isAccepted = false;
        for (const char* place : kPlaces) {
            isAccepted = isAccepted || endOf(kSurroundings + filled(place, form)).empty();
        }
        EXPECT_TRUE(isAccepted) << form;
    }
    for (const char* place : kPlaces) {
        bool isAccepted = false;
        for (const char* form : kExpressions) {
            isAccepted = isAccepted || endOf(kSurroundings + filled(place, form)).empty();
        }
        EXPECT_TRUE(isAccepted) << place;
    }
}

TEST(EveryForm, ThatIsNoValueIsRefusedAsUnknown) {
    for (const char* form : kNoValues) {
        EXPECT_EQ(endOf(kSurroundings + filled("அ = $\n", form)), kUnknown) << form;
        EXPECT_EQ(endOf(kSurroundings + filled("அச்சிடு($)\n", form)), kUnknown) << form;
    }
}

/// A share of a size is one where a size is asked for.
TEST(EveryForm, OfAShareIsASize) {
    for (const char* key : {"அகலம்", "உயரம்"}) {
        EXPECT_EQ(endOf("வலைதளம்(தலைமை() வரையறை() குமரி(படம்(" + std::string(key) + ": 50%)))\n"), "")
            << key;
    }
}

// ---- Statements ----

TEST(EveryForm, OfAStatementHasATextInEachBlock) {
    int texts = 0;
    for (const char* block : kBlocks) {
        for (const char* form : kStatements) {
            const std::string source = kSurroundings + filledBlock(block, form);
            const std::string end = endOf(source);
            EXPECT_NE(end, kUnknown) << source;
            texts += end.empty() ? 1 : 0;
        }
    }
    EXPECT_GT(texts, 100) << "what is refused for another reason proves nothing";
}

TEST(EveryForm, OfAStatementIsAcceptedSomewhere) {
    for (const char* form : kStatements) {
        bool isAccepted = false;
        for (const char* block : kBlocks) {
            isAccepted = isAccepted || endOf(kSurroundings + filledBlock(block, form)).empty();
        }
        EXPECT_TRUE(isAccepted) << form;
    }
}

// ---- Widgets ----

std::string application(const std::string& widget) {
    return "வலைதளம்(தலைமை() வரையறை() குமரி(நெடுவரிசை(" + widget + ")))\n";
}

/// The words of the table by which the web form finds what draws a widget.
std::vector<std::string> drawnWords() {
    std::ifstream file(POZHIL_ROOT "/src/ui/widget_frame.cpp");
    const Pattern row("^    \\{\"([^\"]+)\", write\\w+\\},");
    std::vector<std::string> words;
    for (std::string line; std::getline(file, line);) {
        if (const auto match = row.first(line)) words.push_back((*match)[1]);
    }
    return words;
}

TEST(EveryWidget, ThatIsDrawnIsWalked) {
    const std::vector<std::string> words = drawnWords();
    EXPECT_GE(words.size(), 36U);
    for (const std::string& word : words) {
        bool isWalked = false;
        for (const WalkedWidget& widget : kWidgetKeys) isWalked = isWalked || widget.word == word;
        EXPECT_TRUE(isWalked) << word;
    }
}

TEST(EveryWidget, HasATextWithoutAnyKey) {
    for (const WalkedWidget& widget : kWidgetKeys) {
        EXPECT_EQ(endOf(application(filled(widget.pattern, ""))), "") << widget.word;
    }
}

/// Each key of each widget with each form: what a key can't use is passed over, never unknown.
TEST(EveryWidget, HasATextWithEachKeyOfEachForm) {
    int texts = 0;
    for (const WalkedWidget& widget : kWidgetKeys) {
        std::istringstream keys(std::string(kCommonKeys) + " " + widget.keys);
        for (std::string key; keys >> key;) {
            for (const char* form : kPropertyForms) {
                const std::string source = application(filled(widget.pattern, key + ": " + form));
                const std::string end = endOf(source);
                EXPECT_NE(end, kUnknown) << source;
                texts += end.empty() ? 1 : 0;
            }
        }
    }
    EXPECT_GT(texts, 2000) << "what is refused for another reason proves nothing";
}

}  // namespace
