// The open commands of executable file types, compared with the expected texts of the page.
#pragma once

#include <array>

#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class ShellBefehle {
public:
    ShellBefehle(WächterKontext& k, std::array<TextBox, 3>& Text5) : Text5(Text5), k_(k) {}

    void TesteHTafile();

    std::array<TextBox, 3>& Text5;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
