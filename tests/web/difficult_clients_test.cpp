// Clients that say nothing, hang up, read slowly or come all at once: the server goes on.
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "driver/local_server.h"
#include "driver/served_page.h"
#include "web/client.h"
#include "web/scratch_directory.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kLarge = 20'000'000;
constexpr int kSmallBuffer = 4096;
/// Seconds: less than a silent client is waited for. Where many come at once the system itself asks
/// again after one, three and seven.
constexpr double kAtOnce = 8;

class DifficultClients : public ScratchDirectory {
protected:
    DifficultClients() { write("large.bin", std::string(kLarge, 'x')); }

    void ask(const Client& client, const std::string& path) const {
        client.send("GET " + path + " HTTP/1.1\r\n\r\n");
    }

    /// Passes if "/version" is answered within `seconds`.
    testing::AssertionResult answersWithin(double seconds) const {
        const auto start = Clock::now();
        const std::string text = get(port, "/version");
        const std::chrono::duration<double> took = Clock::now() - start;
        if (text.find("200 OK") != std::string::npos && took.count() < seconds) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << "after " << took.count() << " s: " << text;
    }

    const int port = startServer();
};

TEST_F(DifficultClients, SilentOnesDelayNobody) {
    std::vector<Client> silent;
    for (int i = 0; i < 50; i++) silent.emplace_back(port);
    for (int i = 0; i < 20; i++) EXPECT_TRUE(answersWithin(kAtOnce));
}

TEST_F(DifficultClients, ASilentOneMaySpeakUpLater) {
    Client late(port);
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    ask(late, "/version");
    EXPECT_NE(late.readToEnd().find("200 OK"), std::string::npos);
}

TEST_F(DifficultClients, SilentOnesAreDismissedInTheEnd) {
    Client silent(port);
    EXPECT_EQ(silent.readToEnd(20), "");
    EXPECT_TRUE(silent.sawEnd());
}

TEST_F(DifficultClients, MoreSilentOnesThanThereIsRoomFor) {
    std::vector<Client> silent;
    for (int i = 0; i < 300; i++) silent.emplace_back(port);
    EXPECT_TRUE(answersWithin(kAtOnce));
    EXPECT_EQ(silent.front().readToEnd(1), "");
    EXPECT_TRUE(silent.front().sawEnd()) << "the oldest had to go";
    ask(silent.back(), "/version");
    EXPECT_NE(silent.back().readToEnd().find("200 OK"), std::string::npos);
}

TEST_F(DifficultClients, HangUpBeforeAWord) {
    for (int i = 0; i < 50; i++) Client(port).connected();
    EXPECT_TRUE(answersWithin(kAtOnce));
}

TEST_F(DifficultClients, HangUpInTheMiddleOfAFile) {
    for (int i = 0; i < 20; i++) {
        const Client client(port, kSmallBuffer);
        ask(client, "/large.bin");
        EXPECT_EQ(client.readSome(100).substr(0, 8), "HTTP/1.1");
    }
    EXPECT_TRUE(answersWithin(2));
}

TEST_F(DifficultClients, HangUpBeforeTheAnswer) {
    for (int i = 0; i < 20; i++) ask(Client(port), "/large.bin");
    EXPECT_TRUE(answersWithin(2));
}

TEST_F(DifficultClients, AStalledReaderDelaysTheOthersAMomentOnly) {
    Client stalled(port, kSmallBuffer);
    ask(stalled, "/large.bin");
    EXPECT_EQ(stalled.readSome(8), "HTTP/1.1") << "its turn has come";
    EXPECT_TRUE(answersWithin(4));
    EXPECT_EQ(8 + stalled.readToEnd().size(), get(port, "/large.bin").size())
        << "and it gets all if it goes on";
}

TEST_F(DifficultClients, AStalledReaderOfALargePageDelaysTheOthersAMomentOnly) {
    storePage(std::string(kLarge, 'x'));
    Client stalled(port, kSmallBuffer);
    ask(stalled, "/");
    EXPECT_EQ(stalled.readSome(8), "HTTP/1.1");
    EXPECT_TRUE(answersWithin(4));
    EXPECT_EQ(8 + stalled.readToEnd().size(), get(port, "/").size());
}

