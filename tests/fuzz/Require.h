#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the process when a condition that must hold does not.
inline void require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}
