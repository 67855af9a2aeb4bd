// lsp: the language server over standard input and output, until the editor ends it or is gone.
#include <poll.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <iostream>
#include <mutex>
#include <optional>
#include <thread>

#include "companion/commands.h"
#include "companion/language_server/message_stream.h"
#include "companion/language_server/server.h"

namespace companion {

namespace {

using language_server::MessageStream;
using language_server::Moment;
using language_server::Server;

/// How long a check may go on when nobody is there any more to be told of it.
constexpr std::chrono::milliseconds kLastWait{500};

/// Messages that have come, gathered by a thread of their own: a check that takes long is no reason
/// not to see that the editor is gone.
class Inbox {
public:
    void add(std::string body) {
        const std::lock_guard<std::mutex> lock(mutex);
        bodies.push_back(std::move(body));
        arrived.notify_one();
    }
    void end() {
        const std::lock_guard<std::mutex> lock(mutex);
        hasEnded = true;
        arrived.notify_one();
    }
    std::vector<std::string> takeAll() {
        const std::lock_guard<std::mutex> lock(mutex);
        return std::exchange(bodies, {});
    }
    /// Waits until something came, the input ended, or it is `due`.
    void wait(std::optional<Moment> due) {
        std::unique_lock<std::mutex> lock(mutex);
        const auto isReady = [&] { return !bodies.empty() || hasEnded; };
        if (due) {
            arrived.wait_until(lock, *due, isReady);
        } else {
            arrived.wait(lock, isReady);
        }
    }
    bool isOver() {
        const std::lock_guard<std::mutex> lock(mutex);
        return hasEnded && bodies.empty();
    }

private:
    std::mutex mutex;
    std::condition_variable arrived;
    std::vector<std::string> bodies;
    bool hasEnded = false;
};

void readInput(Inbox& inbox, const std::atomic<int>& status) {
    constexpr std::size_t kChunk = std::size_t{64} * 1024;
    MessageStream stream;
    std::string chunk(kChunk, '\0');
    while (true) {
        const ssize_t count = read(STDIN_FILENO, chunk.data(), chunk.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) break;
        stream.feed(std::string_view(chunk).substr(0, static_cast<std::size_t>(count)));
        while (auto body = stream.next()) inbox.add(std::move(*body));
    }
    inbox.end();
    std::this_thread::sleep_for(kLastWait);
    _exit(status);
}

/// False if nobody reads any more.
bool writeAll(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool sendAnswers(Server& server) {
    for (const std::string& answer : server.takeAnswers()) {
        if (!writeAll(language_server::framed(answer))) return false;
    }
    return true;
}

int serve() {
    Server server;
    Inbox inbox;
    std::atomic<int> status{server.status()};
    std::thread reader([&] { readInput(inbox, status); });
    while (!server.hasEnded()) {
        for (const std::string& body : inbox.takeAll()) server.take(body);
        const bool hasWorked = server.work(std::chrono::steady_clock::now());
        status = server.status();
        if (!sendAnswers(server)) break;
        if (hasWorked) continue;
        if (inbox.isOver()) break;
        inbox.wait(server.nextDue());
    }
    // The reader waits for input that needn't come: the process ends with it in the midst.
    _exit(server.status());
}

}  // namespace

int runLanguageServer(const Arguments& arguments) {
    for (const std::string& argument : arguments) {
        if (argument == "--stdio") continue;  // editors that know several ways name this one
        std::cerr << "'" << argument << "' என்ற விருப்பம் இல்லை.\n";
        return 2;
    }
    std::signal(SIGPIPE, SIG_IGN);
    return serve();
}

}  // namespace companion
