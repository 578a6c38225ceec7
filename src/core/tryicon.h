// The balloon of the tray icon that watchers use to tell what they did alone.
#pragma once

#include <string>

namespace kes {

class Programm;
struct TrayRecord;

// Takes the icon away, makes the record the current one and shows the icon again: the one
// way every switch and balloon changes the notification area.
void SymbolErsetzen(Programm& prg, const TrayRecord& record);

// Shows a balloon with the caller's title and text and leaves the caller's tip on the icon.
// The two numbers have no effect: the balloon is always a warning with a time-out of 1.
// Without an icon name the icon stays empty until monitoring is switched next.
void Sprechblase(Programm& prg, const std::string& titel, const std::string& text, const std::string& tip, int art = 2,
                 int dauer = 3, const std::string& icon = "");

}  // namespace kes
