#include "ui/win32/alarm_ansicht.h"

#include "core/programm.h"
#include "ui/win32/schliessen.h"

namespace kes::ui {

AlarmAnsicht::AlarmAnsicht(Programm& prg, AlarmFenster& modell)
    : FensterAnsicht(modell, "KestrellaPanel", WS_OVERLAPPEDWINDOW), prg_(prg) {
    Abgleichen();
}

bool AlarmAnsicht::Nachricht(UINT msg, WPARAM, LPARAM, LRESULT& ergebnis) {
    if (msg == WM_CLOSE) {
        const int grund = GrundFürWmClose(h_);
        if (grund == kEntladenNormal) {
            EigenesSchliessen eigenes;
            prg_.AlarmEntladen(grund);
        } else if (grund >= 0) {
            prg_.AlarmEntladen(grund);
        }
        ergebnis = 0;
        return true;
    }
    return false;
}

}  // namespace kes::ui
