// The hidden window Start: host of the tray icon and its menu fox, and of Timer2, which runs
// the second stage of a silent start 3000 ms late. Aktiviert and NichtAktiviert are the one
// switch between monitoring on and off as the user sees it.
#pragma once

#include <array>

#include "common/fenster.h"
#include "common/steuerelemente.h"

namespace kes {

class Programm;

// Mouse messages that the tray icon's callback carries.
inline constexpr int kLinksLos = 514;
inline constexpr int kRechtsLos = 517;
inline constexpr int kRechtsDoppel = 518;

class StartFenster : public Fenster {
public:
    explicit StartFenster(Programm& prg);

    Timer Timer2;
    std::array<MenuItem, 7> fox1;
    // Raised by a click on the tray icon: the view pops the menu fox up at the pointer, with
    // fox1(0) as default entry, and clears it.
    bool MenüÖffnen = false;

    void Form_Load();
    void Form_Unload();
    void Timer2_Timer();
    // The tray icon's callback: the mouse message it carries.
    void Form_MouseMove(int nachricht);
    void fox1_Click(int index);
    // The shell's taskbar was restarted: the icon must be added again.
    void TaskleisteNeu();

    void Aktiviert();
    void NichtAktiviert();

private:
    void SymbolSetzen(const std::string& tip, const std::string& text, const std::string& titel, int art,
                      const std::string& icon);
    Programm& prg_;
};

}  // namespace kes
