#include "driver/answer_room.h"

#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <exception>

namespace {

constexpr auto kLook = std::chrono::milliseconds(50);

// A reader who takes less than a step in so many looks is silent. Looks are counted, not seconds:
// a machine too busy to look isn't the reader's fault. The more are silent already, the less the
// next one is waited for, so that many in a row don't add up.
constexpr std::uint64_t kStepBytes = 8192;
constexpr int kMostPatience = 20;

/// How many of the bytes written the other machine has confirmed. It takes a receive buffer full
/// for its reader, and room for more is often only told when that reader has emptied most of it.
std::uint64_t bytesTaken(int client) {
    tcp_info info = {};
    socklen_t size = sizeof(info);
    getsockopt(client, IPPROTO_TCP, TCP_INFO, &info, &size);
    return info.tcpi_bytes_acked;
}

}  // namespace

Answer::Answer(int client, Give give)
    : client(client), giving(std::async(std::launch::async, give, client)) {}

Answer::~Answer() {
    if (!isOver()) shutdown(client, SHUT_RDWR);
    giving.wait();
    close(client);
}

bool Answer::isOver() const {
    return giving.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

bool Answer::isOverBeforeSilence(int patience) const {
    std::uint64_t counted = 0;
    for (int looks = 0; looks < patience; looks++) {
        if (giving.wait_for(kLook) == std::future_status::ready) return true;
        const std::uint64_t taken = bytesTaken(client);
        if (taken < counted + kStepBytes) continue;
        counted = taken;
        looks = -1;
    }
    return isOver();
}

void AnswerRoom::attend(int client) {
    unread.remove_if([](const Answer& answer) { return answer.isOver(); });
    try {
        unread.emplace_back(client, give);
    } catch (const std::exception&) {
        close(client);
        return;
    }
    const int patience = std::max(1, kMostPatience / static_cast<int>(unread.size()));
    if (unread.back().isOverBeforeSilence(patience)) {
        unread.pop_back();
    } else if (unread.size() > mostUnread) {
        unread.pop_front();
    }
}
