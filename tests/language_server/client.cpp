#include "client.h"

Client::Client(bool isInitialized) {
    if (!isInitialized) return;
    const Json text = {{"documentSymbol", {{"hierarchicalDocumentSymbolSupport", true}}},
                       {"codeAction", {{"codeActionLiteralSupport", Json::object()}}},
                       {"rename", {{"prepareSupport", true}}}};
    ask("initialize", {{"capabilities", {{"textDocument", text}}}});
    tell("initialized", Json::object());
}

Client::Json Client::ask(const std::string& method, const Json& params) {
    const int id = nextId++;
    send({{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", params}});
    Json result;
    for (const Json& message : settle()) {
        if (message.value("id", Json()) != Json(id) || message.contains("method")) continue;
        result = message.contains("error") ? message["error"] : message["result"];
    }
    return result;
}

void Client::tell(const std::string& method, const Json& params) {
    queue(method, params);
    settle();
}

void Client::queue(const std::string& method, const Json& params) {
    send({{"jsonrpc", "2.0"}, {"method", method}, {"params", params}});
}

std::vector<Client::Json> Client::takeBody(const std::string& body) {
    server.take(body);
    return settle();
}

Client::Json Client::openingOf(const std::string& uri, const std::string& text, int version) {
    return {{"textDocument",
             {{"uri", uri}, {"languageId", "pozhil"}, {"version", version}, {"text", text}}}};
}

void Client::open(const std::string& uri, const std::string& text, int version) {
    tell("textDocument/didOpen", openingOf(uri, text, version));
}

void Client::change(const std::string& uri, int version, const std::string& whole) {
    tell("textDocument/didChange", {{"textDocument", {{"uri", uri}, {"version", version}}},
                                    {"contentChanges", Json::array({{{"text", whole}}})}});
}

Client::Json Client::at(const std::string& uri, int line, int character) {
    return {{"textDocument", {{"uri", uri}}},
            {"position", {{"line", line}, {"character", character}}}};
}

std::vector<Client::Json> Client::settle() {
    std::vector<Json> messages;
    while (server.work(now)) {
    }
    for (const std::string& body : server.takeAnswers()) messages.push_back(Json::parse(body));
    for (const Json& message : messages) {
        if (message.value("method", "") != "textDocument/publishDiagnostics") continue;
        diagnostics[message["params"]["uri"]] = message["params"]["diagnostics"];
        publicationCount++;
    }
    return messages;
}

Client::Json Client::published(const std::string& uri) {
    settle();
    const Json last = diagnostics.count(uri) == 0 ? Json() : diagnostics[uri];
    diagnostics.erase(uri);
    return last;
}

void Client::send(const Json& message) { server.take(message.dump()); }
