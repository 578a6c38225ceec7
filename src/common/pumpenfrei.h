// A stretch of code that must let no window message run: a loop over a list that the user
// interface can change holds references into it, and a pumped click could free them. The
// code says so by holding a Pumpenfrei for the length of the loop; the fake message pump
// of the tests fails the test that pumps while one is held. In the program it only counts.
#pragma once

namespace kes {

class Pumpenfrei {
public:
    Pumpenfrei() { ++gehalten_; }
    ~Pumpenfrei() { --gehalten_; }
    Pumpenfrei(const Pumpenfrei&) = delete;
    Pumpenfrei& operator=(const Pumpenfrei&) = delete;

    // True while any stretch declared free of pumps is running. One thread runs everything.
    static bool Gehalten() { return gehalten_ > 0; }

private:
    static inline int gehalten_ = 0;
};

}  // namespace kes
