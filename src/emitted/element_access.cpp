// Elements of texts, lists and dictionaries. A text is read byte by byte, so a Tamil letter comes
// out in pieces; a place past the end of a text is the empty text, of a list the end. Meant.

std::any fn_எடு(const std::any& obj, const std::any& key, const char* file, int line) {
    if (const long long* idx = std::any_cast<long long>(&key)) {
        if (const auto* list = std::any_cast<std::vector<std::any>>(&obj)) {
            if (*idx < 0 || *idx >= (long long)list->size()) {
                pozhil_runtime_error("பொழில்-311", file, line);
            }
            return (*list)[*idx];
        }
        if (const std::string* s = std::any_cast<std::string>(&obj)) {
            if (*idx < 0 || *idx >= (long long)s->length()) return std::string();
            return _PozhilChar{std::string(1, (*s)[*idx])};
        }
    } else if (const std::string* name = std::any_cast<std::string>(&key)) {
        if (const auto* entries = std::any_cast<std::map<std::string, std::any>>(&obj)) {
            auto entry = entries->find(*name);
            if (entry == entries->end()) pozhil_runtime_error("பொழில்-312", file, line);
            return entry->second;
        }
    }
    pozhil_runtime_error("பொழில்-313", file, line);
    return std::any();
}

std::any fn_எடு(std::any obj, std::any key, std::string file, int line) {
    return fn_எடு(obj, key, file.c_str(), line);
}

std::any& fn_index_ref(std::any& obj, const std::any& key, const char* file, int line) {
    if (auto* entries = std::any_cast<std::map<std::string, std::any>>(&obj)) {
        if (const std::string* name = std::any_cast<std::string>(&key)) return (*entries)[*name];
        return (*entries)[fn_any_to_string(key)];
    }
    if (std::vector<std::any>* list = std::any_cast<std::vector<std::any>>(&obj)) {
        long long idx = fn_index(key);
        if (idx < 0 || idx >= (long long)list->size()) {
            pozhil_runtime_error("பொழில்-311", file, line);
        }
        return (*list)[idx];
    }
    pozhil_runtime_error("பொழில்-313", file, line);
    static std::any dummy;
    return dummy;
}

std::any& fn_index_ref(std::any& obj, const std::any& key, std::string file = "", int line = 0) {
    return fn_index_ref(obj, key, file.c_str(), line);
}

std::any fn_index_ref(std::any&& obj, const std::any& key, std::string file = "", int line = 0) {
    return fn_index_ref(obj, key, file, line);
}
