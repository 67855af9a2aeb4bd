// The clean state in which tests of emitted web text begin: an application with an 800 by 600
// window that has started.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "emitted/widgets/program.h"
#include "emitted/widgets/recording.h"

/// Calls in their order. A failing comparison shows one a line.
struct Calls : std::vector<std::string> {
    using std::vector<std::string>::vector;
    Calls(std::vector<std::string> calls) : std::vector<std::string>(std::move(calls)) {}
};
void PrintTo(const Calls& calls, std::ostream* out);

class Surroundings : public testing::Test {
protected:
    Surroundings();

    /// All calls of one frame, with `page` where the blocks of the pages stand.
    static Calls frame(const std::function<void()>& page = {});
    /// The calls of `block` alone, made where the blocks of the pages stand.
    static Calls drawn(const std::function<void()>& block);
    /// A widget's text in tests/widgets. Throws std::invalid_argument for an unknown name.
    static const application::Block& blockNamed(const std::string& name);
    /// The calls of a widget's text in tests/widgets: "text_plain" is that of text/plain.block. A
    /// parent forces the size on it that is given.
    static Calls drawnBlock(const std::string& name, float forcedWidth = -1,
                            float forcedHeight = -1);
    /// The same for what draws outside a frame.
    static Calls callsOf(const std::function<void()>& body);

    static stand_in::Recording& browser() { return stand_in::recording(); }
};
