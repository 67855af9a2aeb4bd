// publish FILE DIR: writes an application as a folder for any host, or a program as one that runs
// by itself.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "companion/check/check.h"
#include "companion/check/finding_texts.h"
#include "companion/commands.h"
#include "companion/publish/ending.h"
#include "companion/publish/failure.h"
#include "companion/publish/folder.h"
#include "companion/publish/release_text.h"
#include "companion/publish/sizes.h"
#include "companion/publish/starting_folder.h"
#include "companion/publish/web_release.h"
#include "driver/cache.h"
#include "driver/native_build.h"
#include "driver/page.h"
#include "driver/paths.h"
#include "driver/phases.h"
#include "generator/generator.h"
#include "syntax/application.h"

namespace companion {

namespace fs = std::filesystem;

namespace {

constexpr const char* kPublishLockName = "வெளியீட்டு_பூட்டு";
/// Sums wrap around as in the programs that the compiler runs.
constexpr const char* kNativeFlags = " -O2 -fwrapv -s";

/// A folder in the cache for what a build makes; gone with all that is in it.
class WorkDirectory {
public:
    explicit WorkDirectory(const std::string& cacheDirectory) : path(cacheDirectory + "/publish") {
        fs::remove_all(fs::u8path(path));  // of a process that was killed
        fs::create_directory(fs::u8path(path));
    }
    ~WorkDirectory() { remove(path); }
    WorkDirectory(const WorkDirectory&) = delete;
    WorkDirectory& operator=(const WorkDirectory&) = delete;

    static void remove(const std::string& path) {
        std::error_code ignored;
        fs::remove_all(fs::u8path(path), ignored);
    }

