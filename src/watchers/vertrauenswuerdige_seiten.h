// Domains entered into the browser's security zones.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class VertrauenswürdigeSeiten {
public:
    VertrauenswürdigeSeiten(WächterKontext& k, ListView& ListView12) : ListView12(ListView12), k_(k) {}

    void LadeToolbar();
    void TesteToolBar();
    void TesteToolBar1();

    ListView& ListView12;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
