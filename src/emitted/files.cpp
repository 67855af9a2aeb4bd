// Text files. Only the functions that can end the program look at the form of the path.

bool pozhil_forbidden_path(const std::string& path) {
    return path.empty() || path.find("//") != std::string::npos ||
           path.find_first_of("*?") != std::string::npos;
}

std::any fn_கோப்பு_எழுது(std::string path, std::string content, std::string file, int line) {
    if (pozhil_forbidden_path(path)) pozhil_runtime_error("பொழில்-342", file, line);
    std::ofstream my_file(path);
    if (!my_file.is_open()) pozhil_runtime_error("பொழில்-343", file, line);
    my_file << content;
    return std::any();
}

std::any fn_கோப்பு_படி(std::string path, std::string file, int line) {
    if (pozhil_forbidden_path(path)) pozhil_runtime_error("பொழில்-342", file, line);
    std::ifstream my_file(path);
    if (!my_file.is_open()) pozhil_runtime_error("பொழில்-341", file, line);
    std::stringstream content;
    content << my_file.rdbuf();
    if ((my_file.fail() && !my_file.eof()) || path == "/dev/null") {
        pozhil_runtime_error("பொழில்-344", file, line);
    }
    return content.str();
}

std::any fn_கோப்பு_சேர்(std::string path, std::string content, std::string file, int line) {
    if (pozhil_forbidden_path(path)) pozhil_runtime_error("பொழில்-342", file, line);
    std::ofstream my_file(path, std::ios::app);
    if (!my_file.is_open()) pozhil_runtime_error("பொழில்-343", file, line);
    my_file << content;
    return std::any();
}

std::any fn_கோப்பு_அழி(std::string path) { return std::remove(path.c_str()) == 0; }

std::any fn_கோப்பு_உள்ளதா(std::string path) { return std::ifstream(path).good(); }
