// The nineteen browser values that decide start and search pages, compared with their saved texts.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class StartSeite {
public:
    StartSeite(WächterKontext& k, ListView& ListView3) : ListView3(ListView3), k_(k) {}

    void LadeStartPage();
    void TesteStartPage();

    ListView& ListView3;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
