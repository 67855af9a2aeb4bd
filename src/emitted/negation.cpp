// The negation of any kind of value.

std::any fn_logic_not(const std::any& val) {
    const std::type_info* kind = &val.type();
    if (kind == &typeid(bool)) return !*std::any_cast<bool>(&val);
    if (kind == &typeid(_PozhilChar)) return std::any_cast<_PozhilChar>(&val)->val.empty();
    if (kind == &typeid(char)) return *std::any_cast<char>(&val) == 0;
    if (kind == &typeid(long long)) return *std::any_cast<long long>(&val) == 0;
    if (kind == &typeid(int)) return *std::any_cast<int>(&val) == 0;
    if (kind == &typeid(long double)) return *std::any_cast<long double>(&val) == 0.0;
    if (kind == &typeid(std::string)) return std::any_cast<std::string>(&val)->empty();
    return false;
}
