#include "companion/publish/folder.h"

#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

#include "companion/publish/content_name.h"
#include "companion/publish/failure.h"
#include "driver/cache.h"
#include "files.h"

namespace companion {

namespace fs = std::filesystem;

const char* const kListName = ".pozhil-published";

namespace {

constexpr const char* kListTitle = "பொழில் இங்கே வெளியிட்ட கோப்புகள்:";

/// A folder for what isn't whole yet, gone with all that is left in it.
class Scaffold {
public:
    explicit Scaffold(const fs::path& pattern) : name(pattern.u8string()) {
        if (mkdtemp(name.data()) == nullptr) {
            throw PublishFailure("பிழை: '" + pattern.parent_path().u8string() +
                                 "' கோப்புறையில் எழுத முடியவில்லை. எழுதும் உரிமையும் இடமும் உள்ளனவா எனப் "
                                 "பார்.");
        }
    }
    ~Scaffold() {
        std::error_code ignored;
        fs::remove_all(path(), ignored);
    }
    Scaffold(const Scaffold&) = delete;
    Scaffold& operator=(const Scaffold&) = delete;

    fs::path path() const { return fs::u8path(name); }

private:
    std::string name;
};

std::string listOf(const std::set<std::string>& names) {
    std::string list = std::string(kListTitle) + "\n";
    for (const std::string& name : names) list += name + "\n";
    return list;
}

/// The names that the list in `folder` holds; empty if there is none.
std::set<std::string> readList(const fs::path& folder) {
    std::string text;
    if (!readFile((folder / kListName).u8string(), text)) return {};
    std::istringstream lines(text);
    std::string line;
    std::set<std::string> names;
    std::getline(lines, line);  // the title
    while (std::getline(lines, line)) names.insert(line);
    return names;
}

bool isPublished(const fs::path& folder) {
    std::string text;
    return readFile((folder / kListName).u8string(), text) && text.rfind(kListTitle, 0) == 0;
}

/// As any new file or folder would have them.
void giveUsualRights(const fs::path& path, mode_t rights) {
    const mode_t mask = umask(0);
    umask(mask);
    chmod(path.c_str(), rights & ~mask);
}

void writeFiles(const fs::path& folder, const std::vector<PublishedFile>& files,
                const std::set<std::string>& listed) {
    const auto write = [&](const std::string& name, const std::string& content) {
        if (!writeWhole((folder / fs::u8path(name)).u8string(), content)) throw PublishFailure("");
    };
    for (const PublishedFile& file : files) {
        write(file.name, file.content);
        if (file.isProgram) giveUsualRights(folder / fs::u8path(file.name), 0777);
    }
    write(kListName, listOf(listed));
}

std::set<std::string> namesOf(const std::vector<PublishedFile>& files) {
    std::set<std::string> names;
    for (const PublishedFile& file : files) names.insert(file.name);
    return names;
}

bool holds(const fs::path& path, const std::string& content) {
    std::string text;
    return readFile(path.u8string(), text) && text == content;
}

void makeFolder(const fs::path& folder, const std::vector<PublishedFile>& files) {
    fs::create_directories(folder.parent_path());
    const Scaffold scaffold(folder.parent_path() /
                            fs::u8path("." + folder.filename().u8string() + ".XXXXXX"));
    writeFiles(scaffold.path(), files, namesOf(files));
    giveUsualRights(scaffold.path(), 0777);
    fs::rename(scaffold.path(), folder);
}

/// Each file gets to its place by a rename, when all of them are written. Those whose content
/// changes their name come first: the page that leads to them is the last.
void renewFolder(const fs::path& folder, const std::vector<PublishedFile>& files) {
    const std::set<std::string> before = readList(folder);
    const std::set<std::string> now = namesOf(files);
    std::set<std::string> both = before;
    both.insert(now.begin(), now.end());

    const Scaffold scaffold(folder / ".pozhil-XXXXXX");
    writeFiles(scaffold.path(), files, both);
    // The list leads: what comes behind it is ours even if all ends here.
    fs::rename(scaffold.path() / kListName, folder / kListName);
    for (const PublishedFile& file : files) {
        const fs::path name = fs::u8path(file.name);
        // One that stays keeps its time: who uploads what is new passes over it.
        if (!file.isProgram && holds(folder / name, file.content)) continue;
        fs::rename(scaffold.path() / name, folder / name);
    }
    for (const std::string& name : before) {
        if (now.count(name) == 0 && isContentName(name)) fs::remove(folder / name);
    }
    writeFiles(scaffold.path(), {}, now);
    fs::rename(scaffold.path() / kListName, folder / kListName);
}

}  // namespace

void refuseForeignFolder(const std::string& folder) {
    const fs::path path = fs::u8path(folder);
    if (!fs::exists(path)) return;
    if (!fs::is_directory(path)) {
        throw PublishFailure("பிழை: '" + folder +
                             "' ஒரு கோப்பு. வெளியிட ஒரு கோப்புறையின் பெயரைக் கொடு.");
    }
    if (fs::is_empty(path) || isPublished(path)) return;
    throw PublishFailure(
        "பிழை: '" + folder +
        "' கோப்புறையில் வேறு கோப்புகள் உள்ளன. அவை கெடாமலிருக்க, புதிய அல்லது காலியான கோப்புறை "
        "ஒன்றைக் கொடு.");
}

void placeFiles(const std::string& folder, const std::vector<PublishedFile>& files) {
    refuseForeignFolder(folder);
    const fs::path path = fs::u8path(folder);
    if (fs::exists(path)) {
        renewFolder(path, files);
    } else {
        makeFolder(path, files);
    }
}

}  // namespace companion
