// Taking the first equal element out of a list. Lists and objects are never equal to anything, so
// they can't be taken out. Meant.

std::any fn_நீக்கு(std::any& lst_any, const std::any& item, std::string file, int line) {
    std::vector<std::any>* list = std::any_cast<std::vector<std::any>>(&lst_any);
    if (list == nullptr) pozhil_runtime_error("பொழில்-304", file, line);
    for (size_t i = 0; i < list->size(); i++) {
        if (fn_compare_any((*list)[i], item, "==")) {
            list->erase(list->begin() + i);
            return std::any();
        }
    }
    pozhil_runtime_error("பொழில்-314", file, line);
    return std::any();
}

std::any fn_நீக்கு(std::any&& lst_any, const std::any& item, std::string file, int line) {
    return fn_நீக்கு(lst_any, item, file, line);
}