TEST_F(DifficultClients, ManyStalledReadersInARow) {
    std::vector<Client> stalled;
    for (int i = 0; i < 10; i++) ask(stalled.emplace_back(port, kSmallBuffer), "/large.bin");
    EXPECT_TRUE(answersWithin(7)) << "about three if there is no load";
}

TEST_F(DifficultClients, ATrickleIsSilence) {
    constexpr int kSmallestBuffer = 1;  // so that each kilobyte read is told of at once
    Client trickling(port, kSmallestBuffer);
    ask(trickling, "/large.bin");
    EXPECT_EQ(trickling.readSome(8), "HTTP/1.1");
    std::atomic<bool> done{false};
    std::thread reader([&] {
        while (!done) {
            EXPECT_NE(trickling.readSome(100), "");
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    });
    EXPECT_TRUE(answersWithin(4));
    done = true;
    reader.join();
}

TEST_F(DifficultClients, ASlowReaderGetsItAll) {
    write("medium.bin", std::string(1'500'000, 'y'));
    Client slow(port, kSmallBuffer);
    ask(slow, "/medium.bin");
    std::size_t total = 0;
    // About 300 kilobytes a second.
    for (std::string piece = slow.readSome(3000); !piece.empty(); piece = slow.readSome(3000)) {
        total += piece.size();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_GT(total, 1'500'000U);
    EXPECT_LT(total, 1'500'400U);
}

TEST_F(DifficultClients, AHundredAtOnce) {
    std::vector<Client> clients;
    for (int i = 0; i < 100; i++) clients.emplace_back(port);
    for (const Client& client : clients) ask(client, "/version");
    for (Client& client : clients) {
        EXPECT_NE(client.readToEnd().find("200 OK"), std::string::npos);
        EXPECT_TRUE(client.sawEnd());
    }
}

TEST_F(DifficultClients, AHundredThreadsAndAFileEach) {
    write("file.bin", std::string(200'000, 'z'));
    std::vector<std::future<std::size_t>> sizes;
    sizes.reserve(100);
    for (int i = 0; i < 100; i++) {
        sizes.push_back(
            std::async(std::launch::async, [this] { return get(port, "/file.bin").size(); }));
    }
    const std::size_t whole = get(port, "/file.bin").size();
    EXPECT_GT(whole, 200'000U);
    for (auto& size : sizes) EXPECT_EQ(size.get(), whole);
}

TEST_F(DifficultClients, PageMayChangeWhileItIsRead) {
    const std::string first(200'000, 'a');
    const std::string second(300'000, 'b');
    storePage(first);
    std::atomic<bool> done{false};
    std::thread writer([&] {
        while (!done) {
            storePage(second);
            storePage(first);
        }
    });
    for (int i = 0; i < 200; i++) {
        const std::string text = get(port, "/");
        const std::string body = text.substr(text.find("\r\n\r\n") + 4);
        EXPECT_TRUE(body == first || body == second) << body.size();
    }
    done = true;
    writer.join();
}

TEST(FewDescriptors, OldestSilentOnesMakeRoom) {
    const int port = freePort();
    const pid_t server = fork();
    if (server == 0) {
        const rlimit few = {30, 30};
        if (setrlimit(RLIMIT_NOFILE, &few) == 0) startLocalServer(port);
        _exit(1);
    }
    std::vector<Client> silent;
    for (int i = 0; i < 35; i++) silent.emplace_back(port);
    EXPECT_NE(get(port, "/version").find("200 OK"), std::string::npos);
    EXPECT_EQ(silent.front().readToEnd(1), "");
    EXPECT_TRUE(silent.front().sawEnd());
    EXPECT_EQ(waitpid(server, nullptr, WNOHANG), 0) << "and on it goes";
    kill(server, SIGKILL);
    waitpid(server, nullptr, 0);
}

}  // namespace
