// Where a module stands. Nothing calls it: modules are imported at compile time. Meant.

std::string fn_resolve_module_path(const std::string& module_name) {
    std::string filename = module_name + ".பொழில்";
    if (std::ifstream(filename).good()) return filename;
    std::string library = "/usr/local/lib/Pozhil/தொகுப்புகள்/" + filename;
    if (std::ifstream(library).good()) return library;
    throw std::runtime_error("தொகுப்பு (Module) கிடைக்கவில்லை!");
}
