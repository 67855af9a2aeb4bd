// Where the blocks of tests/widgets draw what they hold.
#pragma once

#include <string>

#include "emitted/widgets/surroundings.h"

class PlacedTest : public Surroundings {
protected:
    PlacedTest();

    /// All calls of one frame whose page is the block of that case: "column_spaced".
    static Calls frameOf(const std::string& block);

    /// The texts of that frame with their places: "அ at 10, 20"; and its rectangles.
    static Calls placesIn(const std::string& block);

    /// The same after the wheel turned while the pointer is there.
    static Calls placesAfterWheel(const std::string& block, double x, double y, double wheel);

    /// Frames of that block until nothing is asked for any more; how many, at most 300.
    static int framesToWidget(const std::string& block, const std::string& id);

    static double& field(const std::string& name) { return browser().window[name]; }
};
