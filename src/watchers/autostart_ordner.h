// New files in the Startup folders of the user and of all users.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class AutostartOrdner {
public:
    AutostartOrdner(WächterKontext& k, ListBox& List3, std::array<Label, 16>& Label2)
        : List3(List3), Label2(Label2), k_(k) {}

    void LadeAutostart();
    void TesteAutostartOrdner();

    ListBox& List3;
    std::array<Label, 16>& Label2;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
