// The files that a web application needs at run time: what the tree names, and the flags by which
// em++ packs them.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "syntax/node.h"

/// Adds the literal paths of images, icons and fonts in the tree below `node`. A path that is
/// computed at run time isn't found: such a file must lie under "assets".
void collectImagePaths(const Statement* node, std::set<std::string>& paths);

/// Base64 with padding.
std::string base64_encode_logo(const std::vector<unsigned char>& bytes);

/// The flag, behind a blank, by which em++ packs the file or folder `path`. The program finds it
/// under `name`, or under its own path.
std::string preloadFlag(const std::string& path, const std::string& name = "");

/// The --preload-file flags of `program`, each behind a blank. A missing file is passed over; of a
/// missing background video standard error tells.
std::string preloadFlags(const Program& program);
