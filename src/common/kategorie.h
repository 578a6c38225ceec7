// The category keys: what kind of thing the warning at hand is about. The current key is
// one process-wide value; the warning window arranges itself by it and every action
// dispatches on it. A key is a constant of this enumeration, never a text typed at the
// place of use, so a misspelt key cannot compile.
#pragma once

#include <string>

namespace kes {

enum class Kategorie {
    Keine,  // no key set yet in this run
    Prozesse,
    HostsDatei,
    Favorit1,
    Favorit2,
    Favoriten,
    StartPage,
    DFÜ,
    Ordnermeister,  // selects the user's autostart folder; never the key of a warning
    OrdnerAllUser,  // selects the all-users autostart folder; never the key of a warning
    AutostartOrdner,
    AutostartRegistry,
    WindowsDatei,
    BHO,
    ShellService,
    TaskScheduler,
    URLSearchHooks,
    ActiveX,
    Dienste,
    RegeditDeaktiviert,
    TaskmanagerDeaktiviert,
    HtaFile,
    ToolBar,
    ToolBar1,
};

inline constexpr int kKategorieAnzahl = static_cast<int>(Kategorie::ToolBar1) + 1;

// The key as the program has always spelt it ("Favorit1", "DFÜ", ...), for logs and tests.
const char* KategorieName(Kategorie k);

// The three keys of the favourites watcher: it runs as "Favorit1" and "Favorit2" and warns
// as "Favoriten"; every action treats the three alike.
inline bool IstFavorit(Kategorie k) {
    return k == Kategorie::Favorit1 || k == Kategorie::Favorit2 || k == Kategorie::Favoriten;
}

}  // namespace kes
