// The Win32 view of the control panel Alarm. For now the window itself with its caption;
// closing it is one of the ways out of the program.
#pragma once

#include "panel/alarm.h"
#include "ui/win32/fenster_ansicht.h"

namespace kes {
class Programm;
}

namespace kes::ui {

class AlarmAnsicht : public FensterAnsicht {
public:
    AlarmAnsicht(Programm& prg, AlarmFenster& modell);

private:
    bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) override;
    Programm& prg_;
};

}  // namespace kes::ui
