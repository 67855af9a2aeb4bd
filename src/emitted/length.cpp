// The length of a value: bytes of a text, elements, or the digits of a number as text. The result
// is an int, which isn't taken as a place in a list. Meant.

int fn_நீளம்(std::any val) {
    const std::type_info* kind = &val.type();
    if (kind == &typeid(std::string)) return std::any_cast<std::string>(&val)->length();
    if (kind == &typeid(_PozhilChar) || kind == &typeid(char)) return 1;
    if (kind == &typeid(std::vector<std::any>)) {
        return std::any_cast<std::vector<std::any>>(&val)->size();
    }
    if (kind == &typeid(std::map<std::string, std::any>)) {
        return std::any_cast<std::map<std::string, std::any>>(&val)->size();
    }
    if (kind == &typeid(long long) || kind == &typeid(int) || kind == &typeid(long double)) {
        return fn_any_to_string(val).length();
    }
    return 0;
}
