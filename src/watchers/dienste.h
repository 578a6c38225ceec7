// New services that start automatically, unless their maker is trusted.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class Dienste {
public:
    Dienste(WächterKontext& k, ListView& ListView11, ListBox& List10, std::array<Label, 35>& ww)
        : ListView11(ListView11), List10(List10), ww(ww), k_(k) {}

    void LadeDienste();
    void LadeDiensteHersteller();
    void TesteDienste();

    ListView& ListView11;
    ListBox& List10;
    std::array<Label, 35>& ww;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
