// A workplace with what programs are linked and compiled with ahead of time.
#pragma once

#include "driver/workplace.h"

class PreparedWorkplace : public Workplace {
protected:
    PreparedWorkplace();

    /// By the script itself, which makes anew what doesn't fit the sources; what stands prepared in
    /// the checkout is there already, as if it had been made here.
    void prepare() const;

    /// The status of a script of the home.
    int runScript(const std::string& script) const;

    const std::filesystem::path included = home / "உள்ளடக்கம்";
    const std::filesystem::path header = included / "nanovg" / "iostream.gch";
};
