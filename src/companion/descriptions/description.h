// What each word of the language means, once: explained on the terminal, shown by editors and
// written into the reference from here. Which words there are, the compiler's tables say.
#pragma once

#include <string_view>
#include <vector>

namespace companion {

/// `Application`: a word of a web application that is no widget: a section, a style block.
/// `Mark`: one of the language's writing: the comment, the list's bracket.
enum class WordKind { Keyword, Operator, BuiltIn, Member, Widget, Property, Application, Mark };

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

/// Which values of a property count. A value of another kind is passed over without a word.
enum class ValueKind {
    Any,          ///< Whatever the program can work out, anew in each frame.
    Number,       ///< A whole number as it stands.
    Decimal,      ///< A number as it stands, with a point or without.
    Size,         ///< A whole number, a percentage, a variable or a choice of these.
    Text,         ///< A text in quotes.
    Colour,       ///< A text in quotes: hexadecimal behind # or a colour's name.
    NamedColour,  ///< The same, or a colour's name without quotes.
    PageColour,   ///< Hexadecimal behind #, in quotes.
    Truth,        ///< மெய் or பொய் as it stands.
    Flag,         ///< That it is written counts, whatever stands behind it.
    Texts,        ///< A list of texts in quotes, as it stands.
    Widget,       ///< A widget.
    Alignment,    ///< A word for one of nine places.
    Weight,       ///< A whole number, or one of two texts.
    Word,         ///< A word with quotes or without.
};

/// One property, as one widget or several read it.
struct PropertyDescription {
    std::string_view word;     ///< As it is written.
    std::string_view widgets;  ///< Words of the widgets that read it, with commas.
    std::string_view value;  ///< What is written behind the colon: "எண்", "நிறம்", "செயல்".
    /// What counts where it isn't written: a value as a source writes it, or prose.
    std::string_view defaultValue;
    std::string_view summary;
    std::string_view english;
    /// The block in which it is written, such as "பொ_பாணி"; empty for the widget's own parentheses,
    /// "()" for parentheses of its own before the widget's.
    std::string_view block;
    ValueKind kind = ValueKind::Any;
    std::string_view trap;  ///< What goes wrong with it most easily; empty if nothing does.
};

enum class ValueGroup { Colour, Alignment, Curve, Trigger };

/// One word that properties take as their value.
struct ValueDescription {
    ValueGroup group;
    std::string_view word;
    std::string_view summary;
    std::string_view english;
};

const std::vector<Description>& wordDescriptions();  ///< Keywords, operators, built-ins, members.
const std::vector<Description>& widgetDescriptions();
const std::vector<PropertyDescription>& propertyDescriptions();
const std::vector<ValueDescription>& valueDescriptions();

}  // namespace companion
