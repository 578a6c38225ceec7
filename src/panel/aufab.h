// The up/down number field that holds the interval stage. A change of its text filters and
// limits the number and hands it to the owner through TextValue. Each arrow has a 100 ms
// timer that steps while the arrow is held; the first step comes only after 100 ms, so a
// quick click changes nothing.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "common/steuerelemente.h"

namespace kes {

class AufAb {
public:
    std::int16_t Min = 0;
    std::int32_t Max = 100;
    bool Zahlen = false;
    bool Buchstaben = true;
    bool Enabled = true;

    const std::string& Text() const { return text_; }
    // Setting the text it already holds raises nothing.
    void SetText(const std::string& text);
    // The user typed: the same change routine.
    void TextGeändert(const std::string& text) { SetText(text); }

    // Arrow held for one timer step (100 ms); up is true for the upper arrow.
    void PfeilSchritt(bool hoch);

    // The two arrow timers, by the ids the platform delivers their ticks with.
    void Zeitgeber(TimerApi& api, int idHoch, int idRunter);
    // Arrow 0 is up, 1 down. Pressing shows the pressed picture and, with numbers on,
    // starts that arrow's timer; releasing stops it.
    void PfeilDrücken(int pfeil);
    void PfeilLoslassen(int pfeil);
    // A tick of the arrow's timer.
    void Tick(int pfeil);
    bool Gedrückt(int pfeil) const { return gedrückt_.at(static_cast<std::size_t>(pfeil)); }

    std::function<void(std::int32_t& zahl)> TextValue;

private:
    void Änderung();
    std::string text_ = "0";
    std::array<bool, 2> gedrückt_{};
    std::array<std::unique_ptr<Timer>, 2> timer_;
};

}  // namespace kes
