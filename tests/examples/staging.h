// Programs that import from the module library or read files, put where they find both.
#pragma once

#include <string>

#include "support/case_files.h"
#include "support/native_program.h"

/// Copies the case's source to a folder of its own, where the module library stands beside it as it
/// does at the root, and generates the program there. `lane` keeps the lanes' folders apart.
NativeProgram stage(const CaseFile& file, const std::string& lane);

/// Builds and runs the program; fails the running test if it doesn't build, end, or end in 0.
std::string outputOf(const NativeProgram& program, const std::string& input);
