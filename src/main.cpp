// The process: arguments, the three phases, and the two roads that a program can take.
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <locale>
#include <optional>
#include <stdexcept>

#include "driver/cache.h"
#include "driver/command_line.h"
#include "driver/console_texts.h"
#include "driver/native_build.h"
#include "driver/paths.h"
#include "driver/phases.h"
#include "driver/watch.h"
#include "driver/web_road.h"
#include "kept_memory.h"

namespace fs = std::filesystem;

namespace {

void setUpProcess() {
    keepFreedMemory();
    std::setlocale(LC_ALL, "");
    try {
        std::locale::global(std::locale(""));
    } catch (const std::runtime_error&) {
        std::locale::global(std::locale::classic());
    }
    std::ios_base::sync_with_stdio(false);
    std::srand(static_cast<unsigned>(std::time(nullptr)));
}

}  // namespace

int main(int argc, char** argv) {
    setUpProcess();
    const std::string appDirectory = getAppDirectory();
    injectEmscriptenEnvironment(appDirectory);

    RunState run;
    if (auto status = readCommandLine({argv + 1, argv + argc}, run)) return *status;
    std::string sourceText;
    if (!readFile(run.sourcePath, sourceText)) {
        std::cerr << "பிழை: '" << run.sourcePath << "' என்ற கோப்பை திறக்க முடியவில்லை!" << std::endl;
        return 1;
    }

    if (run.webMode) openWebRoad();
    std::vector<Token> tokens;
    Lexer lexer(sourceText, run.sourcePath);
    const auto scan = [&] { tokens = lexer.tokenize(); };
    if (!runPhase(scan, kScanFailure)) return 1;

    Program program;
    // Tokens and text are handed on from phase to phase: those of a large source are large.
    Parser parser(std::move(tokens), std::move(lexer.source), run.sourcePath);
    if (!runPhase([&] { program = parser.parse(); }, kParseFailure)) return 1;
    parser.tokens = {};  // the tree needs none of them

    if (holdsWebApp(program) && !run.webMode) {
        run.webMode = true;
        openWebRoad();
    }
    if (run.webMode) {
        std::cout << std::flush << "முடிந்தது\n"
                  << "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... " << std::flush;
    }

    const std::optional<std::string> cacheDirectory = prepareCacheDirectory();
    if (!cacheDirectory) return 1;
    const NativeBuild build{appDirectory, *cacheDirectory + "/generated.cpp", *cacheDirectory};
    std::string code;
    const auto generate = [&] {
        Generator generator(program, parser.functionParameters, parser.structDefinitions,
                            parser.abstractStructDefinitions, std::move(sourceText),
                            run.sourcePath);
        code = generator.generate();
    };
    if (!runPhase(generate, kGenerateFailure)) return 1;
    if (run.webMode) {
        std::cout << "முடிந்தது\n";
        fs::create_directory(fs::u8path("வெளியீடு"));
    }

    // The web road's text goes to a file of its own: this one stays empty. Meant.
    if (!storeGeneratedText(build, run.webMode ? "" : code)) return 1;
    if (run.webMode) takeWebRoad(program, code, run.sourcePath, {appDirectory, *cacheDirectory});

    printCompileBanner();
    animateCompilation(run.sourcePath);
    if (run.watchMode) watchConsoleProgram(run.sourcePath, build);
    buildNativeProgram(build, code);
    return 0;  // whatever g++ said and the program returned, or Ctrl+C ended. Meant.
}
