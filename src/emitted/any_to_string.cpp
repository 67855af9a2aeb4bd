std::string fn_முழுவதும்(std::tm* t);

std::string fn_any_to_string(const std::any& val) {
    if (auto number = std::any_cast<long long>(&val)) return std::to_string(*number);
    if (auto number = std::any_cast<int>(&val)) return std::to_string(*number);
    if (auto number = std::any_cast<long double>(&val)) return std::to_string(*number);
    if (auto text = std::any_cast<std::string>(&val)) return *text;
    if (auto letter = std::any_cast<_PozhilChar>(&val)) return letter->val;
    if (auto letter = std::any_cast<char>(&val)) return std::string(1, *letter);
    if (auto truth = std::any_cast<bool>(&val)) return *truth ? "மெய்" : "பொய்";
    if (auto time = std::any_cast<std::tm*>(&val)) return fn_முழுவதும்(*time);
    if (val.type() == typeid(std::vector<std::any>)) {
        auto list = std::any_cast<std::vector<std::any>>(val);
        std::string text = "[";
        for (size_t i = 0; i < list.size(); i++) {
            if (i > 0) text += ", ";
            text += fn_any_to_string(list[i]);
        }
        return text + "]";
    }
    if (val.type() == typeid(std::map<std::string, std::any>)) {
        auto entries = std::any_cast<std::map<std::string, std::any>>(val);
        std::string text = "{";
        for (auto& entry : entries) {
            if (text.size() > 1) text += ", ";
            text += "\"" + entry.first + "\": " + fn_any_to_string(entry.second);
        }
        return text + "}";
    }
    std::string kind = val.type().name();
    if (kind == typeid(std::function<std::any(std::any)>).name() ||
        kind == typeid(std::function<std::any(std::any, std::any)>).name() ||
        kind == typeid(std::function<std::any(std::any, std::any, std::any)>).name() ||
        kind == typeid(std::function<std::any()>).name()) {
        return "[வினை]";
    }
    try {
        std::any_cast<std::shared_ptr<_StructBase>>(val);
        return "[பொருள்]";
    } catch (const std::bad_any_cast&) {
        return "[தெரியாத வகை]";
    }
}
