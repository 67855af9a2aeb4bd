// The turns of answers by themselves, over pairs of connected sockets.
#include "driver/answer_room.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <list>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

/// More than any buffer holds.
constexpr std::size_t kLargeAnswer = 20'000'000;

/// Answers with as much as the request's one letter says.
void giveByLetter(int client) {
    char letter = 0;
    if (read(client, &letter, 1) != 1) return;
    const std::string answer(letter == 'l' ? kLargeAnswer : 3, 'x');
    send(client, answer.data(), answer.size(), MSG_NOSIGNAL);
}

class Pair {
public:
    explicit Pair(char letter) {
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) ends = {-1, -1};
        const timeval patience = {10, 0};  // a test that fails doesn't hang
        setsockopt(ends[0], SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
        EXPECT_EQ(write(ends[0], &letter, 1), 1);
    }
    ~Pair() { close(ends[0]); }
    Pair(const Pair&) = delete;
    Pair& operator=(const Pair&) = delete;

    int server() const { return ends[1]; }

    std::size_t readAll() const {
        char buffer[65536];
        std::size_t total = 0;
        ssize_t count = 0;
        while ((count = read(ends[0], buffer, sizeof(buffer))) > 0) {
            total += static_cast<std::size_t>(count);
        }
        return total;
    }

private:
    std::array<int, 2> ends{};
};

bool isOpen(int descriptor) { return fcntl(descriptor, F_GETFD) != -1; }

TEST(AnswerRoom, ClosesWhatIsAnswered) {
    AnswerRoom room(giveByLetter, 2);
    const Pair one('s');
    room.attend(one.server());
    EXPECT_FALSE(isOpen(one.server()));
    EXPECT_EQ(one.readAll(), 3U);
}

TEST(AnswerRoom, AnAnswerThatNobodyReadsIsFinishedOnTheSide) {
    AnswerRoom room(giveByLetter, 2);
    const Pair silent('l');
    const Pair other('s');
    room.attend(silent.server());
    room.attend(other.server());
    EXPECT_EQ(other.readAll(), 3U);
    EXPECT_TRUE(isOpen(silent.server()));
}

TEST(AnswerRoom, OneTooManyEndsTheOldest) {
    AnswerRoom room(giveByLetter, 2);
    const Pair first('l');
    const Pair second('l');
    const Pair third('l');
    for (const Pair* pair : {&first, &second, &third}) room.attend(pair->server());
    EXPECT_FALSE(isOpen(first.server()));
    EXPECT_TRUE(isOpen(second.server()));
    EXPECT_TRUE(isOpen(third.server()));
}

TEST(AnswerRoom, ItsEndEndsThemAll) {
    const Pair silent('l');
    {
        AnswerRoom room(giveByLetter, 2);
        room.attend(silent.server());
    }
    EXPECT_FALSE(isOpen(silent.server()));
    EXPECT_LT(silent.readAll(), kLargeAnswer);
}

TEST(AnswerRoom, ManySilentOnesInARowDoNotAddUp) {
    AnswerRoom room(giveByLetter, 20);
    const auto start = Clock::now();
    std::list<Pair> silent;
    for (int i = 0; i < 12; i++) room.attend(silent.emplace_back('l').server());
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(8)) << "about three if there is no load";
}

}  // namespace
