// Comparison of dynamic values. What can't be compared is simply false, also for !=. Meant.

// Each operator and its word, the bytes of that text, and for which outcomes it holds: numbers are
// less, equal, greater or unordered; texts and truth values are the same or different.
const struct {
    const char* text;
    size_t bytes;
    bool holds[6];
} pozhil_comparisons[] = {
    {"==", 2, {false, true, false, false, true, false}},
    {"சமம்", 12, {false, true, false, false, true, false}},
    {"!=", 2, {true, false, true, true, false, true}},
    {"சமமில்லை", 24, {true, false, true, true, false, true}},
    {">", 1, {false, false, true, false, false, false}},
    {"பெரிது", 18, {false, false, true, false, false, false}},
    {"<", 1, {true, false, false, false, false, false}},
    {"சிறிது", 18, {true, false, false, false, false, false}},
    {">=", 2, {false, true, true, false, false, false}},
    {"பெரிதுசமம்", 30, {false, true, true, false, false, false}},
    {"<=", 2, {true, true, false, false, false, false}},
    {"சிறிதுசமம்", 30, {true, true, false, false, false, false}},
};

bool pozhil_number(const std::any& value, long double& number) {
    const std::type_info& kind = value.type();
    if (kind == typeid(long long)) {
        number = *std::any_cast<long long>(&value);
    } else if (kind == typeid(long double)) {
        number = *std::any_cast<long double>(&value);
    } else if (kind == typeid(int)) {
        number = *std::any_cast<int>(&value);
    } else {
        return false;
    }
    return true;
}

bool pozhil_text(const std::any& value, std::string& text) {
    const std::type_info& kind = value.type();
    if (kind == typeid(std::string)) {
        text = *std::any_cast<std::string>(&value);
    } else if (kind == typeid(_PozhilChar)) {
        text = std::any_cast<_PozhilChar>(&value)->val;
    } else if (kind == typeid(char)) {
        text = *std::any_cast<char>(&value);
    } else {
        return false;
    }
    return true;
}

bool fn_compare_any(const std::any& left, const std::any& right, std::string op) {
    int outcome;
    long double a, b;
    std::string s, t;
    const long long* i = std::any_cast<long long>(&left);
    const long long* j = std::any_cast<long long>(&right);
    if (i != nullptr && j != nullptr) {
        outcome = *i < *j ? 0 : *i == *j ? 1 : 2;
    } else if (pozhil_number(left, a) && pozhil_number(right, b)) {
        outcome = a < b ? 0 : a == b ? 1 : a > b ? 2 : 3;
    } else if (pozhil_text(left, s) && pozhil_text(right, t)) {
        outcome = s == t ? 4 : 5;
    } else if (left.type() == typeid(bool) && right.type() == typeid(bool)) {
        outcome = *std::any_cast<bool>(&left) == *std::any_cast<bool>(&right) ? 4 : 5;
    } else {
        return false;
    }
    for (const auto& comparison : pozhil_comparisons) {
        if (op.size() == comparison.bytes && op == comparison.text) {
            return comparison.holds[outcome];
        }
    }
    return false;
}
