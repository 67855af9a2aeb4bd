// Text to number. It names the source, so each program compiles it.

std::any fn_cast_to_number(const std::any& val, int line_num) {
    if (const std::string* text = std::any_cast<std::string>(&val)) {
        std::any number;
        if (pozhil_read_number(*text, number)) return number;
        pozhil_runtime_error("பொழில்-302", POZHIL_SOURCE_FILE, line_num);
    }
    if (pozhil_is_number(val)) return val;
    pozhil_runtime_error("பொழில்-302", POZHIL_SOURCE_FILE, line_num);
    return std::any();
}
