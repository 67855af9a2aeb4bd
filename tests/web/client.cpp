#include "web/client.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <stdexcept>
#include <thread>

#include "driver/local_server.h"

namespace {

using Clock = std::chrono::steady_clock;

sockaddr_in addressOf(int port) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    return address;
}

int tryConnect(int port, int receiveBuffer) {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (receiveBuffer > 0) {
        setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof(receiveBuffer));
    }
    const sockaddr_in address = addressOf(port);
    if (connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) {
        return socket;
    }
    close(socket);
    return -1;
}

Clock::time_point after(double seconds) {
    return Clock::now() +
           std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

}  // namespace

Client::Client(int port, int receiveBuffer, double seconds) {
    const auto deadline = after(seconds);
    while ((socket = tryConnect(port, receiveBuffer)) < 0 && Clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

Client::~Client() {
    if (socket >= 0) close(socket);
}

Client::Client(Client&& other) noexcept : socket(other.socket), ended(other.ended) {
    other.socket = -1;
}

void Client::send(const std::string& bytes) const {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t step = ::send(socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (step <= 0) return;
        sent += static_cast<std::size_t>(step);
    }
}

std::string Client::readToEnd(double seconds) {
    const auto deadline = after(seconds);
    std::string text;
    char buffer[65536];
    while (true) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd readable = {socket, POLLIN, 0};
        if (left <= 0 || poll(&readable, 1, static_cast<int>(left)) <= 0) return text;
        const ssize_t count = read(socket, buffer, sizeof(buffer));
        ended = count == 0;
        if (count <= 0) return text;
        text.append(buffer, static_cast<std::size_t>(count));
    }
}

std::string Client::readSome(std::size_t count) const {
    std::string text(count, '\0');
    const ssize_t got = read(socket, text.data(), count);
    text.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return text;
}

bool Client::waitForReset(double seconds) const {
    const auto deadline = after(seconds);
    while (Clock::now() < deadline) {
        send("?");  // who has dropped the connection says so when it is spoken to
        pollfd torn = {socket, 0, 0};
        if (poll(&torn, 1, 50) == 1 && (torn.revents & POLLERR) != 0) return true;
    }
    return false;
}

int freePort() {
    // Below the ports that the system gives to clients, so that no client's socket takes it
    // between this look and the server's bind; tests of other processes start elsewhere.
    static int next = 10'000 + getpid() % 20'000;
    for (int tries = 0; tries < 1000; tries++) {
        const int port = next++;
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const sockaddr_in address = addressOf(port);
        const bool free =
            bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
        close(socket);
        if (free) return port;
    }
    throw std::runtime_error("no free port");
}

int startServer() {
    const int port = freePort();
    std::thread([port] { startLocalServer(port); }).detach();
    if (!Client(port).connected()) throw std::runtime_error("the server doesn't listen");
    return port;
}

std::string ask(int port, const std::string& request, double seconds) {
    Client client(port);
    client.send(request);
    return client.readToEnd(seconds);
}

std::string get(int port, const std::string& path, double seconds) {
    return ask(port, "GET " + path + " HTTP/1.1\r\nHost: localhost\r\n\r\n", seconds);
}
