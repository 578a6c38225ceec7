// The Win32 view of the assistant's stand-in: it tells that the assistant is not there yet
// and lets the user end the program.
#pragma once

#include "assistant/form2.h"
#include "ui/win32/fenster_ansicht.h"

namespace kes {
class Programm;
}

namespace kes::ui {

class Form2Ansicht : public FensterAnsicht {
public:
    Form2Ansicht(Programm& prg, Form2Fenster& modell);

private:
    bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) override;
    Programm& prg_;
};

}  // namespace kes::ui
