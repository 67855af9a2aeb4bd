// The server's answers, byte for byte, through real sockets.
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>

#include "driver/local_server.h"
#include "driver/served_page.h"
#include "support/subprocess.h"
#include "web/altered_calls.h"
#include "web/client.h"
#include "web/scratch_directory.h"

namespace fs = std::filesystem;

namespace {

const std::string kMissing =
    "HTTP/1.1 404 Not Found\r\nContent-Length: 26\r\n\r\n404 - பக்கம் காணவில்லை";

std::string answer(const std::string& type, const std::string& body) {
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type +
           "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nConnection: close\r\nAccess-Control-Allow-Origin: *\r\n\r\n" + body;
}

TEST(UrlDecode, PercentAndPlus) {
    EXPECT_EQ(urlDecode("/%E0%AE%85.png"), "/அ.png");
    EXPECT_EQ(urlDecode("/%e0%ae%85"), "/அ");
    EXPECT_EQ(urlDecode("a+b%20c"), "a b c");
    EXPECT_EQ(urlDecode("%2B%25"), "+%");
    EXPECT_EQ(urlDecode(""), "");
    EXPECT_EQ(urlDecode("/அ"), "/அ");
}

TEST(UrlDecode, PercentNearTheEndStays) {
    EXPECT_EQ(urlDecode("/a%2"), "/a%2");
    EXPECT_EQ(urlDecode("/a%"), "/a%");
    EXPECT_EQ(urlDecode("%41"), "A");
    EXPECT_EQ(urlDecode("%4"), "%4");
}

TEST(UrlDecode, WhatIsNotHexadecimalStays) {
    EXPECT_EQ(urlDecode("%zz1"), "%zz1");
    EXPECT_EQ(urlDecode("%+1"), std::string(1, '\x01')) << "a sign is part of a number";
    EXPECT_EQ(urlDecode("%++x"), "%  x") << "and ordinary otherwise";
    EXPECT_EQ(urlDecode("%%41"), "%A");
    EXPECT_EQ(urlDecode("%4z"), std::string(1, '\x04')) << "the number ends at the z";
    EXPECT_EQ(urlDecode("%-1"), "\xFF");
}

TEST(MimeType, ByTheEndingInTheTablesOrder) {
    const std::pair<const char*, const char*> rows[] = {
        {"a.html", "text/html; charset=utf-8"},
        {"a.js", "application/javascript"},
        {"a.wasm", "application/wasm"},
        {"a.css", "text/css"},
        {"a.png", "image/png"},
        {"a.jpg", "image/jpeg"},
        {"a.jpeg", "image/jpeg"},
        {"a.svg", "image/svg+xml"},
        {"a.json", "application/json"},
        {"a.gif", "image/gif"},
        {"a.mp4", "video/mp4"},
        {"a.ttf", "font/ttf"},
        {"a.woff", "font/woff"},
        {"a.woff2", "font/woff2"},
        {"a.data", "application/octet-stream"},
        {"a.PNG", "application/octet-stream"},
        {"png", "application/octet-stream"},
        {"a.png?v=1", "application/octet-stream"},
        {"", "application/octet-stream"},
    };
    for (const auto& [path, type] : rows) EXPECT_EQ(getMimeType(path), type) << path;
}

class Server : public ScratchDirectory {
protected:
    std::string get(const std::string& path) const { return ::get(port, path); }

