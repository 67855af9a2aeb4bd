#include "companion/check/habits_constants.h"

#include <algorithm>
#include <stdexcept>

#include "companion/check/habits.h"
#include "syntax/literals.h"

namespace companion {

namespace {

const char* const kOrderingWords[] = {"பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"};

std::optional<Constant> numberIn(const std::string& digits) {
    try {
        return Constant(std::stold(digits));
    } catch (const std::logic_error&) {
        return std::nullopt;
    }
}

bool compareNumbers(long double left, const std::string& word, long double right) {
    if (word == "சமம்") return left == right;
    if (word == "சமமில்லை") return left != right;
    if (word == "பெரிது") return left > right;
    if (word == "சிறிது") return left < right;
    return word == "பெரிதுசமம்" ? left >= right : left <= right;
}

/// Values of different kinds, and texts in an order, answer no.
bool compare(const Constant& left, const std::string& word, const Constant& right) {
    if (left.index() != right.index()) return false;
    if (std::holds_alternative<long double>(left)) {
        return compareNumbers(std::get<long double>(left), word, std::get<long double>(right));
    }
    if (isOrderingWord(word)) return false;
    return (left == right) == (word == "சமம்");
}

}  // namespace

std::optional<Constant> constantOf(const Expression& expression) {
    const Expression& value = withoutGrouping(expression);
    if (const auto* number = nodeAs<NumberLiteral>(&value)) return numberIn(number->value);
    if (const auto* number = nodeAs<DoubleLiteral>(&value)) return numberIn(number->value);
    if (const auto* text = nodeAs<StringLiteral>(&value)) return Constant(text->value);
    if (const auto* letter = nodeAs<CharLiteral>(&value)) return Constant(letter->value);
    if (const auto* truth = nodeAs<BooleanLiteral>(&value)) return Constant(truth->value == "மெய்");
    return std::nullopt;
}

std::optional<bool> constantAnswer(const Expression& condition) {
    const Expression& inner = withoutGrouping(condition);
    if (const auto* truth = nodeAs<BooleanLiteral>(&inner)) return truth->value == "மெய்";
    const auto* comparison = nodeAs<BinaryExpression>(&inner);
    if (comparison == nullptr || !isComparisonWord(comparison->op.text)) return std::nullopt;
    const auto left = constantOf(*comparison->left);
    const auto right = constantOf(*comparison->right);
    if (!left || !right) return std::nullopt;
    return compare(*left, comparison->op.text, *right);
}

bool isOrderingWord(const std::string& word) {
    return std::find(std::begin(kOrderingWords), std::end(kOrderingWords), word) !=
           std::end(kOrderingWords);
}

bool isComparisonWord(const std::string& word) {
    return word == "சமம்" || word == "சமமில்லை" || isOrderingWord(word);
}

}  // namespace companion
