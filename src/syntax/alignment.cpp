#include "syntax/alignment.h"

#include "syntax/expressions.h"

namespace {

struct AlignmentRow {
    const char* word;
    சீரமைப்பு_வகை alignment;
};
const AlignmentRow kAlignments[] = {
    {"மேல்_இடது", சீரமைப்பு_வகை::மேல்_இடது}, {"மேல்_மையம்", சீரமைப்பு_வகை::மேல்_மையம்},
    {"மேல்_வலது", சீரமைப்பு_வகை::மேல்_வலது}, {"மைய_இடது", சீரமைப்பு_வகை::மைய_இடது},
    {"மையம்", சீரமைப்பு_வகை::மையம்},         {"மைய_வலது", சீரமைப்பு_வகை::மைய_வலது},
    {"கீழ்_இடது", சீரமைப்பு_வகை::கீழ்_இடது},   {"கீழ்_மையம்", சீரமைப்பு_வகை::கீழ்_மையம்},
    {"கீழ்_வலது", சீரமைப்பு_வகை::கீழ்_வலது},
};

}  // namespace

std::vector<std::string_view> alignmentWords() {
    std::vector<std::string_view> words;
    for (const AlignmentRow& row : kAlignments) words.emplace_back(row.word);
    return words;
}

std::optional<சீரமைப்பு_வகை> alignmentNamed(const std::string& word) {
    for (const AlignmentRow& row : kAlignments) {
        if (word == row.word) return row.alignment;
    }
    return std::nullopt;
}

std::string wordOf(const Expression& value) {
    if (const auto* member = nodeAs<GetExpression>(&value)) return member->name.text;
    if (const auto* variable = nodeAs<VariableAccess>(&value)) return variable->name;
    return "";
}
