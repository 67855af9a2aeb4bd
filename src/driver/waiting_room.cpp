#include "driver/waiting_room.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace {

constexpr std::size_t kMostGuests = 200;
constexpr auto kPatience = std::chrono::seconds(10);
constexpr auto kLookAround = std::chrono::milliseconds(1000);

}  // namespace

std::vector<int> WaitingRoom::nextSpeakers() {
    std::vector<int> speakers;
    while (speakers.empty()) {
        std::vector<pollfd> watched = {{listener, POLLIN, 0}};
        for (const Guest& guest : guests) watched.push_back({guest.socket, POLLIN, 0});
        if (poll(watched.data(), watched.size(), static_cast<int>(kLookAround.count())) < 0)
            continue;

        auto guest = guests.begin();
        for (std::size_t i = 1; i < watched.size(); i++) {
            if (watched[i].revents == 0) {
                ++guest;
            } else {
                speakers.push_back(guest->socket);
                guest = guests.erase(guest);
            }
        }
        dismissSilent();
        if (watched[0].revents != 0) admit();
    }
    return speakers;
}

/// Takes in all that stand before the door.
void WaitingRoom::admit() {
    while (true) {
        const int socket = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) {
            // Out of descriptors, say: the oldest makes room, and there is no spinning meanwhile.
            if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM) {
                dismissOldest();
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            }
            return;
        }
        if (guests.size() >= kMostGuests) dismissOldest();
        guests.push_back({socket, Clock::now()});
    }
}

void WaitingRoom::dismissOldest() {
    if (guests.empty()) return;
    close(guests.front().socket);
    guests.pop_front();
}

void WaitingRoom::dismissSilent() {
    while (!guests.empty() && Clock::now() - guests.front().arrival > kPatience) dismissOldest();
}
