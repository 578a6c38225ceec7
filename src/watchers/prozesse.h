// New processes: a running program whose path is not in the baseline and whose maker is not trusted.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class Prozesse {
public:
    Prozesse(WächterKontext& k, ListView& ListView6, ListBox& List1, ListBox& List2)
        : ListView6(ListView6), List1(List1), List2(List2), k_(k) {}

    void LadeProzessFirmen();
    void LadeProzesse();
    void TesteProzesse();

    ListView& ListView6;
    ListBox& List1;
    ListBox& List2;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
