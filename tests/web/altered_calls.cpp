#include "web/altered_calls.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstdint>

std::atomic<std::size_t> g_mostBytesAWrite{SIZE_MAX};
std::atomic<int> g_writes{0};
std::atomic<unsigned> g_readerTimeout{0};
std::atomic<unsigned> g_lastReaderTimeout{0};

extern "C" {

ssize_t __real_send(int socket, const void* bytes, std::size_t count, int flags);
int __real_setsockopt(int socket, int level, int option, const void* value, socklen_t size);

ssize_t __wrap_send(int socket, const void* bytes, std::size_t count, int flags) {
    g_writes++;
    return __real_send(socket, bytes, std::min(count, g_mostBytesAWrite.load()), flags);
}

int __wrap_setsockopt(int socket, int level, int option, const void* value, socklen_t size) {
    if (level != IPPROTO_TCP || option != TCP_USER_TIMEOUT) {
        return __real_setsockopt(socket, level, option, value, size);
    }
    g_lastReaderTimeout = *static_cast<const unsigned*>(value);
    const unsigned altered = g_readerTimeout;
    return __real_setsockopt(socket, level, option, altered == 0 ? value : &altered, size);
}
}
