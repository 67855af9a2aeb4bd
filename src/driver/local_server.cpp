#include "driver/local_server.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string_view>

#include "driver/answer_room.h"
#include "driver/paths.h"
#include "driver/served_page.h"
#include "driver/waiting_room.h"

namespace fs = std::filesystem;

namespace {

constexpr int kBacklog = 10;
constexpr std::size_t kRequestBytes = 4096;

constexpr int kSendBufferBytes = 128 * 1024;
constexpr timeval kRequestTimeout = {2, 0};
// Connections whose reader takes nothing at all are dropped by the kernel after this time; a slow
// one with a large buffer may well look so for twenty seconds.
constexpr unsigned kReaderTimeoutMilliseconds = 30'000;
constexpr std::size_t kMostUnread = 16;

struct MimeRow {
    const char* ending;
    const char* type;
};
constexpr MimeRow kMimeTypes[] = {
    {".html", "text/html; charset=utf-8"},
    {".js", "application/javascript"},
    {".wasm", "application/wasm"},
    {".css", "text/css"},
    {".png", "image/png"},
    {".jpg", "image/jpeg"},
    {".jpeg", "image/jpeg"},
    {".svg", "image/svg+xml"},
    {".json", "application/json"},
    {".gif", "image/gif"},
    {".mp4", "video/mp4"},
    {".ttf", "font/ttf"},
    {".woff", "font/woff"},
    {".woff2", "font/woff2"},
    {"", "application/octet-stream"},
};

// The body is 52 bytes long and 26 are announced. Meant.
constexpr std::string_view kNotFound =
    "HTTP/1.1 404 Not Found\r\nContent-Length: 26\r\n\r\n404 - பக்கம் காணவில்லை";

std::string head(const std::string& type, std::size_t length) {
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type +
           "\r\nContent-Length: " + std::to_string(length) +
           "\r\nConnection: close\r\nAccess-Control-Allow-Origin: *\r\n\r\n";
}

/// One write, whatever it takes; it waits for a reader who takes his time. A peer that has hung up
/// raises no signal.
ssize_t sendOnce(int client, std::string_view bytes) {
    return send(client, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

bool sendAll(int client, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = sendOnce(client, bytes);
        if (sent < 1) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

void answerVersion(int client, const std::string&) {
    const std::string value = std::to_string(g_appVersion.load());
    sendOnce(client, head("text/plain", value.size()) + value);
}

void answerPage(int client, const std::string&) {
    const std::string page = loadPage();
    sendOnce(client, head("text/html; charset=utf-8", page.size()));
    sendOnce(client, page);
}

void answerFile(int client, const std::string& name) {
    const fs::path path = fs::u8path(name);
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    // Opening a pipe would wait for a writer for ever.
    const bool openable = fs::is_regular_file(status) || fs::is_directory(status);
    std::ifstream file;
    if (openable) file.open(path, std::ios::binary | std::ios::ate);
    if (!file.is_open()) {
        sendOnce(client, kNotFound);
        return;
    }
    if (fs::is_directory(status)) return;  // opens, but can't be read
    std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
    file.seekg(0);
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return;
    if (sendAll(client, head(getMimeType(name), bytes.size()))) sendAll(client, bytes);
}

void answerOutput(int client, const std::string& path) { answerFile(client, "./வெளியீடு" + path); }
void answerAnyFile(int client, const std::string& path) { answerFile(client, "." + path); }

struct Route {
    const char* path;
    void (*answer)(int client, const std::string& path);
};
constexpr Route kRoutes[] = {
    {"/version", answerVersion},   {"/", answerPage},
    {"/index.html", answerPage},   {"/index.js", answerOutput},
    {"/index.wasm", answerOutput}, {"/index.data", answerOutput},
};

void answer(int client, const std::string& path) {
    for (const Route& route : kRoutes) {
        if (path == route.path) {
            route.answer(client, path);
            return;
        }
    }
    answerAnyFile(client, path);
}

/// One read: a request is taken to come in one piece, and only its first line matters.
std::string readRequest(int client) {
    char buffer[kRequestBytes] = {};
    const ssize_t count = read(client, buffer, sizeof(buffer));
    return {buffer, strnlen(buffer, count < 0 ? 0 : static_cast<std::size_t>(count))};
}

void serveRequest(int client) {
    const std::string request = readRequest(client);
    const std::size_t first = request.find(' ');
    if (first == std::string::npos) return;
    const std::size_t second = request.find(' ', first + 1);
    if (second == std::string::npos) return;
    answer(client, urlDecode(request.substr(first + 1, second - first - 1)));
}

/// Lets the peer read the answer to its end. What it sent beyond the one read is thrown away, or
/// the kernel would reset the connection at its close, and the answer with it.
void endGently(int client) {
    shutdown(client, SHUT_WR);
    char rest[kRequestBytes];
    for (int i = 0; i < 64 && recv(client, rest, sizeof(rest), MSG_DONTWAIT) > 0; i++) continue;
}

void serveClient(int client) {
    setsockopt(client, SOL_SOCKET, SO_RCVTIMEO, &kRequestTimeout, sizeof(kRequestTimeout));
    setsockopt(client, SOL_SOCKET, SO_SNDBUF, &kSendBufferBytes, sizeof(kSendBufferBytes));
    setsockopt(client, IPPROTO_TCP, TCP_USER_TIMEOUT, &kReaderTimeoutMilliseconds,
               sizeof(kReaderTimeoutMilliseconds));
    try {
        serveRequest(client);
    } catch (const std::exception&) {
        // A path or a size that can't be had is a read that failed: no answer, and on we go.
    }
    endGently(client);
}

/// A listening socket, or -1 behind a line on standard error.
int openListener(int port) {
    const auto refuse = [](int listener, const std::string& text) {
        std::cerr << text;
        if (listener > 0) close(listener);
        return -1;
    };
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (listener == 0 || listener == -1) {
        return refuse(listener, "🚨 சாக்கெட் உருவாக்க முடியவில்லை!\n");
    }
    const int on = 1;
    if (setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on)) != 0) {
        return refuse(listener, "🚨 சாக்கெட் ஆப்ஷன் பிழை!\n");
    }
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    address.sin_port = htons(static_cast<uint16_t>(port));
    if (bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0) {
        return refuse(listener,
                      "🚨 " + std::to_string(port) + " போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n");
    }
    if (listen(listener, kBacklog) != 0) return refuse(listener, "🚨 சர்வர் கவனிப்பதில் பிழை!\n");
    fcntl(listener, F_SETFL, O_NONBLOCK);
    return listener;
}

}  // namespace

std::string urlDecode(const std::string& text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); i++) {
        if (text[i] == '+') {
            decoded += ' ';
        } else if (text[i] == '%' && i + 2 < text.size()) {
            try {
                decoded += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
                i += 2;
            } catch (const std::exception&) {
                decoded += '%';
            }
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

std::string getMimeType(const std::string& path) {
    const MimeRow* row = kMimeTypes;
    while (!hasEnding(path, row->ending)) row++;
    return row->type;
}

void startLocalServer(int port) {
    const int listener = openListener(port);
    if (listener < 0) return;
    WaitingRoom waiting(listener);
    AnswerRoom answers(serveClient, kMostUnread);
    while (true) {
        for (const int client : waiting.nextSpeakers()) answers.attend(client);
    }
}
