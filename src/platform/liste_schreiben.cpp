#include "platform/liste_schreiben.h"

#include "common/fehler.h"
#include "platform/datei_ersetzen.h"

namespace kes {

std::string ListeSchreiben(Plattform& p, const std::string& programmordner, const std::string& datei,
                           const std::vector<std::string>& zeilen, Schreibfehler fehler) {
    std::string text, letzte;
    for (const auto& z : zeilen) {
        text += z + "\r\n";
        letzte = z;
    }
    if (!DateiErsetzen(p.files, programmordner + datei, text) && fehler == Schreibfehler::Melden)
        throw Fehler(kFehlerDateizugriff, "Pfad/Datei-Zugriffsfehler");
    return letzte;
}

}  // namespace kes
