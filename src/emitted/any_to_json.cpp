// A dynamic value as a JavaScript literal, for the scripts that a web program carries.

std::string fn_any_to_json(const std::any& val) {
    const std::type_info* kind = &val.type();
    if (kind == &typeid(long long)) return std::to_string(*std::any_cast<long long>(&val));
    if (kind == &typeid(int)) return std::to_string(*std::any_cast<int>(&val));
    if (kind == &typeid(long double)) return std::to_string(*std::any_cast<long double>(&val));
    if (kind == &typeid(std::string)) {
        std::string text = "'";
        for (char byte : *std::any_cast<std::string>(&val)) {
            switch (byte) {
                case '\'': text += "\\'"; break;
                case '"': text += "\\\""; break;
                case '\\': text += "\\\\"; break;
                case '\n': text += "\\n"; break;
                case '\r': text += "\\r"; break;
                default: text += byte;
            }
        }
        text += '\'';
        return text;
    }
    if (kind == &typeid(_PozhilChar)) {
        std::string text = "'";
        text += std::any_cast<_PozhilChar>(&val)->val;
        text += '\'';
        return text;
    }
    if (kind == &typeid(char)) {
        std::string text(3, '\'');
        text[1] = *std::any_cast<char>(&val);
        return text;
    }
    if (kind == &typeid(bool)) return *std::any_cast<bool>(&val) ? "true" : "false";
    if (kind == &typeid(std::vector<std::any>)) {
        std::string text = "[";
        for (const std::any& element : *std::any_cast<std::vector<std::any>>(&val)) {
            if (text.size() > 1) text += ", ";
            text += fn_any_to_json(element);
        }
        text += ']';
        return text;
    }
    if (kind == &typeid(std::map<std::string, std::any>)) {
        std::string text = "{";
        for (const auto& entry : *std::any_cast<std::map<std::string, std::any>>(&val)) {
            text += text.size() > 1 ? ", '" : "'";
            for (char byte : entry.first) {
                if (byte == '\'' || byte == '"' || byte == '\\') text += '\\';
                text += byte;
            }
            text += "': ";
            text += fn_any_to_json(entry.second);
        }
        text += '}';
        return text;
    }
    return "null";
}
