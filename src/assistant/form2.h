// The first-run assistant Form2. Until it is built, a stand-in that tells the user so.
#pragma once

#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "watchers/kontext.h"

namespace kes {

class Form2Fenster : public Fenster {
public:
    explicit Form2Fenster(WächterKontext& k);
    Label Hinweis;

private:
    [[maybe_unused]] WächterKontext& k_;
};

}  // namespace kes
