// The commands on the real machine: the registry and disk of Windows (or of Wine).
#include "kestrella_dat/befehle.h"
#include "platform/win32/echte_plattform.h"

namespace kes::werkzeug {

int AufDiesemSystem(const Aufruf& a, Ausgaben& o) {
    if (const auto* j = std::get_if<JournalAufruf>(&a)) {
        win32::Win32Files files;
        return JournalZeigen(files, *j, o);
    }
    win32::EchtePlattform echt;
    return Zurückholen(echt.plattform, std::get<RestoreAufruf>(a), o);
}

}  // namespace kes::werkzeug
