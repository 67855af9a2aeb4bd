#include "companion/language_server/server.h"

#include <algorithm>
#include <deque>
#include <set>

#include "companion/language_server/completion.h"
#include "companion/language_server/json_repair.h"
#include "companion/language_server/session.h"
#include "companion/refusal.h"

namespace companion::language_server {

namespace {

/// More are no help, and a broken file can have hundreds of thousands.
constexpr std::size_t kMostDiagnostics = 1000;

/// The id of the question what the user's settings are.
constexpr const char* kSettingsId = "settings";

constexpr const char* kWatchedFiles = "**/*.{பொழில்,pozhil}";

bool isId(const Json& id) { return id.is_string() || id.is_number_integer(); }

}  // namespace

class Server::State {
public:
    void take(const std::string& body);
    bool work(Moment now);
    std::optional<Moment> nextDue() const { return session.workspace.nextDue(); }

    std::vector<std::string> answers;
    bool hasEnded = false;
    bool wasShutDown = false;

private:
    using Tell = void (State::*)(const Json& params);
    struct Notice {
        const char* method;
        Tell tell;
    };
    static const std::vector<Notice>& notices();

    void send(const Json& message);
    void sendResult(const Json& id, Json result);
    void sendFailure(const Json& id, int code, const std::string& message);

    void handle(const Json& message);
    void handleRequest(const std::string& method, const Json& id, const Json& params);
    Json resultOf(const std::string& method, const Json& params);
    void handleNotice(const std::string& method, const Json& params);

    void tellInitialized(const Json& params);
    void tellExit(const Json& params);
    void tellOpened(const Json& params);
    void tellChanged(const Json& params);
    void tellClosed(const Json& params);
    void tellSaved(const Json& params);
    void tellConfigured(const Json& params);
    void askForSettings();
    void takeSettings(const Json& answer);
    void tellFilesChanged(const Json& params);
    void tellFoldersChanged(const Json& params);

    void publish(const Analysis& analysis);

