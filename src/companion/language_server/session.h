// What the answers to requests share: the open documents and what the client told of itself.
#pragma once

#include "companion/language_server/features.h"
#include "companion/language_server/json.h"
#include "companion/language_server/workspace.h"

namespace companion::language_server {

/// What completion knows of the client and its user, and what it keeps.
struct CompletionState {
    bool knowsSnippets = false;
    bool knowsIndentation = false;  ///< The client indents further lines by itself.
    bool tellsSettings = false;     ///< The client answers what the user's settings are.
    bool transliterates = true;
    std::vector<std::string> modulePaths;  ///< As they were at `listedAt`.
    bool isListed = false;
    Moment listedAt;
    std::string listedFor;  ///< The document's path.
};

struct Session {
    Workspace workspace;
    CompletionState completion;
    bool knowsNestedSymbols = false;
    bool knowsCodeActions = false;
    bool preparesRenames = false;
    bool registersWatchers = false;
    Moment now;  ///< Of the message that is being answered.
};

/// A request that the server answers, and how: another is another row.
struct Question {
    const char* method;
    Json (*answer)(Session& session, const Json& params);
};
const std::vector<Question>& questions();

/// The server's part of `initialize`.
Json answerInitialize(Session& session, const Json& params);

/// A finding as editors show it.
Json diagnosticOf(const Analysis& analysis, const Finding& finding);

}  // namespace companion::language_server
