#include "platform/liste_schreiben.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"

namespace kes {

std::string ListeSchreiben(Plattform& p, const std::string& programmordner, const std::string& datei,
                           const std::vector<std::string>& zeilen, Schreibfehler fehler) {
    const std::string pfad = programmordner + datei;
    if (DateiVorhanden(p, pfad)) p.files.Delete(pfad);
    std::string text, letzte;
    for (const auto& z : zeilen) {
        text += z + "\r\n";
        letzte = z;
    }
    if (!p.files.WriteAll(pfad, text) && fehler == Schreibfehler::Melden)
        throw Fehler(kFehlerDateizugriff, "Pfad/Datei-Zugriffsfehler");
    return letzte;
}

}  // namespace kes
