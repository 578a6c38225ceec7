// The category keys: what kind of thing the warning at hand is about. The current key is
// one process-wide value; the warning window arranges itself by it and every action
// dispatches on it. A key is a constant of this enumeration, never a text typed at the
// place of use, so a misspelt key cannot compile.
#pragma once

#include <string>

namespace kes {

// The one list of keys, in the order of the enumeration; a key's name is its spelling.
// Keine: no key set yet in this run. Ordnermeister and OrdnerAllUser select which
// autostart folder a pass walks and are never the key of a warning.
// clang-format off
#define KES_KATEGORIEN(X) \
    X(Keine) \
    X(Prozesse) \
    X(HostsDatei) \
    X(Favorit1) \
    X(Favorit2) \
    X(Favoriten) \
    X(StartPage) \
    X(DFÜ) \
    X(Ordnermeister) \
    X(OrdnerAllUser) \
    X(AutostartOrdner) \
    X(AutostartRegistry) \
    X(WindowsDatei) \
    X(BHO) \
    X(ShellService) \
    X(TaskScheduler) \
    X(URLSearchHooks) \
    X(ActiveX) \
    X(Dienste) \
    X(RegeditDeaktiviert) \
    X(TaskmanagerDeaktiviert) \
    X(HtaFile) \
    X(ToolBar) \
    X(ToolBar1) \
    X(Winlogon) \
    X(AppInitDLLs) \
    X(ImageFileExecution) \
    X(PoliciesRun) \
    X(ActiveSetup) \
    X(BootSicherheit) \
    X(Winsock) \
    X(ShellErweiterungen) \
    X(IEToolbar) \
    X(Browsereinstellungen) \
    X(WeitereSperren) \
    X(Dateitypen) \
    X(GeplanteAufgaben) \
    X(Dienstpfade)
// clang-format on

enum class Kategorie {
#define KES_KATEGORIE_WERT(name) name,
    KES_KATEGORIEN(KES_KATEGORIE_WERT)
#undef KES_KATEGORIE_WERT
};

#define KES_KATEGORIE_EINS(name) +1
inline constexpr int kKategorieAnzahl = 0 KES_KATEGORIEN(KES_KATEGORIE_EINS);
#undef KES_KATEGORIE_EINS

// The key as the program has always spelt it ("Favorit1", "DFÜ", ...), for logs and tests;
// "" for Keine.
const char* KategorieName(Kategorie k);

// The three keys of the favourites watcher: it runs as "Favorit1" and "Favorit2" and warns
// as "Favoriten"; every action treats the three alike.
inline bool IstFavorit(Kategorie k) {
    return k == Kategorie::Favorit1 || k == Kategorie::Favorit2 || k == Kategorie::Favoriten;
}

}  // namespace kes
