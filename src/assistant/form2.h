// The first-run assistant Form2. Until it is built, a stand-in that tells the user so.
#pragma once

#include "core/fenster.h"
#include "core/steuerelemente.h"

namespace kes {

class Programm;

class Form2Fenster : public Fenster {
public:
    explicit Form2Fenster(Programm& prg);
    Label Hinweis;

private:
    [[maybe_unused]] Programm& prg_;
};

}  // namespace kes