    Session session;
    std::deque<Json> waiting;
    std::set<std::string> cancelled;  ///< Ids as JSON texts.
    AnalysisPointer checked;          ///< To be told when no message waits; may be old by then.
    bool isInitialized = false;
};

// ---- Messages ----

void Server::State::take(const std::string& body) {
    Json message = Json::parse(repairedJson(body), nullptr, false);
    if (message.is_discarded()) {
        return sendFailure(nullptr, codes::kParseError, "the message is no JSON");
    }
    if (!message.is_object()) {
        return sendFailure(nullptr, codes::kInvalidRequest, "the message is no object");
    }
    const auto method = message.find("method");
    if (method != message.end() && *method == "$/cancelRequest") {
        const auto params = message.find("params");
        if (params == message.end() || !params->is_object()) return;
        const auto id = params->find("id");
        if (id != params->end() && isId(*id)) cancelled.insert(id->dump());
        return;
    }
    waiting.push_back(std::move(message));
}

bool Server::State::work(Moment now) {
    session.now = now;
    if (!waiting.empty()) {
        const Json message = std::move(waiting.front());
        waiting.pop_front();
        handle(message);
        if (waiting.empty()) cancelled.clear();
        return true;
    }
    if (checked != nullptr) {
        const AnalysisPointer result = std::move(checked);
        checked.reset();
        // The text may have gone on, and a module with it.
        if (session.workspace.analysisIs(result)) publish(*result);
        return true;
    }
    const auto due = session.workspace.takeDue(now);
    if (!due) return false;
    checked = session.workspace.analysisOf(*due);
    if (checked != nullptr) checked->findings();
    return true;
}

void Server::State::send(const Json& message) {
    answers.push_back(message.dump(-1, ' ', false, Json::error_handler_t::replace));
}

void Server::State::sendResult(const Json& id, Json result) {
    Json message = {{"jsonrpc", "2.0"}, {"id", id}};
    message["result"] = std::move(result);
    send(message);
}

void Server::State::sendFailure(const Json& id, int code, const std::string& message) {
    send({{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", code}, {"message", message}}}});
}

void Server::State::handle(const Json& message) {
    static const Json kNothing;
    const auto method = message.find("method");
    const auto id = message.find("id");
    const auto given = message.find("params");
    const Json& params = given == message.end() ? kNothing : *given;
    const bool isRequest = id != message.end();
    if (method == message.end() || !method->is_string()) {
        // Without a method it is an answer to a question of ours. Only that about settings matters.
        const bool isAnswer = message.contains("result") || message.contains("error");
        if (isRequest && *id == kSettingsId) return takeSettings(message);
        if (!isAnswer) {
            sendFailure(isRequest && isId(*id) ? *id : kNothing, codes::kInvalidRequest,
                        "no method");
        }
        return;
    }
    if (!isRequest) return handleNotice(method->get<std::string>(), params);
    if (!isId(*id)) return sendFailure(nullptr, codes::kInvalidRequest, "no such id");
    handleRequest(method->get<std::string>(), *id, params);
}

void Server::State::handleRequest(const std::string& method, const Json& id, const Json& params) {
    try {
        if (cancelled.count(id.dump()) != 0) {
            throw RequestFailure{codes::kRequestCancelled, "taken back"};
        }
        sendResult(id, resultOf(method, params));
    } catch (const RequestFailure& failure) {
        sendFailure(id, failure.code, failure.message);
    } catch (const CompilerRefusal& refusal) {
        sendFailure(id, codes::kInternalError, refusal.message);
    } catch (const std::exception& failure) {
        sendFailure(id, codes::kInternalError, failure.what());
    }
}

Json Server::State::resultOf(const std::string& method, const Json& params) {
    if (wasShutDown) throw RequestFailure{codes::kInvalidRequest, "shut down already"};
    if (method == "initialize") {
        if (isInitialized) throw RequestFailure{codes::kInvalidRequest, "initialized already"};
        isInitialized = true;
        return answerInitialize(session, params);
    }
    if (!isInitialized) throw RequestFailure{codes::kServerNotInitialized, "not initialized"};
    if (method == "shutdown") {
        wasShutDown = true;
        return nullptr;
    }
    for (const Question& question : questions()) {
        if (method == question.method) return question.answer(session, params);
    }
    throw RequestFailure{codes::kMethodNotFound, "unknown: " + method};
}

const std::vector<Server::State::Notice>& Server::State::notices() {
    static const std::vector<Notice> rows = {
        {"initialized", &State::tellInitialized},
        {"textDocument/didOpen", &State::tellOpened},
        {"textDocument/didChange", &State::tellChanged},
        {"textDocument/didClose", &State::tellClosed},
        {"textDocument/didSave", &State::tellSaved},
        {"workspace/didChangeConfiguration", &State::tellConfigured},
        {"workspace/didChangeWatchedFiles", &State::tellFilesChanged},
        {"workspace/didChangeWorkspaceFolders", &State::tellFoldersChanged},
    };
    return rows;
}

/// What nobody knows or what can't be read is passed over: notices have no answers.
void Server::State::handleNotice(const std::string& method, const Json& params) {
    if (method == "exit") return tellExit(params);
    if (!isInitialized || wasShutDown) return;
    for (const Notice& notice : notices()) {
        if (method != notice.method) continue;
        try {
            (this->*notice.tell)(params);
        } catch (const RequestFailure&) {
        } catch (const std::exception&) {
        }
    }
}

// ---- Notices ----

/// Asks to be told of modules that change on the disk.
void Server::State::tellInitialized(const Json&) {
    askForSettings();
    if (!session.registersWatchers) return;
    const Json watcher = {{"globPattern", kWatchedFiles}};
    const Json registration = {
        {"id", "modules"},
        {"method", "workspace/didChangeWatchedFiles"},
        {"registerOptions", {{"watchers", Json::array({watcher})}}},
    };
    send({{"jsonrpc", "2.0"},
          {"id", "register"},
          {"method", "client/registerCapability"},
          {"params", {{"registrations", Json::array({registration})}}}});
}

void Server::State::askForSettings() {
    if (!session.completion.tellsSettings) return;
    const Json section = {{"section", "pozhil"}};
    send({{"jsonrpc", "2.0"},
          {"id", kSettingsId},
          {"method", "workspace/configuration"},
          {"params", {{"items", Json::array({section})}}}});
}

void Server::State::takeSettings(const Json& answer) {
    const auto result = answer.find("result");
    if (result == answer.end() || !result->is_array() || result->empty()) return;
    readCompletionSettings(session, result->front());
}

void Server::State::tellExit(const Json&) { hasEnded = true; }

void Server::State::tellOpened(const Json& params) {
    const Json& document = fieldOf(params, "textDocument");
    session.workspace.open(textOf(document, "uri"), versionOf(document), textOf(document, "text"),
                           session.now);
}

void Server::State::tellChanged(const Json& params) {
    session.workspace.change(documentUriOf(params), versionOf(fieldOf(params, "textDocument")),
                             changesOf(params), session.now);
}

/// What was told of a closed document is taken back.
void Server::State::tellClosed(const Json& params) {
    const std::string uri = documentUriOf(params);
    session.workspace.close(uri, session.now);
    send({{"jsonrpc", "2.0"},
          {"method", "textDocument/publishDiagnostics"},
          {"params", {{"uri", uri}, {"diagnostics", Json::array()}}}});
}

void Server::State::tellSaved(const Json& params) {
    session.workspace.fileChanged(documentUriOf(params), session.now);
}

/// Clients that are asked for their settings tell nothing here.
void Server::State::tellConfigured(const Json& params) {
    readCompletionSettings(session, fieldOf(params, "settings"));
    askForSettings();
}

void Server::State::tellFilesChanged(const Json& params) {
    const Json& changes = fieldOf(params, "changes");
    if (!changes.is_array()) return;
    for (const Json& change : changes) {
        session.workspace.fileChanged(textOf(change, "uri"), session.now);
    }
}

void Server::State::tellFoldersChanged(const Json& params) {
    const Json& event = fieldOf(params, "event");
    std::vector<std::string> added;
    std::vector<std::string> removed;
    for (const Json& folder : fieldOf(event, "added")) added.push_back(textOf(folder, "uri"));
    for (const Json& folder : fieldOf(event, "removed")) removed.push_back(textOf(folder, "uri"));
    session.workspace.changeFolders(added, removed);
}

// ---- Findings ----

void Server::State::publish(const Analysis& analysis) {
    Json diagnostics = Json::array();
    for (const Finding& finding : analysis.findings()) {
        if (diagnostics.size() == kMostDiagnostics) break;
        diagnostics.push_back(diagnosticOf(analysis, finding));
    }
    send({{"jsonrpc", "2.0"},
          {"method", "textDocument/publishDiagnostics"},
          {"params",
           {{"uri", analysis.uri},
            {"version", analysis.version},
            {"diagnostics", std::move(diagnostics)}}}});
}

// ---- The outside ----

Server::Server() : state(std::make_unique<State>()) {}
Server::~Server() = default;

void Server::take(const std::string& body) { state->take(body); }
bool Server::work(Moment now) { return !state->hasEnded && state->work(now); }
std::optional<Moment> Server::nextDue() const { return state->nextDue(); }
std::vector<std::string> Server::takeAnswers() { return std::exchange(state->answers, {}); }
bool Server::hasEnded() const { return state->hasEnded; }
int Server::status() const { return state->wasShutDown ? 0 : 1; }

}  // namespace companion::language_server
