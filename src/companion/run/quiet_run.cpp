// A quiet run: the program's own words alone, and no build if nothing was changed.
#include <fcntl.h>
#include <unistd.h>

#include <iostream>

#include "companion/run/afterword.h"
#include "companion/run/quiet_build.h"
#include "companion/run/run.h"
#include "companion/run/watched_process.h"
#include "driver/console_texts.h"
#include "driver/paths.h"

namespace companion {

namespace {

/// Whoever can't start the program that was kept, since it is gone or broken, builds it again.
constexpr int kAttempts = 2;

/// Puts `program` in the place of this process. Returns only if that can't be, and forgets it then:
/// a power failure may have left a file without its content.
void become(const std::string& program) {
    execve(program.c_str(), argumentsOf({program}).data(), environ);
    unlink(program.c_str());
}

/// The same for an open program, which needn't have a name any more.
void becomeOpen(int file, const std::string& program) {
    fexecve(file, argumentsOf({program}).data(), environ);
}

/// Builds in `place`. Empty, behind what is to be said, if there is no program.
std::string buildIn(const BuildPlace& place, const SourceText& source, NotingReader& reader,
                    const ProgramStore& store) {
    const auto generated = textForNative(source, std::ref(reader));
    if (!generated) return "";
    const QuietBuild build = buildQuietly(generated->text, place.path(), getAppDirectory());
    if (build.isCompilerMissing) tellOfMissingTool("g++", "g++");
    if (!build.words.empty()) std::cerr << build.words;
    if (holdsRefusal(build.words)) std::cerr << afterRefusal(build.words, *generated, source);
    if (build.program.empty()) return "";
    return store.keep(build.program, source.text, reader.asked);
}

/// Builds and starts. Returns false, behind what is to be said, if there is nothing to start.
bool tryToStart(const SourceText& source, NotingReader& reader, const ProgramStore& store,
                ProjectFolder& folder) {
    std::string program;
    int file = -1;
    {
        const BuildPlace place(folder);
        // Whoever had the turn before may have built it.
        if (auto known = store.find(source.text)) {
            program = *known;
        } else {
            program = buildIn(place, source, reader, store);
        }
        if (program.empty()) return false;
        const bool isKept = program.rfind(place.path(), 0) != 0;
        if (!isKept || folder.isPassing()) file = open(program.c_str(), O_PATH | O_CLOEXEC);
    }
    if (file < 0) {
        become(program);
        return true;
    }
    folder.remove();
    becomeOpen(file, program);
    return true;
}

}  // namespace

void startKept(const SourceText& source, const ProjectFolder& folder) {
    const ProgramStore store(folder.path(), getAppDirectory(), source.path);
    if (const auto known = store.find(source.text)) become(*known);
}

int buildAndStart(const SourceText& source, ProjectFolder& folder) {
    NotingReader reader;
    if (tellFindings(source, std::ref(reader), Telling::ErrorsAlone)) return 1;
    const ProgramStore store(folder.path(), getAppDirectory(), source.path);
    for (int attempt = 0; attempt < kAttempts; attempt++) {
        if (!tryToStart(source, reader, store, folder)) return 1;
    }
    std::cerr << "தொகுத்த நிரலை இயக்க முடியவில்லை: " << folder.path() << "\n";
    return 1;
}

}  // namespace companion
