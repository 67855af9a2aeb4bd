// What each word of the language means, once: explained on the terminal, shown by editors and
// written into the reference from here. Which words there are, the compiler's tables say.
#pragma once

#include <string_view>
#include <vector>

namespace companion {

enum class WordKind { Keyword, Operator, BuiltIn, Member, Widget, Property };

/// One word. All texts but the examples are Tamil prose without markup.
struct Description {
    WordKind kind;
    std::string_view word;     ///< As the compiler's table has it.
    std::string_view form;     ///< How it is written: "எனில் நிபந்தனை:".
    std::string_view summary;  ///< What it does, in one or two sentences.
    std::string_view english;  ///< Words for it elsewhere, with commas: "if, when".
    std::string_view example;  ///< A whole program; empty where a fragment says nothing.
    std::string_view prints;   ///< What the example prints; empty for applications.
    std::string_view trap;     ///< What goes wrong with it most easily; empty if nothing does.
};

/// One property, as one widget or several read it.
struct PropertyDescription {
    std::string_view word;
    std::string_view widgets;  ///< Words of the widgets that read it, with commas.
    std::string_view value;  ///< What is written behind the colon: "எண்", "நிறம்", "செயல்".
    std::string_view defaultValue;  ///< What counts where it isn't written.
    std::string_view summary;
    std::string_view english;
};

const std::vector<Description>& wordDescriptions();  ///< Keywords, operators, built-ins, members.
const std::vector<Description>& widgetDescriptions();
const std::vector<PropertyDescription>& propertyDescriptions();

}  // namespace companion
