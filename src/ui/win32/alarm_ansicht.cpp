#include "ui/win32/alarm_ansicht.h"

#include "core/programm.h"

namespace kes::ui {

AlarmAnsicht::AlarmAnsicht(Programm& prg, AlarmFenster& modell)
    : FensterAnsicht(modell, "KestrellaPanel", WS_OVERLAPPEDWINDOW), prg_(prg) {
    Abgleichen();
}

bool AlarmAnsicht::Nachricht(UINT msg, WPARAM, LPARAM, LRESULT& ergebnis) {
    if (msg == WM_CLOSE) {
        prg_.AlarmEntladen(kEntladenNormal);
        ergebnis = 0;
        return true;
    }
    return false;
}

}  // namespace kes::ui
