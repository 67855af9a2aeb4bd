// The web road's build: the page, and em++ over the generated text.
#pragma once

#include <string>

#include "syntax/node.h"

struct WebBuild {
    std::string appDirectory;
    std::string cacheDirectory;
};

/// Stores the page, builds the program into `வெளியீடு/` of the current directory and, on success,
/// raises g_appVersion. The page is stored before em++ runs, with the number that only a success
/// makes known: so a page that was open sees a greater number once all files are there, and the
/// page that it then loads doesn't reload again.
/// Throws std::filesystem::filesystem_error if an old output file can't be removed.
bool buildWebApplication(const Program& program, const std::string& code, const WebBuild& build);

/// The words of em++ over the generated text `source`, each as a shell reads it. `preload` holds
/// the flags of preloadFlags.
std::string webWords(const std::string& source, const std::string& includeDirectory,
                     const std::string& objectDirectory, const std::string& preload,
                     const std::string& output);

/// The em++ command over the generated text `source`, as a shell is given it: wrapped and silent.
std::string webCommand(const std::string& source, const std::string& includeDirectory,
                       const std::string& objectDirectory, const std::string& preload,
                       const std::string& output);
