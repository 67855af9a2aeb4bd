// A moment as text.

std::string fn_நேரம்_உருவாக்கு(std::tm* t, const char* format) {
    char buffer[80];
    std::strftime(buffer, sizeof(buffer), format, t);
    return buffer;
}

std::string fn_தேதி(std::tm* t) { return fn_நேரம்_உருவாக்கு(t, "%d-%m-%Y"); }

std::string fn_நேரம்(std::tm* t) { return fn_நேரம்_உருவாக்கு(t, "%H:%M:%S"); }

std::string fn_முழுவதும்(std::tm* t) { return fn_நேரம்_உருவாக்கு(t, "%d-%m-%Y %H:%M:%S"); }
