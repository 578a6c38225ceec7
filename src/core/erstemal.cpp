#include "core/erstemal.h"

#include "core/programm.h"
#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"
#include "platform/prozesse1.h"

namespace kes {

void ErstemalAnzeigen(Programm& prg) {
    Plattform& p = prg.p;
    const std::string datei = prg.Programmordner + "daten\\prozesse.txt";

    Prozesse1& tabelle = prg.Prozesstabelle();
    tabelle.Prozesse.clear();
    tabelle.ProzesseHolen();

    // Errors in the search for a path and in single lines are passed over.
    std::string text;
    for (ProcessRecord& r : tabelle.Prozesse) {
        try {
            PfadSuchen(p, r);
            if (!IstSystemProzess(r.Name)) text += r.Name + "#" + r.Path + "\r\n";
        } catch (...) {
        }
    }
    // Written from an empty start, in place of the old file only once complete.
    DateiErsetzen(p.files, datei, text);
}

}  // namespace kes
