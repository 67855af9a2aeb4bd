// Text functions, byte by byte. An empty pattern is found for ever at one place: splitting by it
// and replacing it never end. Meant.

std::any fn_பிளவு(std::string s, std::string delim) {
    std::vector<std::any> pieces;
    size_t pos = 0;
    size_t found;
    while ((found = s.find(delim, pos)) != std::string::npos) {
        pieces.push_back(s.substr(pos, found - pos));
        pos = found + delim.length();
    }
    pieces.push_back(s.substr(pos));
    return pieces;
}

std::any fn_பதில்(std::string s, std::string find, std::string replace) {
    size_t pos = 0;
    while ((pos = s.find(find, pos)) != std::string::npos) {
        s.replace(pos, find.length(), replace);
        pos += replace.length();
    }
    return s;
}

std::any fn_பெரியஎ(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(), ::toupper);
    return s;
}

std::any fn_சிறியஎ(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(), ::tolower);
    return s;
}

std::any fn_சுத்தம்(std::string s) {
    const char* ws = " \t\n\r\f\v";
    s.erase(0, s.find_first_not_of(ws));
    s.erase(s.find_last_not_of(ws) + 1);
    return s;
}
