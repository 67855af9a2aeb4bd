// Descriptions of words as markdown.
#include "companion/language_server/features.h"

namespace companion::language_server {

namespace {

constexpr const char* kFence = "```";
constexpr const char* kLanguage = "pozhil";

void addParagraph(std::string& text, std::string_view paragraph) {
    if (paragraph.empty()) return;
    if (!text.empty()) text += "\n\n";
    text += paragraph;
}

void addProgram(std::string& text, std::string_view program, const char* language) {
    if (program.empty()) return;
    std::string fenced = std::string(kFence) + language + "\n" + std::string(program);
    if (fenced.back() != '\n') fenced += '\n';
    addParagraph(text, fenced + kFence);
}

void addLabelled(std::string& text, const char* label, std::string_view words) {
    if (words.empty()) return;
    addParagraph(text, "**" + std::string(label) + "**: " + std::string(words));
}

}  // namespace

std::string markdownOf(const Description& word) {
    std::string text;
    addProgram(text, word.form, kLanguage);
    addParagraph(text, word.summary);
    addLabelled(text, "கவனம்", word.trap);
    if (!word.example.empty()) addParagraph(text, "**எடுத்துக்காட்டு**");
    addProgram(text, word.example, kLanguage);
    if (!word.prints.empty()) addParagraph(text, "**திரையில் வருவது**");
    addProgram(text, word.prints, "");
    return text;
}

std::string markdownOf(const PropertyDescription& property) {
    std::string text;
    addProgram(text, std::string(property.word) + ": ...", kLanguage);
    addParagraph(text, property.summary);
    addLabelled(text, "மதிப்பு", property.value);
    addLabelled(text, "எழுதாவிட்டால்", property.defaultValue);
    addLabelled(text, "கவனம்", property.trap);
    return text;
}

std::string markdownOf(const ValueDescription& value) {
    std::string text;
    addProgram(text, value.word, kLanguage);
    addParagraph(text, value.summary);
    return text;
}

}  // namespace companion::language_server
