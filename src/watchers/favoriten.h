// New favourites in the browser's favourites folder and its "Links" folder.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class Favoriten {
public:
    Favoriten(WächterKontext& k, ListBox& List4, std::array<Label, 16>& Label2) : List4(List4), Label2(Label2), k_(k) {}

    void LadeFavoriten();
    void TesteFavoriten();

    ListBox& List4;
    std::array<Label, 16>& Label2;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
