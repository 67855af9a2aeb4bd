// What the system answers the server, altered: writes that are cut short, and a shorter patience.
// The linker puts these calls before those of the C library.
#pragma once

#include <atomic>
#include <cstddef>

/// The most that one call of send takes; everything by default.
extern std::atomic<std::size_t> g_mostBytesAWrite;

/// How many calls of send there were.
extern std::atomic<int> g_writes;

/// Milliseconds after which a reader who takes nothing is dropped, in the place of the server's
/// own; 0 leaves that.
extern std::atomic<unsigned> g_readerTimeout;

/// What the server itself last asked for.
extern std::atomic<unsigned> g_lastReaderTimeout;
