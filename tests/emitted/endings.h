// Running what ends the process with a box.
#pragma once

#include <functional>
#include <string>

#include "support/saying.h"
#include "support/subprocess.h"

/// The code in the box that `body` ends the process with; what happened instead if it didn't.
inline std::string codeOfEnding(const std::function<void()>& body) {
    const ProcessResult run = runForked([&] {
        body();
        return 0;
    });
    if (run.exitCode != 1) return "status " + std::to_string(run.exitCode);
    const std::string opening = "🚨 [ \033[1;93m";
    const std::size_t begin = run.out.find(opening);
    if (begin == std::string::npos) return "no box: " + run.out;
    const std::size_t end = run.out.find("\033[0m ]", begin);
    return run.out.substr(begin + opening.size(), end - begin - opening.size());
}

/// Whether the box that `body` ends with names that file and that line.
inline bool endsAt(const std::function<void()>& body, const std::string& file, int line) {
    const ProcessResult run = runForked([&] {
        body();
        return 0;
    });
    return run.out.find("📂 கோப்பு  \033[0m: " + file + "\n") != std::string::npos &&
           run.out.find("📍 இடம்    \033[0m: வரி " + std::to_string(line) + "\n") !=
               std::string::npos;
}
