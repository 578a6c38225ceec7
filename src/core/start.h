// The hidden window Start: host of the tray icon and its menu, and of Timer2, which runs the
// second stage of a silent start 3000 ms late.
#pragma once

#include <array>

#include "core/fenster.h"
#include "core/steuerelemente.h"

namespace kes {

class Programm;

class StartFenster : public Fenster {
public:
    explicit StartFenster(Programm& prg);

    Timer Timer2;
    std::array<MenuItem, 7> fox1;

    void Form_Load();
    void Timer2_Timer();

    void Aktiviert();
    void NichtAktiviert();

private:
    Programm& prg_;
};

}  // namespace kes
