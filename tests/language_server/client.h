// A client in the same process: speaks JSON to a server, and moves its clock.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include "companion/language_server/json.h"
#include "companion/language_server/server.h"

class Client {
public:
    using Json = companion::language_server::Json;

    /// A server that was initialized, unless told otherwise.
    explicit Client(bool isInitialized = true);

    /// The answer's result, or its `error`.
    Json ask(const std::string& method, const Json& params);
    /// A notice that the server acts upon at once, or finds waiting the next time that it works.
    void tell(const std::string& method, const Json& params);
    void queue(const std::string& method, const Json& params);
    /// Any body; what was answered.
    std::vector<Json> takeBody(const std::string& body);

    static Json openingOf(const std::string& uri, const std::string& text, int version = 1);
    void open(const std::string& uri, const std::string& text, int version = 1);
    void change(const std::string& uri, int version, const std::string& whole);
    /// A document and a place in it, as params have them.
    static Json at(const std::string& uri, int line, int character);

    void pass(std::chrono::milliseconds time) { now += time; }
    /// Lets the server do what is due; what it sent by itself meanwhile.
    std::vector<Json> settle();
    /// The diagnostics that were published last for `uri`; null if none were since the last call.
    Json published(const std::string& uri);
    int publications() const { return publicationCount; }

    companion::language_server::Server server;

private:
    void send(const Json& message);

    companion::language_server::Moment now{};
    int nextId = 1;
    std::map<std::string, Json> diagnostics;
    int publicationCount = 0;
};
