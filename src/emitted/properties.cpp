// Properties of an object: its fields and methods.
// The getter's full signature stays on one line, as all of them do, though it passes 100 columns.
// clang-format off

std::any fn_get_property(const std::shared_ptr<_StructBase>& obj, const std::string& prop,
                         const char* file, int line) {
    auto found = obj->properties.find(prop);
    if (found == obj->properties.end()) pozhil_runtime_error("பொழில்-324", file, line);
    return found->second;
}

std::any fn_get_property(std::shared_ptr<_StructBase> obj, std::string prop, std::string file, int line) {
    return fn_get_property(obj, prop, file.c_str(), line);
}

std::any fn_set_property(const std::any& obj, const std::string& prop, std::any val,
                         const char* file, int line) {
    try {
        std::any_cast<std::shared_ptr<_StructBase>>(obj)->properties[prop] = val;
    } catch (...) {
        pozhil_runtime_error("பொழில்-324", file, line);
    }
    return val;
}

std::any fn_set_property(std::any obj, std::string prop, std::any val, std::string file, int line) {
    return fn_set_property(obj, prop, val, file.c_str(), line);
}
