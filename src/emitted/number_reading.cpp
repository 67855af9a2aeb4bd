// A text that is a number as a whole. White space may stand in front of it, nothing behind it.

bool pozhil_read_number(const std::string& text, std::any& number) {
    size_t consumed = 0;
    try {
        number = std::stoll(text, &consumed);
        if (consumed == text.size()) return true;
    } catch (const std::exception&) {
    }
    try {
        number = std::stold(text, &consumed);
        if (consumed == text.size()) return true;
    } catch (const std::exception&) {
    }
    return false;
}

bool pozhil_is_number(const std::any& value) {
    const std::type_info* kind = &value.type();
    return kind == &typeid(long long) || kind == &typeid(long double) || kind == &typeid(int);
}
