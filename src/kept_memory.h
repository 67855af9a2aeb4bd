// What the process does with memory that it no longer needs.
#pragma once

#include <malloc.h>

#include <limits>

/// Keeps freed memory for what comes next. The phases each give back what the next one asks for:
/// handed to the system in between, every page of it would have to be made anew.
inline void keepFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 32 << 20);  // the largest that is taken
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}
