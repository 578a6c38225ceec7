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

// Numbers as the runtime reports them.
inline constexpr int kFehlerTypUnverträglich = 13;
inline constexpr int kFehlerIndex = 9;
inline constexpr int kFehlerDateiende = 62;
inline constexpr int kFehlerDateizugriff = 75;
inline constexpr int kFehlerDateiformat = 321;

}  // namespace kes
