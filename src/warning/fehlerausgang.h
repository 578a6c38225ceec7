// How the branches of several watchers end when a step fails.
#pragma once

#include <exception>
#include <string>
#include <vector>

#include "common/fehler.h"
#include "warning/form3.h"

namespace kes {

// A failure outside the passed-over steps ends the action with its number, and the
// warning stays open.
template <class Tun>
void MitFehlerausgang(Form3Fenster& f, const char* aktion, Tun tun) {
    try {
        tun();
    } catch (const Fehler& e) {
        f.K().P().dialogs.ShowMessage("(Form3, " + std::string(aktion) + ") Fehler: " + std::to_string(e.Nummer()), "",
                                      kMbOk);
    } catch (const std::exception&) {
        f.K().P().dialogs.ShowMessage("(Form3, " + std::string(aktion) + ") Fehler: 5", "", kMbOk);
    }
}

// The log entry after a change that is made by then: a log that cannot be written does
// not keep the window open.
inline void Loggen(WarnKontext& k, const std::string& titel, const std::vector<std::string>& zeilen,
                   const std::string& ergebnis) {
    try {
        k.Log(titel, zeilen, ergebnis);
    } catch (const Fehler&) {
    }
}

}  // namespace kes
