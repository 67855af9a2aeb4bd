// Sum and quotient of dynamic values. A whole number of kind int makes the result a decimal. Meant.

std::any fn_div_any(const std::any& left, const std::any& right) {
    const long long* i = std::any_cast<long long>(&left);
    const long long* j = std::any_cast<long long>(&right);
    long double a, b;
    bool number = j == nullptr && pozhil_number(right, b);
    if (j != nullptr ? *j == 0 : number && b == 0) {
        throw std::runtime_error("சுழியத்தால் (0) வகுக்க முடியாது!");
    }
    if (i != nullptr && j != nullptr) return *i / *j;
    if (!pozhil_number(left, a) || !pozhil_number(right, b)) throw std::bad_any_cast();
    return a / b;
}

std::any fn_add_any(const std::any& left, const std::any& right) {
    const long long* i = std::any_cast<long long>(&left);
    const long long* j = std::any_cast<long long>(&right);
    if (i != nullptr && j != nullptr) return *i + *j;
    long double a, b;
    if (pozhil_number(left, a) && pozhil_number(right, b)) return a + b;
    std::string text = fn_any_to_string(left);
    text += fn_any_to_string(right);
    return text;
}
