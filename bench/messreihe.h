// Series of times and the clocks the cycle bench reads them from.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

#include "fremdmessung.h"

namespace kes::bench {

struct Reihe {
    std::vector<double> ms;
    double Median() const {
        std::vector<double> s = ms;
        std::sort(s.begin(), s.end());
        return s.empty() ? 0 : s[s.size() / 2];
    }
    double Min() const { return ms.empty() ? 0 : *std::min_element(ms.begin(), ms.end()); }
    double Mittel() const {
        double summe = 0;
        for (double m : ms) summe += m;
        return ms.empty() ? 0 : summe / static_cast<double>(ms.size());
    }
};

template <typename F>
double Zeit(F f) {
    const auto start = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// Processor time in seconds of this process and the wineserver, which does the registry and
// file work of the bench: wall times under Wine wait on the server's turns.
inline double BenchProzessorzeit() {
    return LinuxProzessorzeit("zyklus_bench.exe") + LinuxProzessorzeit("wineserver");
}

// Processor time in ms a call of f, over n calls. The clock of /proc counts in steps of 10 ms:
// n calls should take some seconds.
inline double ProzessorMs(int n, const std::function<void(int)>& f) {
    const double vorher = BenchProzessorzeit();
    for (int i = 0; i < n; ++i) f(i);
    return (BenchProzessorzeit() - vorher) * 1000 / n;
}

}  // namespace kes::bench