    const std::string path;
};

void refuseMistakes(const SourceText& source) {
    FileFindings errors{&source, {}};
    for (const Finding& finding : checkSource(source, readFile)) {
        if (finding.severity == Severity::Error) errors.findings.push_back(finding);
    }
    if (errors.findings.empty()) return;
    const char* refused = std::getenv("NO_COLOR");
    const bool inColour = isatty(STDERR_FILENO) != 0 && (refused == nullptr || *refused == '\0');
    printForPeople(std::cerr, errors, inColour);
    throw PublishFailure("வெளியிடப்படவில்லை. மேலே உள்ள பிழைகளைத் திருத்திவிட்டு மீண்டும் வெளியிடு.");
}

/// Only the name of the source goes into the text: visitors needn't know where it lies.
std::string generatedText(const CompiledSource& compiled) {
    const std::string name = fs::u8path(compiled.source.path).filename().u8string();
    const Parser& parser = *compiled.parser;
    Generator generator(compiled.program, parser.functionParameters, parser.structDefinitions,
                        parser.abstractStructDefinitions, compiled.source.text, name);
    return generator.generate();
}

/// Packed files are those of assets: what is published there would be packed the next time.
void refuseAssets(const std::string& folder) {
    const fs::path assets = fs::absolute("assets").lexically_normal();
    for (fs::path path = fs::u8path(folder);; path = path.parent_path()) {
        if (path == assets) {
            throw PublishFailure(
                "பிழை: assets கோப்புறைக்குள் வெளியிட முடியாது: அதில் உள்ள அனைத்தும் தளத்திலேயே சேர்க்கப்படும். "
                "வேறு கோப்புறையைக் கொடு.");
        }
        if (path == path.parent_path()) return;
    }
}

void place(const std::string& folder, const std::vector<PublishedFile>& files) {
    const auto hold = holdEnd();
    try {
        placeFiles(folder, files);
    } catch (const fs::filesystem_error& problem) {
        throw PublishFailure("பிழை: '" + problem.path1().u8string() +
                             "' எழுத முடியவில்லை. எழுதும் உரிமையும் இடமும் உள்ளனவா எனப் பார்.");
    } catch (const PublishFailure& failure) {
        if (*failure.what() != '\0') throw;
        throw PublishFailure("வெளியிடப்படவில்லை. '" + folder + "' இருந்தபடியே உள்ளது.");
    }
}

void printPlaced(const std::string& folder, const std::vector<PublishedFile>& files) {
    std::vector<std::string> names;
    for (auto file = files.rbegin(); file != files.rend(); ++file) names.push_back(file->name);
    std::cout << "✅ வெளியிடப்பட்டது: " << folder << "\n";
    printSizes(std::cout, measureFiles(folder, names));
}

/// The setting `name` of the program's database, as the source writes it.
std::string databaseSetting(const Program& program, const std::string& name) {
    for (const auto& statement : program.statements) {
        const auto* app = nodeAs<WebAppNode>(statement.get());
        const auto* manager =
            app == nullptr ? nullptr : nodeAs<DatabaseManagerNode>(app->databaseManager.get());
        const auto* config = manager == nullptr
                                 ? nullptr
                                 : nodeAs<FirebaseConfigNode>(manager->firebaseConfig.get());
        if (config == nullptr) continue;
        const auto found = config->properties.find(name);
        const auto* text = found == config->properties.end()
                               ? nullptr
                               : nodeAs<StringLiteral>(found->second.get());
        if (text != nullptr) return text->value;
    }
    return "";
}

void printDatabase(const Program& program, const std::vector<std::string>& scripts) {
    if (scripts.empty()) return;
    const std::string address = databaseSetting(program, "database_url");
    std::cout << "\n🔥 தரவுத்தளம்:\n";
    if (address.empty()) {
        std::cout << "   database_url எழுதப்படவில்லை: அது இல்லாமல் தரவுத்தளம் இணையாது.\n";
    } else {
        std::cout << "   தளம் " << address << " உடன் பேசும்.\n";
    }
    std::cout << "   யார் படிக்கலாம், யார் எழுதலாம் என்பதைத் தரவுத்தளத்தின் விதிகளில் (rules) எழுது: "
                 "api_key முதலிய மதிப்புகளைத் தளத்துக்கு வருபவர் எவரும் பார்க்கலாம்.\n"
                 "   தரவுத்தளத்துக்கான நிரல்கள் தளத்துடன் வருவதில்லை; இணையத்திலிருந்து வரும். வழங்கி அவற்றைத் "
                 "தடுக்காமலிருக்கட்டும்:\n";
    for (const std::string& script : scripts) std::cout << "     " << script << "\n";
}

void printNextSteps(const std::string& folder) {
    std::cout << "\n👉 இக்கணினியில் பார்க்க: python3 -m http.server -d " << asOneWord(folder)
              << " 8000   பிறகு http://localhost:8000/\n"
              << "👉 உலகுக்குக் காட்ட: இந்தக் கோப்புறையில் உள்ள அனைத்தையும் எந்த வலை வழங்கியிலும் ஏற்று. முகவரி "
                 "https://உன்-தளம்/ ஆகவும் இருக்கலாம், அதற்குக் கீழே எதுவாகவும் இருக்கலாம்.\n"
              << "👉 நிரலை மாற்றினால் மீண்டும் இதே கோப்புறையில் வெளியிட்டு, அனைத்தையும் மீண்டும் ஏற்று.\n";
}

void publishApplication(const CompiledSource& compiled, const std::string& folder,
                        const BuildPlaces& places) {
    refuseAssets(folder);
    const std::string code = generatedText(compiled);
    const std::vector<PublishedFile> files = buildWebRelease(compiled.program, code, places);
    place(folder, files);
    printPlaced(folder, files);
    printDatabase(compiled.program, scriptsOfOtherHosts(code));
    printNextSteps(folder);
}

/// What the compiler's own builds find precompiled makes programs faster too. It fits the object
/// that set-up has made, and is left out where it doesn't.
std::string quickerText(const std::string& appDirectory) {
    const std::string header = appDirectory + "/src/warmed_header.h";
    const std::string note = appDirectory + "/உள்ளடக்கம்/nanovg/held_instances.h";
    if (!fileExists(header) || !fileExists(note)) return "";
    return " -include " + inQuotes(header) + " -I" + inQuotes(appDirectory + "/src");
}

void compileForRelease(const NativeBuild& build, const std::string& executable) {
    const std::string quicker = quickerText(build.appDirectory);
    if (!quicker.empty()) {
        if (compileProgram(build, executable, kNativeFlags + quicker + " 2>/dev/null")) return;
        letEndCome();
    }
    if (compileProgram(build, executable, kNativeFlags)) return;
    letEndCome();
    throw PublishFailure("பிழை: நிரலைத் தொகுக்க முடியவில்லை.");
}

void publishProgram(const CompiledSource& compiled, const std::string& folder,
                    const BuildPlaces& places) {
    const std::string source = places.workDirectory + "/program.cpp";
    const std::string executable = places.workDirectory + "/program";
    if (!writeWhole(source, generatedText(compiled))) throw PublishFailure("");
    std::cout << "🔨 நிரல் தொகுக்கப்படுகிறது: வேகமாக ஆக்கச் சற்று நேரம் ஆகலாம்...\n";
    compileForRelease({places.appDirectory, source, places.workDirectory}, executable);
    const std::string name = fs::u8path(compiled.source.path).stem().u8string();
    std::vector<PublishedFile> files = {{name, "", true}};
    readFile(executable, files.front().content);
    place(folder, files);
    printPlaced(folder, files);
    std::cout << "\n👉 இயக்க: " << asOneWord((fs::u8path(folder) / fs::u8path(name)).u8string())
              << "\n👉 பிறருக்குத் தர: இந்த ஒரு கோப்பு போதும். பொழில் இல்லாத Linux கணினியிலும் இயங்கும்.\n";
}

void publish(const SourceText& source, const std::string& folder) {
    refuseForeignFolder(folder);
    goWhereItIsBuilt(source);
    std::cout << "🔎 நிரல் சரிபார்க்கப்படுகிறது...\n";
    refuseMistakes(source);
    const CompiledSource compiled(source, readFile);
    // A comment can silence what the check says of it, but nothing comes of such a source.
    if (compiled.refused) {
        throw PublishFailure("வெளியிடப்படவில்லை: " + compiled.refused->message);
    }

    const auto cacheDirectory = prepareCacheDirectory();
    if (!cacheDirectory) throw PublishFailure("");
    const CacheTurn turn(*cacheDirectory, kPublishLockName);
    const WorkDirectory work(*cacheDirectory);
    endInOrder([path = work.path] { WorkDirectory::remove(path); });
    const BuildPlaces places{getAppDirectory(), work.path};
    if (holdsWebApp(compiled.program)) {
        publishApplication(compiled, folder, places);
    } else {
        publishProgram(compiled, folder, places);
    }
}

std::string absoluteFolder(const std::string& name) {
    const fs::path path = fs::absolute(fs::u8path(name)).lexically_normal();
    return (path.has_filename() ? path : path.parent_path()).u8string();
}

}  // namespace

int runPublish(const Arguments& arguments) {
    if (arguments.size() != 2 || arguments[0].empty() || arguments[1].empty()) {
        std::cerr << "எதை, எங்கே வெளியிட வேண்டும்? பயன்பாடு: பொழில்-துணை வெளியிடு கோப்பு.பொழில் கோப்புறை\n";
        return 2;
    }
    std::string text;
    if (!readFile(arguments[0], text)) {
        std::cerr << "'" << arguments[0] << "' என்ற கோப்பைப் படிக்க முடியவில்லை.\n";
        return 2;
    }
    try {
        publish(SourceText(arguments[0], std::move(text)), absoluteFolder(arguments[1]));
        return 0;
    } catch (const PublishFailure& failure) {
        std::cout.flush();
        if (*failure.what() != '\0') std::cerr << failure.what() << "\n";
    } catch (const fs::filesystem_error& problem) {
        std::cout.flush();
        std::cerr << "பிழை: '" << problem.path1().u8string()
                  << "' கோப்பையோ கோப்புறையையோ பயன்படுத்த முடியவில்லை. உரிமையும் இடமும் உள்ளனவா எனப் பார்.\n";
    }
    return 1;
}

}  // namespace companion
