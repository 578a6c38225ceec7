#include "core/starten.h"

#include "core/einstellungen.h"
#include "core/logdatei.h"
#include "core/programm.h"
#include "core/start.h"
#include "platform/allefunktionen.h"
#include "platform/sysfolder.h"

namespace kes {

bool Main(Programm& prg) {
    std::string ordner = DateiOrdner(prg.p.system.ExecutablePath());
    if (ordner.empty() || ordner.back() != '\\') ordner += '\\';
    prg.Programmordner = ordner;
    // The data folder travels with the program; one lost on the way is made anew, so the
    // lists have somewhere to go.
    prg.p.files.MakeDirectory(ordner + "daten");
    prg.Windowsordner = Sysfolder(prg.p, kCsidlWindows);
    prg.Systemordner = Sysfolder(prg.p, kCsidlSystem);
    prg.SysWow64ordner = prg.p.system.Wow64SystemDirectory();
    prg.Logkopf = LogkopfBilden(prg.p.system.ShortDate(), prg.p.system.ShortTime());

    StartFenster& start = prg.Start();
    // Any lower-case "s" anywhere means a silent start; "/S" does not.
    if (prg.p.system.CommandLine().find('s') != std::string::npos) {
        start.Timer2.SetEnabled(true);
        return true;
    }
    if (prg.p.system.PreviousInstance()) {
        prg.p.dialogs.ShowMessage("Kestrella ist bereits aktiv!.", "", kMbOk | kMbSystemModal);
        prg.Beenden = true;
        return false;
    }
    Properties_Load(prg);
    return true;
}

}  // namespace kes
