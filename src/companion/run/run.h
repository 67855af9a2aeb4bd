// The roads of a run, behind what was asked for.
#pragma once

#include "companion/check/source_text.h"
#include "companion/run/generated_text.h"
#include "companion/run/program_store.h"
#include "companion/run/project_folder.h"

namespace companion {

/// Which findings are told ahead of a program. Hints never are.
enum class Telling { ErrorsAlone, WarningsToo };

/// Prints what the check finds on standard error. True if an error stops the run.
bool tellFindings(const SourceText& source, const ModuleReader& readModule, Telling telling);

/// The text that is handed to g++; nothing for a source that the compiler refuses.
std::optional<GeneratedText> textForNative(const SourceText& source,
                                           const ModuleReader& readModule);

/// The compiler builds and runs the program in its manner. Returns the program's status where it
/// can be known, else the compiler's.
int runByCompiler(const SourceText& source, const ProjectFolder& folder);

/// Puts the built program of `source` in the place of this process, if all that it was built from
/// is as it was. Returns if there is none.
void startKept(const SourceText& source, const ProjectFolder& folder);

/// Builds the program without a word and puts it in the place of this process. Returns a status
/// behind what it tells, if that can't be.
int buildAndStart(const SourceText& source, ProjectFolder& folder);

}  // namespace companion
