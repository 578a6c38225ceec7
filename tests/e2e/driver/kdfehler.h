// How every command of the driver says that it failed: one line on standard error, exit 1.
#pragma once

#include <cstdio>
#include <string>

namespace kd {

inline int Fehler(const std::string& text) {
    std::fprintf(stderr, "kdriver: %s\n", text.c_str());
    return 1;
}

}  // namespace kd
