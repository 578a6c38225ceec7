// The up/down number field that holds the interval stage. A change of its text filters and
// limits the number and hands it to the owner through TextValue.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

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

    std::function<void(std::int32_t& zahl)> TextValue;

private:
    void Änderung();
    std::string text_ = "0";
};

}  // namespace kes
