// Properties of an object: its fields and methods.
// A signature stays on one line, as all of them do, though it passes 100 columns.
// clang-format off

// A name of the generated text as a key. Such a name stays where it is: it is known by its address.
const std::string& pozhil_name(const char* name) {
    static struct {
        const char* name;
        std::string key;
    } known[64];
    auto& place = known[(size_t)name / 4 % 64];
    if (place.name != name) {
        place.key = name;
        place.name = name;
    }
    return place.key;
}

// In an object of a few properties it takes less time to look at all of them than to compare names
// by their order.
std::any* pozhil_find(std::map<std::string, std::any>& properties, const std::string& prop) {
    if (properties.size() > 8) {
        auto found = properties.find(prop);
        return found == properties.end() ? nullptr : &found->second;
    }
    for (auto& property : properties) {
        if (property.first == prop) return &property.second;
    }
    return nullptr;
}

std::any pozhil_property(_StructBase& obj, const std::string& prop, const char* file, int line) {
    const std::any* found = pozhil_find(obj.properties, prop);
    if (found == nullptr) pozhil_runtime_error("பொழில்-324", file, line);
    return *found;
}

std::any fn_get_property(const std::shared_ptr<_StructBase>& obj, const char* prop, const char* file, int line) {
    return pozhil_property(*obj, pozhil_name(prop), file, line);
}

std::any fn_get_property(std::shared_ptr<_StructBase> obj, std::string prop, std::string file, int line) {
    return pozhil_property(*obj, prop, file.c_str(), line);
}

void pozhil_set_property(const std::shared_ptr<_StructBase>* obj, const std::string& prop, const std::any& val, const char* file, int line) {
    try {
        if (obj == nullptr) throw std::bad_any_cast();
        auto& properties = (*obj)->properties;
        std::any* found = pozhil_find(properties, prop);
        (found == nullptr ? properties[prop] : *found) = val;
    } catch (...) {
        pozhil_runtime_error("பொழில்-324", file, line);
    }
}

const std::any& fn_set_property(const std::shared_ptr<_StructBase>& obj, const char* prop, const std::any& val, const char* file, int line) {
    pozhil_set_property(&obj, pozhil_name(prop), val, file, line);
    return val;
}

const std::any& fn_set_property(const std::any& obj, const char* prop, const std::any& val, const char* file, int line) {
    pozhil_set_property(std::any_cast<std::shared_ptr<_StructBase>>(&obj), pozhil_name(prop), val, file, line);
    return val;
}

std::any fn_set_property(std::any obj, std::string prop, std::any val, std::string file, int line) {
    pozhil_set_property(std::any_cast<std::shared_ptr<_StructBase>>(&obj), prop, val, file.c_str(), line);
    return val;
}
