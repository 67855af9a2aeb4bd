// editor_grammar: writes what editors and the site need to know of the language's words.
//   grammar FRAME   the grammar for editors, by the frame that the file FRAME holds
//   sounds          how words sound, for the site's search
//   words FILE...   what the scanner makes of each file's words, behind a line with the file's name
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "editors/grammar.h"
#include "editors/sounds.h"
#include "editors/told_words.h"

namespace {

std::string textOf(const char* path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error(std::string("can't be read: ") + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

int run(int count, char** arguments) {
    const std::string_view wish = count > 1 ? arguments[1] : "";
    if (wish == "grammar" && count == 3) {
        std::cout << editors::grammarOf(textOf(arguments[2]));
    } else if (wish == "sounds" && count == 2) {
        std::cout << editors::soundRows();
    } else if (wish == "words") {
        for (int at = 2; at < count; at++) {
            std::cout << "file " << arguments[at] << '\n';
            editors::tellWords(std::cout, textOf(arguments[at]));
        }
    } else {
        std::cerr << "editor_grammar: grammar FRAME | sounds | words FILE...\n";
        return 2;
    }
    return std::cout.flush() ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
    try {
        return run(count, arguments);
    } catch (const std::exception& failure) {
        std::cerr << "editor_grammar: " << failure.what() << '\n';
        return 1;
    }
}
