// Readers who take their time: whoever goes on is served to the end, whoever stops is given up.
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "driver/served_page.h"
#include "web/altered_calls.h"
#include "web/client.h"
#include "web/scratch_directory.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kBytes = 3'000'000;
constexpr int kNarrowBuffer = 4096;
constexpr int kLeaveBuffer = 0;

/// Takes `client`'s answer for a while at `bytesPerSecond`, in `piecesPerSecond`, then all the
/// rest at once, and returns how much there was. A server that is content with the reader's pace
/// all the while gives the whole.
std::size_t readSlowlyThenTheRest(Client& client, double seconds, std::size_t bytesPerSecond,
                                  int piecesPerSecond) {
    std::size_t total = 0;
    const auto start = Clock::now();
    const auto pieces = static_cast<int>(seconds * piecesPerSecond);
    for (int i = 0; i < pieces; i++) {
        std::this_thread::sleep_until(start +
                                      i * std::chrono::milliseconds(1000 / piecesPerSecond));
        const std::string piece =
            client.readSome(bytesPerSecond / static_cast<unsigned>(piecesPerSecond));
        if (piece.empty()) return total;
        total += piece.size();
    }
    return total + client.readToEnd(30).size();
}

class SlowReaders : public ScratchDirectory {
protected:
    SlowReaders() {
        write("வெளியீடு/index.js", std::string(kBytes, 'j'));
        storePage(std::string(kBytes, 'p'));
    }

    static void ask(const Client& client, const std::string& path) {
        client.send("GET " + path + " HTTP/1.1\r\n\r\n");
    }

    /// How much of the answer each pace of reading gets, each from a server of its own, all at the
    /// same time.
    static void expectWholeAnswerAtEveryPace(const std::string& path) {
        struct Pace {
            std::size_t bytesPerSecond;
            int piecesPerSecond;
            int receiveBuffer;
        };
        constexpr Pace kPaces[] = {
            {30'000, 20, 4096},    {30'000, 20, 16'384},  {40'000, 20, 65'536},
            {80'000, 20, 262'144}, {30'000, 20, 131'072}, {40'000, 20, kLeaveBuffer},
            {40'000, 1, 16'384},   {64'000, 1, 65'536},   {64'000, 1, kLeaveBuffer},
        };
        const std::size_t whole = get(startServer(), path).size();
        ASSERT_GT(whole, kBytes);
        std::vector<std::future<std::size_t>> sizes;
        for (const Pace& pace : kPaces) {
            const int port = startServer();
            sizes.push_back(std::async(std::launch::async, [=] {
                Client client(port, pace.receiveBuffer);
                ask(client, path);
                return readSlowlyThenTheRest(client, 6, pace.bytesPerSecond, pace.piecesPerSecond);
            }));
        }
        for (std::size_t i = 0; i < sizes.size(); i++) {
            EXPECT_EQ(sizes[i].get(), whole)
                << kPaces[i].bytesPerSecond << " bytes a second in " << kPaces[i].piecesPerSecond
                << " pieces, receive buffer of " << kPaces[i].receiveBuffer;
        }
    }
};

TEST_F(SlowReaders, GetTheWholeFile) { expectWholeAnswerAtEveryPace("/index.js"); }

TEST_F(SlowReaders, GetTheWholePage) { expectWholeAnswerAtEveryPace("/"); }

TEST_F(SlowReaders, AndAQuickOneBehindThem) {
    const int port = startServer();
    const std::size_t whole = get(port, "/index.js").size();
    Client slow(port, kNarrowBuffer);
    ask(slow, "/index.js");
    EXPECT_EQ(slow.readSome(8), "HTTP/1.1") << "its turn has come";
    auto slowSize =
        std::async(std::launch::async, [&] { return readSlowlyThenTheRest(slow, 2, 30'000, 20); });
    EXPECT_EQ(get(port, "/index.js", 20).size(), whole);
    EXPECT_EQ(slowSize.get() + 8, whole);
}

TEST_F(SlowReaders, OneWhoTakesNothingAtAllIsDroppedInTheEnd) {
    g_readerTimeout = 1000;
    const int port = startServer();
    const std::size_t whole = get(port, "/index.js").size();
    for (const char* path : {"/index.js", "/"}) {
        Client silent(port, kNarrowBuffer);
        ask(silent, path);
        EXPECT_TRUE(silent.waitForReset(20)) << path;
        EXPECT_LT(silent.readToEnd().size(), whole);
    }
    g_readerTimeout = 0;
}

TEST_F(SlowReaders, TheirTimeoutIsHalfAMinute) {
    const int port = startServer();
    get(port, "/version");
    EXPECT_EQ(g_lastReaderTimeout, 30'000U);
}

}  // namespace
