// Mistakes of beginners: small programs, and beside each what really comes of it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What comes of a program: the first line of its `.truth`. In a whole program with more than one
/// mistake those that don't show yet follow, each as "also LINE".
struct Truth {
    /// refused   the compiler reports it, with a code and a place
    /// hidden    the compiler prints one fixed line, without a place
    /// native    only the native compiler refuses it
    /// stops     the program ends by an exception or a signal
    /// reported  the program reports it, with a code and a place
    /// endless   the program never ends
    /// wrong     the program runs to its end, and does what nobody wants
    /// right     nothing is wrong with it
    std::string kind;
    std::string code = "";  ///< Of what is refused or reported.
    int line = 0;           ///< What is to blame; the report's own line for what is refused.
    int otherLine = 0;  ///< As much to blame, "or LINE": the call beside the function. 0 for none.
    std::vector<int> furtherLines = {};  ///< To blame for what will show when that is put right.
};

struct Mistake {
    std::string name;    ///< Folder and stem: names/misspelt_variable.
    std::string folder;  ///< Path of its folder, with a slash at its end.
    std::string source;  ///< Path of the source.
    std::string truthPath;
    std::string input;  ///< What is typed into the program.
    Truth truth;

    bool isApplication() const;  ///< Runs in the browser: here only the compiler reads it.
};

/// All of them, in the order of their names; of one folder only if it is named.
std::vector<Mistake> findMistakes(const std::string& topic = "");

/// The folders that hold them, in order.
std::vector<std::string> mistakeTopics();

/// Files that belong to no mistake.
std::vector<std::string> findStrayMistakeFiles();

std::string describe(const Truth& truth);

/// True if the program gets as far as running.
bool runs(const Truth& truth);

/// The directory in which imports are looked for, while it lives.
class CurrentDirectory {
public:
    explicit CurrentDirectory(const std::string& directory)
        : before(std::filesystem::current_path()) {
        std::filesystem::current_path(std::filesystem::u8path(directory));
    }
    ~CurrentDirectory() { std::filesystem::current_path(before); }
    CurrentDirectory(const CurrentDirectory&) = delete;
    CurrentDirectory& operator=(const CurrentDirectory&) = delete;

private:
    std::filesystem::path before;
};
