#include "warning/liste_schreiben.h"

#include "core/fehler.h"
#include "core/programm.h"
#include "platform/allefunktionen.h"

namespace kes {

std::string ListeSchreiben(Programm& prg, const std::string& datei, const std::vector<std::string>& zeilen,
                           Schreibfehler fehler) {
    const std::string pfad = prg.Programmordner + datei;
    if (DateiVorhanden(prg.p, pfad)) prg.p.files.Delete(pfad);
    std::string text, letzte;
    for (const auto& z : zeilen) {
        text += z + "\r\n";
        letzte = z;
    }
    if (!prg.p.files.WriteAll(pfad, text) && fehler == Schreibfehler::Melden)
        throw Fehler(kFehlerDateizugriff, "Pfad/Datei-Zugriffsfehler");
    return letzte;
}

}  // namespace kes
