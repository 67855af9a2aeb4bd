// Programs made up at random: well-formed, mostly sensible, with kinds mixed here and there.
#pragma once

#include <cstdint>
#include <string>

/// The program of `seed`: always the same text. It ends whatever it does, reads no input and
/// touches no file. The compiler may refuse it.
std::string makeRandomProgram(std::uint32_t seed);
