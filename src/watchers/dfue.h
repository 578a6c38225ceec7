// New dial-up entries, known by their phone number.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class DFÜ {
public:
    DFÜ(WächterKontext& k, ListView& ListView2) : ListView2(ListView2), k_(k) {}

    void LadeDFÜ();
    void TesteDFÜ();

    ListView& ListView2;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
