// Programs that import from the module library, put where they find it.
#pragma once

#include <string>
#include <vector>

#include "support/case_files.h"
#include "support/subprocess.h"

/// The cases with their sources copied to a folder of its own each, where the module library stands
/// beside them as it does at the root. `lane` keeps the lanes' folders apart.
std::vector<CaseFile> staged(const std::vector<CaseFile>& cases, const std::string& lane);

/// What a program printed; fails the running test if it didn't end, or didn't end in 0.
std::string outputOf(const ProcessResult& ran);
