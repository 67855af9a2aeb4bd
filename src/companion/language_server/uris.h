// Names of documents as editors send them, and the paths of their files.
#pragma once

#include <string>
#include <string_view>

namespace companion::language_server {

/// The path of a `file:` name, tidied; empty for a document that is no file, as an unsaved one.
std::string pathOfUri(std::string_view uri);

/// The `file:` name of an absolute path.
std::string uriOfPath(std::string_view path);

/// `path` without "." and "..", absolute from `folder` if it isn't by itself.
std::string tidyPath(std::string_view path, std::string_view folder);

/// The folder that `path` lies in.
std::string folderOf(std::string_view path);

}  // namespace companion::language_server
