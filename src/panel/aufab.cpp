#include "panel/aufab.h"

#include <cstdlib>

namespace kes {

namespace {
bool IstZiffer(char c) {
    return c >= '0' && c <= '9';
}

// Val(): the leading number of the text, 0 when there is none.
std::int32_t ZahlVon(const std::string& t) {
    long long n = 0;
    for (char c : t) {
        if (!IstZiffer(c)) break;
        n = n * 10 + (c - '0');
        if (n > 2147483647LL) return 2147483647;
    }
    return static_cast<std::int32_t>(n);
}
}  // namespace

void AufAb::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Änderung();
}

void AufAb::Änderung() {
    std::int32_t zahl = 0;
    if (Zahlen) {
        // A faulty character cuts the last one, not itself: that is how the field behaves.
        const std::size_t länge = text_.size();
        for (std::size_t i = 0; i < länge && i < text_.size(); ++i)
            if (!IstZiffer(text_[i])) text_.pop_back();
        zahl = ZahlVon(text_);
        if (zahl >= Max) zahl = Max;
        if (zahl <= Min) zahl = Min;
        text_ = std::to_string(zahl);
    }
    if (TextValue) TextValue(zahl);
}

void AufAb::PfeilSchritt(bool hoch) {
    if (!Zahlen) return;
    std::int32_t zahl = ZahlVon(text_);
    if (hoch && zahl >= Max) {
        zahl = Max;
        text_ = std::to_string(zahl);
        if (TextValue) TextValue(zahl);
        return;
    }
    if (!hoch && zahl <= Min) {
        text_ = std::to_string(zahl);
        if (TextValue) TextValue(zahl);
        return;
    }
    zahl += hoch ? 1 : -1;
    SetText(std::to_string(zahl));
    if (TextValue) TextValue(zahl);
}

void AufAb::Zeitgeber(TimerApi& api, int idHoch, int idRunter) {
    timer_[0] = std::make_unique<Timer>(api, idHoch, 100);
    timer_[1] = std::make_unique<Timer>(api, idRunter, 100);
}

void AufAb::PfeilDrücken(int pfeil) {
    const auto i = static_cast<std::size_t>(pfeil);
    gedrückt_.at(i) = true;
    if (Zahlen && timer_[i]) timer_[i]->SetEnabled(true);
}

void AufAb::PfeilLoslassen(int pfeil) {
    const auto i = static_cast<std::size_t>(pfeil);
    gedrückt_.at(i) = false;
    if (timer_[i]) timer_[i]->SetEnabled(false);
}

void AufAb::Tick(int pfeil) {
    PfeilSchritt(pfeil == 0);
}

}  // namespace kes
