// g++ over a generated text, without a word unless it refuses.
#pragma once

#include <optional>
#include <string>

#include "companion/run/project_folder.h"

namespace companion {

/// A turn at building in a project's folder, and a place of its own for what is built. Whatever a
/// build that was killed left behind is removed by the next.
class BuildPlace {
public:
    explicit BuildPlace(const ProjectFolder& folder);
    ~BuildPlace();
    BuildPlace(const BuildPlace&) = delete;
    BuildPlace& operator=(const BuildPlace&) = delete;

    const std::string& path() const { return place; }

private:
    std::string place;
    int lock;
};

struct QuietBuild {
    std::string program;  ///< Empty if there is none.
    std::string words;    ///< What g++ said, if it refused.
    bool isCompilerMissing = false;
};

/// Builds the program of `text` in `place`, with the companions in `appDirectory`, as the compiler
/// does. A Ctrl+C that ends g++ ends this process too.
QuietBuild buildQuietly(const std::string& text, const std::string& place,
                        const std::string& appDirectory);

}  // namespace companion