    const int port = startServer();
};

TEST_F(Server, Version) {
    g_appVersion = 1;
    EXPECT_EQ(get("/version"), answer("text/plain", "1"));
    g_appVersion = 1234;
    EXPECT_EQ(get("/version"), answer("text/plain", "1234"));
}

TEST_F(Server, PageFromMemory) {
    write("index.html", "not this one");
    write("வெளியீடு/index.html", "nor this one");
    storePage("<p>அ</p>");
    EXPECT_EQ(get("/"), answer("text/html; charset=utf-8", "<p>அ</p>"));
    EXPECT_EQ(get("/index.html"), answer("text/html; charset=utf-8", "<p>அ</p>"));
    storePage("");
    EXPECT_EQ(get("/"), answer("text/html; charset=utf-8", ""));
    const std::string large(3'000'000, 'x');
    storePage(large);
    EXPECT_EQ(get("/"), answer("text/html; charset=utf-8", large));
}

TEST_F(Server, OnlyAFileGoesOnAfterAShortWrite) {
    const std::string large(5000, 'x');
    write("file.txt", large);
    storePage(large);
    const std::string page = answer("text/html; charset=utf-8", large);
    g_mostBytesAWrite = 1000;
    g_writes = 0;
    EXPECT_EQ(get("/"), page.substr(0, page.find("\r\n\r\n") + 4 + 1000));
    EXPECT_EQ(g_writes, 1 + 2) << "the client's one; the head and the page, once each";
    EXPECT_EQ(get("/file.txt"), answer("application/octet-stream", large));
    g_mostBytesAWrite = SIZE_MAX;
}

TEST_F(Server, OutputFiles) {
    write("index.js", "not this one");
    write("வெளியீடு/index.js", "js");
    write("வெளியீடு/index.wasm", std::string("\0asm\r\n\xFF", 7));
    write("வெளியீடு/index.data", "data");
    EXPECT_EQ(get("/index.js"), answer("application/javascript", "js"));
    EXPECT_EQ(get("/index.wasm"), answer("application/wasm", std::string("\0asm\r\n\xFF", 7)));
    EXPECT_EQ(get("/index.data"), answer("application/octet-stream", "data"));
    write("வெளியீடு/other.js", "x");
    EXPECT_EQ(get("/other.js"), kMissing) << "only the three come from there";
}

TEST_F(Server, AnyOtherFileFromTheCurrentDirectory) {
    write("assets/படம் 1.png", "png");
    write("அ.png", "tamil");
    write("empty.css", "");
    write("பொழில்", "none");
    EXPECT_EQ(get("/assets/%E0%AE%AA%E0%AE%9F%E0%AE%AE%E0%AF%8D+1.png"),
              answer("image/png", "png"));
    EXPECT_EQ(get("/%E0%AE%85.png"), answer("image/png", "tamil"));
    EXPECT_EQ(get("/அ.png"), answer("image/png", "tamil"));
    EXPECT_EQ(get("/empty.css"), answer("text/css", ""));
    EXPECT_EQ(get("/பொழில்"), answer("application/octet-stream", "none"));
}

TEST_F(Server, PathsAreNotRestricted) {
    fs::create_directory("inner");
    fs::current_path("inner");
    write("a.txt", "above");
    EXPECT_EQ(get("/../a.txt"), answer("application/octet-stream", "above"));
    write("inner/.hidden", "dot");
    EXPECT_EQ(get("hidden"), answer("application/octet-stream", "dot"))
        << "a dot stands before the path as it is";
}

TEST_F(Server, MissingFile) {
    ASSERT_EQ(kMissing.substr(kMissing.find("404 - ")).size(), 52U);
    EXPECT_EQ(get("/இல்லை.png"), kMissing);
    EXPECT_EQ(get("/index.js"), kMissing) << "the files are gone while a build runs";
}

TEST_F(Server, QueryIsPartOfThePath) {
    storePage("page");
    EXPECT_EQ(get("/index.html?v=1"), kMissing);
    EXPECT_EQ(get("/version?x"), kMissing);
    EXPECT_EQ(get("/?"), kMissing);
    write("version?x", "file");
    EXPECT_EQ(get("/version?x"), answer("application/octet-stream", "file"));
}

TEST_F(Server, DecodedPathPicksTheRoute) {
    EXPECT_EQ(get("/%76ersion"), get("/version"));
    EXPECT_EQ(get("/version/"), kMissing);
}

TEST_F(Server, MethodAndRestAreNotLookedAt) {
    const std::string version = get("/version");
    EXPECT_EQ(ask(port, "POST /version HTTP/1.1\r\n\r\nbody"), version);
    EXPECT_EQ(ask(port, "x /version y"), version);
    EXPECT_EQ(ask(port, " /version "), version) << "an empty method";
    EXPECT_EQ(ask(port, "HEAD /version HTTP/1.1\r\n\r\n"), version) << "body and all";
}

TEST_F(Server, WithoutTwoBlanksThereIsNoAnswer) {
    for (const char* request : {"word", "GET /version", "\r\n\r\n", "GET/versionHTTP/1.1\r\n"}) {
        Client client(port);
        client.send(request);
        EXPECT_EQ(client.readToEnd(), "") << request;
        EXPECT_TRUE(client.sawEnd()) << request;
    }
}

TEST_F(Server, EmptyPathIsTheCurrentDirectory) {
    EXPECT_EQ(ask(port, "GET  HTTP/1.1\r\n\r\n"), "") << "opens, but can't be read";
    fs::create_directory("assets");
    EXPECT_EQ(get("/assets"), "");
}

TEST_F(Server, OneReadOf4096Bytes) {
    const std::string version = get("/version");
    const std::string head = "GET /version HTTP/1.1\r\nCookie: ";
    Client client(port);
    client.send(head + std::string(60'000, 'c') + "\r\n\r\n");
    EXPECT_EQ(client.readToEnd(), version);
    EXPECT_TRUE(client.sawEnd()) << "the answer isn't torn by a reset";

    const std::string path = "/" + std::string(100, '.') + std::string(4085, '/');
    EXPECT_EQ(ask(port, "GET " + path + " HTTP/1.1\r\n\r\n"), "") << "the second blank isn't seen";
}

TEST_F(Server, RequestInPiecesIsTakenByItsFirst) {
    Client client(port);
    client.send("GET /ver");
    EXPECT_EQ(client.readToEnd(), "");
    EXPECT_TRUE(client.sawEnd());
}

TEST_F(Server, PathsThatNoFileCanHave) {
    EXPECT_EQ(get("/" + std::string(3000, 'a')), kMissing) << "longer than a name can be";
    EXPECT_EQ(get("/\xFF\xFE"), kMissing);
    EXPECT_EQ(get("/a/b/c"), kMissing);
    EXPECT_NE(get("/version"), "") << "and on it goes";
}

TEST_F(Server, PipesAreNotWaitedFor) {
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_EQ(get("/pipe"), kMissing);
    EXPECT_NE(get("/version"), "");
}

TEST_F(Server, FileTooLargeForMemoryIsNoAnswer) {
    std::ofstream("huge.bin").close();
    if (truncate("huge.bin", 1LL << 43) != 0) GTEST_SKIP() << "no sparse files of that size here";
    EXPECT_EQ(get("/huge.bin"), "");
    EXPECT_NE(get("/version"), "");
}

TEST(ServerSetUp, PortAlreadyTaken) {
    const int port = startServer();
    testing::internal::CaptureStderr();
    startLocalServer(port);  // returns
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "🚨 " + std::to_string(port) + " போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n");
}

TEST(ServerSetUp, NoSocketToBeHad) {
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none = {0, before.rlim_max};
    testing::internal::CaptureStderr();
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    startLocalServer(1);  // returns
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "🚨 சாக்கெட் உருவாக்க முடியவில்லை!\n");
}

constexpr int kNoFilter = 77;

/// Starts the server in a process whose kernel refuses the system call `number`.
ProcessResult startWithout(long number) {
    return runForked([number] {
        sock_filter steps[] = {
            BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(number), 0, 1),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EADDRINUSE),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        };
        const sock_fprog filter = {4, steps};
        if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return kNoFilter;
        if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0) return kNoFilter;
        startLocalServer(freePort());  // returns
        return 0;
    });
}

TEST(ServerSetUp, OptionRefused) {
    const ProcessResult run = startWithout(SYS_setsockopt);
    if (run.exitCode == kNoFilter) GTEST_SKIP() << "no filter of system calls here";
    EXPECT_EQ(run.err, "🚨 சாக்கெட் ஆப்ஷன் பிழை!\n");
    EXPECT_EQ(run.exitCode, 0);
}

TEST(ServerSetUp, ListeningRefused) {
    const ProcessResult run = startWithout(SYS_listen);
    if (run.exitCode == kNoFilter) GTEST_SKIP() << "no filter of system calls here";
    EXPECT_EQ(run.err, "🚨 சர்வர் கவனிப்பதில் பிழை!\n");
    EXPECT_EQ(run.exitCode, 0);
}

TEST_F(Server, ListensOnAllInterfaces) {
    // 127.0.0.2 is another address of the loopback interface.
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK + 1);
    address.sin_port = htons(static_cast<uint16_t>(port));
    EXPECT_EQ(connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    close(socket);
}

}  // namespace
