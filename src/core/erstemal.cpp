#include "core/erstemal.h"

#include "core/programm.h"
#include "platform/allefunktionen.h"
#include "platform/prozesse1.h"
#include "platform/sysfolder.h"

namespace kes {

void ErstemalAnzeigen(Programm& prg) {
    Plattform& p = prg.p;
    const std::string datei = prg.Programmordner + "daten\\prozesse.txt";
    if (DateiVorhanden(p, datei)) p.files.Delete(datei);

    Prozesse1 tabelle(p);
    tabelle.ProzesseHolen();

    // Errors in the search for a path and in single lines are passed over.
    std::string text;
    for (ProcessRecord& r : tabelle.Prozesse) {
        try {
            const std::string system = Sysfolder(p, kCsidlSystem);
            const std::string windows = Sysfolder(p, kCsidlWindows);
            for (const std::string& kandidat :
                 {system + "\\" + r.Name, system + "\\wbem\\" + r.Name, windows + "\\" + r.Name}) {
                if (r.Path.empty() && DateiVorhanden(p, kandidat)) r.Path = kandidat;
            }
            if (r.Name != "[System Process]" && r.Name != "System" && r.Name != "System Idle Process")
                text += r.Name + "#" + r.Path + "\r\n";
        } catch (...) {
        }
    }
    p.files.WriteAll(datei, text);
}

}  // namespace kes
