#include "ui/sizes.h"

#include <locale>
#include <sstream>
#include <vector>

#include "files.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "ui/properties.h"
#include "writing/texts.h"

namespace {

struct ComparisonSign {
    const char* word;
    const char* sign;
};
const ComparisonSign kComparisonSigns[] = {
    {"சமம்", "=="},   {"சமமில்லை", "!="},   {"பெரிது", ">"},
    {"சிறிது", "<"}, {"பெரிதுசமம்", ">="}, {"சிறிதுசமம்", "<="},
};

/// Any word that isn't a comparison reads as equality. Meant.
const char* comparisonSign(const std::string& word) {
    for (const ComparisonSign& row : kComparisonSigns) {
        if (word == row.word) return row.sign;
    }
    return "==";
}

/// "50%"  ->  (base * 0.500000f)
std::string percentText(const std::string& digits, const std::string& base) {
    std::istringstream stream(digits);
    stream.imbue(std::locale::classic());
    float percent = 0;
    if (!(stream >> percent)) return "";
    return "(" + base + " * " + sixDecimals(percent / 100.0F) + "f)";
}

std::string numberSize(const std::string& digits) {
    return digits + (digits.find('.') == std::string::npos ? ".0f" : "f");
}

/// {a, b, c}, {"?", ":"}  ->  (a ? b : c). A part that is no size leaves none to the whole, so that
/// the widget keeps its default.
std::string bracketed(const std::vector<std::string>& parts,
                      const std::vector<const char*>& signs) {
    std::string text = "(";
    for (std::size_t i = 0; i < parts.size(); i++) {
        if (parts[i].empty()) return "";
        if (i > 0) text += std::string(" ") + signs[i - 1] + " ";
        text += parts[i];
    }
    return text + ")";
}

std::string variableSize(const std::string& name) {
    if (name == "திரை_அகலம்") return "winWidth";
    if (name == "திரை_உயரம்") return "winHeight";
    return "fn_get_double(global_vars[\"" + name + "\"])";
}

}  // namespace

std::string processPercentage(const Expression* value, const std::string& base) {
    const auto part = [&](const auto& inner) { return processPercentage(inner.get(), base); };
    if (const auto* node = dynamic_cast<const PercentageLiteral*>(value)) {
        return percentText(node->value, base);
    }
    if (const auto* node = dynamic_cast<const StringLiteral*>(value)) {
        return hasEnding(node->value, "%") ? percentText(node->value, base) : "";
    }
    if (const auto* node = dynamic_cast<const NumberLiteral*>(value)) {
        return numberSize(node->value);
    }
    if (const auto* node = dynamic_cast<const GroupingExpression*>(value)) {
        return bracketed({part(node->expression)}, {});
    }
    if (const auto* node = dynamic_cast<const TernaryExpression*>(value)) {
        return bracketed({part(node->condition), part(node->thenBranch), part(node->elseBranch)},
                         {"?", ":"});
    }
    if (const auto* node = dynamic_cast<const BinaryExpression*>(value)) {
        return bracketed({part(node->left), part(node->right)}, {comparisonSign(node->op.text)});
    }
    if (const auto* node = dynamic_cast<const VariableAccess*>(value)) {
        return variableSize(node->name);
    }
    return "";
}

std::string numberSizeOr(const WidgetNode& widget, const std::string& key,
                         const std::string& fallback) {
    const std::string* digits = numberProperty(widget, key);
    return digits == nullptr ? fallback : numberSize(*digits);
}
