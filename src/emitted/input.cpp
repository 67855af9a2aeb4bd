// Reading a line from whoever runs the program.

std::any fn_உள்ளீடு(std::string prompt) {
    std::cout << prompt;
    std::string line;
    std::getline(std::cin, line);
    return line;
}
