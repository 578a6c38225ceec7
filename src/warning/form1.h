// The delete question Form1, a modal window that asks before a delete.
#pragma once

#include "core/fenster.h"
#include "core/steuerelemente.h"

namespace kes {

class Programm;

class Form1Fenster : public Fenster {
public:
    explicit Form1Fenster(Programm& prg) : prg_(prg) {}

private:
    [[maybe_unused]] Programm& prg_;
};

}  // namespace kes
