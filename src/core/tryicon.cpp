#include "core/tryicon.h"

#include "core/programm.h"

namespace kes {

void SymbolErsetzen(Programm& prg, const TrayRecord& record) {
    prg.p.tray.Notify(kNimDelete, prg.Tray);
    prg.Tray = record;
    prg.p.tray.Notify(kNimAdd, prg.Tray);
}

void Sprechblase(Programm& prg, const std::string& titel, const std::string& text, const std::string& tip, int, int,
                 const std::string& icon) {
    TrayRecord r;
    r.szInfoTitle = titel;
    r.szInfo = text;
    r.szTip = tip;
    r.icon = icon;
    r.dwInfoFlags = 2;
    r.uTimeout = 1;
    SymbolErsetzen(prg, r);
}

}  // namespace kes
