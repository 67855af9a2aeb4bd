// The name of a dynamic value's kind. The blank behind four of the names is meant.

std::string என்னவகை_கண்டுபிடி(const std::any& மதிப்பு) {
    const std::type_info* kind = &மதிப்பு.type();
    if (kind == &typeid(long long) || kind == &typeid(int)) return "எண் ";
    if (kind == &typeid(long double)) return "தசம_எண்";
    if (kind == &typeid(std::string)) return "உரை";
    if (kind == &typeid(_PozhilChar) || kind == &typeid(char)) return "எழுத்து";
    if (kind == &typeid(bool)) return "நிலை ";
    if (kind == &typeid(std::vector<std::any>)) return "பட்டியல்";
    if (kind == &typeid(std::map<std::string, std::any>)) return "அகராதி";
    if (kind == &typeid(std::tm*)) return "நேரம் ";
    if (kind == &typeid(std::shared_ptr<_StructBase>)) return "பொருள் ";
    if (std::string(kind->name()).find("function") != std::string::npos) return "வினை";
    return "தெரியாத_வகை (Unknown)";
}
