// What the build gives and the server serves, each on its own thread: page and build counter.
#pragma once

#include <atomic>
#include <string>

/// Counts successful builds for the live reload: 1 before the first.
extern std::atomic<int> g_appVersion;

/// Puts `page` in the place of the one that is served.
void storePage(std::string page);

/// A copy of the page as last stored; empty before the first build.
std::string loadPage();
