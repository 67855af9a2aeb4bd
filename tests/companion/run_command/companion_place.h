// A workplace with the companion beside the compiler, and a cache of its own.
#pragma once

#include <string>
#include <vector>

#include "driver/live_process.h"
#include "driver/workplace.h"

bool holds(const std::string& text, const std::string& part);

class CompanionPlace : public Workplace {
protected:
    CompanionPlace();

    /// Programs are built by the real g++: it needs the real diagnostics object.
    void useRealCompiler() const;

    ProcessResult companion(const std::vector<std::string>& arguments,
                            ProcessOptions options = {}) const;
    LiveProcess startCompanion(const std::vector<std::string>& arguments) const;

    /// The folders of projects that stand in the cache.
    std::vector<std::filesystem::path> projectFolders() const;

    std::filesystem::path executable;
    std::filesystem::path ownCache;     ///< XDG_CACHE_HOME, not made yet.
    std::filesystem::path from = work;  ///< Where the companion is started.
    std::vector<std::string> settings;
    const std::string title = kBanner + titleOf("a.பொழில்");
};
