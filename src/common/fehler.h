// An error with the platform's number, for routines whose handler reports
// "(Modul ..., Routine) Fehler: " plus the number and leaves.
#pragma once

#include <stdexcept>
#include <string>

namespace kes {

class Fehler : public std::runtime_error {
public:
    Fehler(int nummer, const std::string& text) : std::runtime_error(text), nummer_(nummer) {}
    int Nummer() const { return nummer_; }

private:
    int nummer_;
};

// Runs one statement of a routine that passes errors over: a failing statement is skipped
// and the next one runs.
template <typename Schritt>
void Übergehen(Schritt&& tun) {
    try {
        tun();
    } catch (...) {
    }
}

// Numbers as the runtime reports them.
inline constexpr int kFehlerTypUnverträglich = 13;
inline constexpr int kFehlerIndex = 9;
inline constexpr int kFehlerDateiNichtGefunden = 53;
inline constexpr int kFehlerZugriffVerweigert = 70;
inline constexpr int kFehlerDateiende = 62;
inline constexpr int kFehlerDateizugriff = 75;
inline constexpr int kFehlerDateiformat = 321;

}  // namespace kes
