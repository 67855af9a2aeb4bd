// The boxed report of a failure at run time. It ends the process.

void pozhil_runtime_error(std::string code, std::string file, int line) {
    auto info = பிழை_அகராதி.at(code);
    const std::string separator(60, '-');
    const char* RED = "\033[1;31m";
    const char* GOLD = "\033[1;93m";
    const char* RESET = "\033[0m";
    const char* BLUE = "\033[1;34m";
    const char* DIM_GREY = "\033[38;5;242m";
    const char* CYAN = "\033[1;36m";
    const char* GREEN = "\033[1;32m";

    std::string line_content = "(கோப்பு கிடைக்கவில்லை)";
    std::ifstream source(file);
    if (source.is_open()) {
        int number = 1;
        while (std::getline(source, line_content) && number != line) number++;
    }

    std::cout << "\n" << RED << separator << RESET << std::endl;
    std::cout << "  🚨 [ " << GOLD << code << RESET << " ] :: " << RED << "பொருள் பிழை (இயக்கநேரம்)"
              << RESET << std::endl;
    std::cout << RED << separator << RESET << std::endl;
    std::cout << "  " << BLUE << "📂 கோப்பு  " << RESET << ": " << file << std::endl;
    std::cout << "  " << BLUE << "📍 இடம்    " << RESET << ": வரி " << line << std::endl;
    std::cout << DIM_GREY << "  " << separator << RESET << std::endl;
    std::cout << CYAN << "  🔍 பிழை கண்டறியப்பட்ட பகுதி:" << RESET << std::endl;
    printf("    %02d |  %s\n", line, line_content.c_str());
    std::cout << "       |  " << GOLD << "        ▲" << RESET << std::endl;
    std::cout << RED << "       ╰── மச்சி, " << info.விளக்கம் << RESET << std::endl;
    std::cout << DIM_GREY << "  " << separator << RESET << std::endl;
    std::cout << GREEN << "  💡 சரி செய்யும் முறை:" << RESET << std::endl;
    std::cout << "     " << info.தீர்வு << std::endl;
    std::cout << DIM_GREY << "  " << separator << RESET << std::endl << std::endl;
    std::cout << "  " << GOLD << "✨ \"" << ErrorHandler::பொன்மொழி_பெறு() << "\"" << RESET
              << std::endl;
    std::cout << DIM_GREY << "  " << separator << RESET << std::endl << std::endl;
    exit(1);
}
