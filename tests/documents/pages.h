// The documents as the tests read them: Markdown pages, and the fences that show programs.
#pragma once

#include <string>
#include <vector>

/// One fence of a page: its words behind the three marks, and the lines between.
struct Fence {
    int line;          ///< Of the opening.
    std::string kind;  ///< "பொழில்"
    std::string name;  ///< "01/வணக்கம்:3-7"
    std::string text;
};

/// The Markdown files of guide and companion guide, in order.
std::vector<std::string> guidePages();
/// All Markdown files that people read: those of docs/ and of the root.
std::vector<std::string> allPages();

std::vector<Fence> fencesOf(const std::string& pageText);

/// What a fence of the guide is to hold, from the file that it names; fails the running test and
/// returns "" if it names none.
std::string contentOf(const Fence& fence);

/// The page with each fence's lines as `contentOf` gives them.
std::string refilled(const std::string& pageText);
