// A run in the compiler's manner: the compiler itself, and what is said behind its words.
#include <sys/wait.h>

#include <iostream>

#include "companion/refusal.h"
#include "companion/run/afterword.h"
#include "companion/run/run.h"
#include "companion/run/watched_process.h"
#include "driver/paths.h"

namespace companion {

namespace {

constexpr int kSignalStatus = 128;

/// The compiler's line behind a build that failed: its status says nothing.
constexpr std::string_view kBuildFailed = "பிழை: தொகுப்பதில் சிக்கல்!";

/// The text that the compiler wrote for g++. Without its lines if that can't be told any more: the
/// source was changed meanwhile.
GeneratedText writtenText(const SourceText& source, const std::string& folder) {
    std::string written;
    auto generated = textForNative(source, readFile);
    const bool isRead = readFile(folder + "/Pozhil_Cache/generated.cpp", written);
    if (!generated || !isRead || generated->text != written) return {};
    return *std::move(generated);
}

/// Behind a build that failed. What isn't g++'s refusal the compiler has told in Tamil.
void explainFailure(const std::string& words, const SourceText& source, const std::string& folder) {
    if (!holdsRefusal(words)) return;
    std::cerr << afterRefusal(words, writtenText(source, folder), source);
}

}  // namespace

std::optional<GeneratedText> textForNative(const SourceText& source,
                                           const ModuleReader& readModule) {
    try {
        const CompiledSource compiled(source, readModule);
        if (compiled.isParsed() && !compiled.refused) return generateText(compiled);
    } catch (const CompilerRefusal&) {
        // It was told by the check.
    } catch (const std::exception&) {
        // As well.
    }
    return std::nullopt;
}

int runByCompiler(const SourceText& source, const ProjectFolder& folder) {
    const std::string compiler = getAppDirectory() + "/பொழில்";
    const WatchedEnd end = runWatched({compiler, source.path}, {"TMPDIR=" + folder.path()});
    if (end.status < 0) {
        std::cerr << "'" << compiler << "' என்ற தொகுப்பானை இயக்க முடியவில்லை. பொழிலை மீண்டும் நிறுவு.\n";
        return 1;
    }
    if (end.wasInterrupted) endByInterrupt();
    if (end.words.find(kBuildFailed) != std::string::npos) {
        explainFailure(end.words, source, folder.path());
        return 1;
    }
    if (const auto breakdown = findBreakdown(end.words)) {
        std::cerr << afterBreakdown(*breakdown);
        return kSignalStatus + breakdown->signal;
    }
    return WIFEXITED(end.status) ? WEXITSTATUS(end.status) : kSignalStatus + WTERMSIG(end.status);
}

}  // namespace companion
