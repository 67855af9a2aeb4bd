// A dynamic value as the text that is printed and joined. One kind has one type_info in a program,
// so here and below kinds are told apart by its address: its own == goes on to compare the names.

std::string fn_முழுவதும்(std::tm* t);

std::string fn_any_to_string(const std::any& val) {
    const std::type_info* kind = &val.type();
    if (kind == &typeid(long long)) return std::to_string(*std::any_cast<long long>(&val));
    if (kind == &typeid(int)) return std::to_string(*std::any_cast<int>(&val));
    if (kind == &typeid(long double)) return std::to_string(*std::any_cast<long double>(&val));
    if (kind == &typeid(std::string)) return *std::any_cast<std::string>(&val);
    if (kind == &typeid(_PozhilChar)) return std::any_cast<_PozhilChar>(&val)->val;
    if (kind == &typeid(char)) return std::string(1, *std::any_cast<char>(&val));
    if (kind == &typeid(bool)) return *std::any_cast<bool>(&val) ? "மெய்" : "பொய்";
    if (kind == &typeid(std::tm*)) return fn_முழுவதும்(*std::any_cast<std::tm*>(&val));
    if (kind == &typeid(std::vector<std::any>)) {
        std::vector<std::any> list = *std::any_cast<std::vector<std::any>>(&val);
        std::string text = "[";
        for (size_t i = 0; i < list.size(); i++) {
            if (i > 0) text += ", ";
            text += fn_any_to_string(list[i]);
        }
        text += ']';
        return text;
    }
    if (kind == &typeid(std::map<std::string, std::any>)) {
        std::string text = "{";
        for (const auto& entry : *std::any_cast<std::map<std::string, std::any>>(&val)) {
            text += text.size() > 1 ? ", \"" : "\"";
            text += entry.first;
            text += "\": ";
            text += fn_any_to_string(entry.second);
        }
        text += '}';
        return text;
    }
    if (kind == &typeid(std::function<std::any(std::any)>) ||
        kind == &typeid(std::function<std::any(std::any, std::any)>) ||
        kind == &typeid(std::function<std::any(std::any, std::any, std::any)>) ||
        kind == &typeid(std::function<std::any()>)) {
        return "[வினை]";
    }
    if (kind == &typeid(std::shared_ptr<_StructBase>)) return "[பொருள்]";
    return "[தெரியாத வகை]";
}
