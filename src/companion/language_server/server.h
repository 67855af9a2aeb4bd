// The server between two messages: takes the bodies that come, gives those to send. It knows no
// stream and no clock.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "companion/language_server/workspace.h"

namespace companion::language_server {

class Server {
public:
    Server();
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// A message that came. It is answered by `work`, so that what comes behind it and takes it
    /// back is known by then.
    void take(const std::string& body);
    /// Answers one message that was taken, or else does one check that is due at `now`; tells
    /// whether there was anything to do.
    bool work(Moment now);
    /// When `work` is to be called though no message came.
    std::optional<Moment> nextDue() const;

    /// The bodies to send since the last call, in their order.
    std::vector<std::string> takeAnswers();

    bool hasEnded() const;
    /// Of the process: 0 if the client asked for the end before it came.
    int status() const;

private:
    class State;
    std::unique_ptr<State> state;
};

}  // namespace companion::language_server
