// A client on a bare socket, and a server of one's own to talk to.
#pragma once

#include <cstddef>
#include <string>

/// A TCP connection to this machine.
class Client {
public:
    /// Connects; waits for the server to listen for as long as `seconds`. `receiveBuffer` is the
    /// size that the kernel is asked for, in bytes; 0 leaves it.
    explicit Client(int port, int receiveBuffer = 0, double seconds = 5);
    ~Client();
    Client(Client&& other) noexcept;
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    void send(const std::string& bytes) const;
    /// Everything up to the end of the connection, or what came within `seconds`.
    std::string readToEnd(double seconds = 10);
    /// Up to `count` bytes in one read; empty at the end.
    std::string readSome(std::size_t count) const;
    /// Waits, without reading, until the other side has dropped the connection; false if it hasn't
    /// within `seconds`.
    bool waitForReset(double seconds) const;
    /// True if readToEnd saw an orderly end of the connection.
    bool sawEnd() const { return ended; }
    bool connected() const { return socket >= 0; }

private:
    int socket = -1;
    bool ended = false;
};

/// A port that nobody uses.
int freePort();

/// Starts startLocalServer(port) on a thread of its own and waits until it listens.
int startServer();

/// Sends `request` and returns the whole answer.
std::string ask(int port, const std::string& request, double seconds = 10);

/// Asks for a path as browsers do.
std::string get(int port, const std::string& path, double seconds = 10);
