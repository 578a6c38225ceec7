// Folding many values into one number that moves with each of them: for an imprint that
// tells whether anything of what it was taken from has changed since.
#pragma once

#include <cstdint>
#include <string_view>

namespace kes {

// splitmix64's finaliser over the running value: every input bit moves the result.
inline void Mischen(std::uint64_t& h, std::uint64_t x) {
    h += x + 0x9e3779b97f4a7c15ULL;
    h = (h ^ (h >> 30)) * 0xbf58476d1ce4e5b9ULL;
    h = (h ^ (h >> 27)) * 0x94d049bb133111ebULL;
    h ^= h >> 31;
}

// A name's bytes as one value (FNV-1a), folded in.
inline void Mischen(std::uint64_t& h, std::string_view text) {
    std::uint64_t x = 0xcbf29ce484222325ULL;
    for (const char c : text) x = (x ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    Mischen(h, x);
}

}  // namespace kes
