// Connections that were accepted and haven't said anything yet. Browsers open such sockets ahead of
// need; here they cost the server no time, since it only ever reads from one that has spoken.
#pragma once

#include <chrono>
#include <list>
#include <optional>
#include <vector>

class WaitingRoom {
public:
    /// `listener` is a listening, non-blocking socket.
    explicit WaitingRoom(int listener) : listener(listener) {}

    /// Waits until at least one connection has something to say, and returns those that have, in
    /// the order in which they came. They belong to the caller. One that stays silent too long,
    /// or that finds the room full, is closed.
    std::vector<int> nextSpeakers();

private:
    using Clock = std::chrono::steady_clock;
    struct Guest {
        int socket;
        Clock::time_point arrival;
    };

    void admit();
    void dismissOldest();
    void dismissSilent();

    int listener;
    std::list<Guest> guests;  ///< Oldest first.
};
