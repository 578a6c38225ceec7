// A broken rule of a fuzz target stops the run as a crash does, with the rule named.
#pragma once

#include <cstdio>

namespace kes::fuzz {

inline void Prüfen(bool bedingung, const char* was) {
    if (!bedingung) {
        std::fprintf(stderr, "Verletzt: %s\n", was);
        __builtin_trap();
    }
}

}  // namespace kes::fuzz
