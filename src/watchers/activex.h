// New files in the browser's "Downloaded Program Files" folder.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class ActiveX {
public:
    ActiveX(WächterKontext& k, ListBox& List6, ListBox& List7) : List6(List6), List7(List7), k_(k) {}

    void LadeActiveX();
    void Testeactivx();

    ListBox& List6;
    ListBox& List7;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
