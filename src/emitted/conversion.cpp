// Text to number, and the negation of any kind of value.

std::any fn_cast_to_number(const std::any& val, int line_num) {
    if (const std::string* text = std::any_cast<std::string>(&val)) {
        size_t consumed = 0;
        try {
            long long number = std::stoll(*text, &consumed);
            if (consumed == text->size()) return number;
        } catch (const std::exception&) {
        }
        try {
            long double number = std::stold(*text, &consumed);
            if (consumed == text->size()) return number;
        } catch (const std::exception&) {
        }
        pozhil_runtime_error("பொழில்-302", POZHIL_SOURCE_FILE, line_num);
    }
    const std::type_info* kind = &val.type();
    if (kind == &typeid(long long) || kind == &typeid(long double) || kind == &typeid(int))
        return val;
    pozhil_runtime_error("பொழில்-302", POZHIL_SOURCE_FILE, line_num);
    return std::any();
}

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
