#include "ui/win32/oberflaeche.h"

#include "core/programm.h"

namespace kes::ui {

template <typename Ansicht, typename Modell>
void Oberfläche::Folgen(std::unique_ptr<Ansicht>& ansicht, Modell* modell) {
    if (!modell) {
        ansicht.reset();
        return;
    }
    // A window unloaded and loaded again within one event is a new model: a new view.
    if (!ansicht || ansicht->Modell() != modell) {
        ansicht.reset();
        ansicht = std::make_unique<Ansicht>(prg_, *modell);
    }
    ansicht->Abgleichen();
}

bool Oberfläche::Dialognachricht(MSG& m) {
    for (FensterAnsicht* v : {static_cast<FensterAnsicht*>(alarm_.get()), static_cast<FensterAnsicht*>(form2_.get())}) {
        if (!v) continue;
        HWND h = v->Fenster();
        if ((m.hwnd == h || ::IsChild(h, m.hwnd)) && ::IsDialogMessageA(h, &m)) return true;
    }
    return false;
}

void Oberfläche::Abgleichen() {
    // A view's own messages (a new window's first paint) may pump again; one pass at a time.
    if (läuft_) return;
    läuft_ = true;
    try {
        Folgen(start_, prg_.StartZeiger());
        Folgen(alarm_, prg_.AlarmZeiger());
        Folgen(form2_, prg_.Form2Zeiger());
        Folgen(form3_, prg_.Form3Zeiger());
        // The question last, so that it opens above the warning it belongs to.
        Folgen(form1_, prg_.Form1Zeiger());
    } catch (...) {
    }
    läuft_ = false;
}

}  // namespace kes::ui
