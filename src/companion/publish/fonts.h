// The fonts of an application: the one that its page writes with, and the two that every program
// opens.
#pragma once

#include <string>
#include <vector>

namespace companion {

/// One weight of the font that pages are written with.
struct PageFont {
    int weight;        ///< As CSS counts.
    std::string name;  ///< Of the file: "NotoSansTamil-Regular.ttf".
    std::string content;
};

/// Folders in which fonts lie on this machine.
std::vector<std::string> fontFolders();

/// All weights of the page's font, from the first of `folders` that has each; none if one is
/// nowhere.
std::vector<PageFont> findPageFonts(const std::vector<std::string>& folders);

/// A font that every program opens by its name, and where it was found.
struct ProgramFont {
    std::string name;  ///< "assets/font/Tamil-Regular.ttf".
    std::string path;  ///< Empty if it is nowhere.
};

/// Those that the current directory lacks. `stores` are folders that may have them.
std::vector<ProgramFont> lackingProgramFonts(const std::vector<std::string>& stores);

}  // namespace companion
