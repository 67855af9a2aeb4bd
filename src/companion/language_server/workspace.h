// The open documents, what is known of each, and when each is to be checked. Time is told from
// outside.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "companion/language_server/analysis.h"
#include "companion/language_server/documents.h"
#include "companion/language_server/modules.h"

namespace companion::language_server {

using Moment = std::chrono::steady_clock::time_point;

/// A check waits until nobody has typed for so long, but no longer than that.
inline constexpr std::chrono::milliseconds kRest{150};
inline constexpr std::chrono::milliseconds kLongestWait{1000};

using AnalysisPointer = std::shared_ptr<const Analysis>;

class Workspace {
public:
    Workspace() : modules(documents) {}
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    void setFolders(std::vector<std::string> folders) { modules.folders = std::move(folders); }
    void changeFolders(const std::vector<std::string>& addedUris,
                       const std::vector<std::string>& removedUris);
    void open(const std::string& uri, int version, std::string text, Moment now);
    /// False for a document that isn't open.
    bool change(const std::string& uri, int version, const std::vector<TextChange>& changes,
                Moment now);
    void close(const std::string& uri, Moment now);
    /// The file was written, by whomever.
    void fileChanged(const std::string& uri, Moment now);

    /// The document as it stands; null if it isn't open.
    AnalysisPointer analysisOf(const std::string& uri);
    /// True if nothing has changed since: neither the document nor what it imports.
    bool analysisIs(const AnalysisPointer& analysis) const;
    /// The modules of a document as outlines. While its text can't be read to its end they are
    /// those of the last text that could.
    std::vector<std::unique_ptr<ModuleOutline>> outlinesOf(const Analysis& analysis) const;
    /// The document, its modules, and the open documents that import it.
    std::vector<AnalysisPointer> programAround(const AnalysisPointer& analysis);

    /// When the next check is due; nothing if none waits.
    std::optional<Moment> nextDue() const;
    /// The document whose check has been due longest at `now`, which then no longer waits; nothing
    /// if none is due.
    std::optional<std::string> takeDue(Moment now);

    const Documents& openDocuments() const { return documents; }
    const std::vector<std::string>& openFolders() const { return modules.folders; }
    /// Reads the modules of the document at `path`, which may be empty.
    ModuleReader moduleReaderFor(const std::string& path) const {
        return modules.readerFor(path, nullptr, nullptr);
    }

private:
    struct State {
        AnalysisPointer current;      ///< Null until somebody asks.
        AnalysisPointer parsed;       ///< The last text that the parser took.
        std::set<std::string> asked;  ///< Of the last text that was looked at.
        std::optional<Moment> due;
        std::optional<Moment> changedFirst;  ///< Since the last check.
    };
    void schedule(State& state, Moment due, Moment now);
    void forgetThoseThatAsked(const std::string& path, Moment now);

    Documents documents;
    Modules modules;
    std::map<std::string, State> states;
};

}  // namespace companion::language_server
