// The page: the template and what the application's head says, to one HTML text.
#pragma once

#include <string>

#include "syntax/node.h"

/// The text of the property `key` in the head of the first application that has it as a string or
/// a colour; empty if none has.
std::string extractHeaderProperty(const Program& program, std::string key);

/// What the head says of the page; empty for what it doesn't say.
struct PageHead {
    std::string title;
    std::string icon;  ///< Path of an image file.
    std::string background;
};

PageHead readPageHead(const Program& program);

/// The page with what the head says in its places.
std::string fillPageHead(std::string page, const PageHead& head);

/// Puts the tag of the script at `address` into its place, or in front of the body's end.
void insertScript(std::string& page, const std::string& address);

/// The finished page. `version` is the build that the page belongs to: once the server tells a
/// greater one, the page reloads itself.
std::string assemblePage(std::string page, const PageHead& head, int version);
