// The watch cycle: one tick of Timer1 of Alarm runs the rows of this table from top to
// bottom. A row runs only while the busy flag is false and its box is 1, both tested anew
// for each row, so a watcher that raises a warning stops every row after it. The order is
// fixed; box 22 comes before box 21 on purpose.
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
constexpr int kKeineBox = -1;  // the row lets window messages run, whatever the boxes say

struct Zeile {
    int box;
    void (*tun)(AlarmDaten& a, Prozesswerte& w);
};

constexpr Zeile kZyklus[] = {
    {4, [](AlarmDaten& a, Prozesswerte&) { a.prozesse.TesteProzesse(); }},
    // One test of the busy flag for both passes: Favorit2 runs even after Favorit1 raised.
    {5,
     [](AlarmDaten& a, Prozesswerte& w) {
         w.Kategorieschlüssel = Kategorie::Favorit1;
         a.favoriten.TesteFavoriten();
         w.Kategorieschlüssel = Kategorie::Favorit2;
         a.favoriten.TesteFavoriten();
     }},
    {kKeineBox, nullptr},
    {8, [](AlarmDaten& a, Prozesswerte&) { a.startSeite.TesteStartPage(); }},
    {10, [](AlarmDaten& a, Prozesswerte&) { a.dfü.TesteDFÜ(); }},
    {11,
     [](AlarmDaten& a, Prozesswerte& w) {
         w.Kategorieschlüssel = Kategorie::Ordnermeister;
         a.autostartOrdner.TesteAutostartOrdner();
     }},
    {11,
     [](AlarmDaten& a, Prozesswerte& w) {
         w.Kategorieschlüssel = Kategorie::OrdnerAllUser;
         a.autostartOrdner.TesteAutostartOrdner();
     }},
    {13, [](AlarmDaten& a, Prozesswerte&) { a.autostartRegistry.TesteAutostartHkeyUser(); }},
    {13, [](AlarmDaten& a, Prozesswerte&) { a.autostartRegistry.TesteAutostartRegistry(); }},
    {14, [](AlarmDaten& a, Prozesswerte&) { a.hosts.TesteOnline(); }},
    {15, [](AlarmDaten& a, Prozesswerte&) { a.hosts.TesteHosts(); }},
    {19, [](AlarmDaten& a, Prozesswerte&) { a.windowsDateien.TesteWindowsGelöscht(); }},
    {19, [](AlarmDaten& a, Prozesswerte&) { a.windowsDateien.TesteWindowsErstellt(); }},
    {20, [](AlarmDaten& a, Prozesswerte&) { a.windowsDateien.TesteWindowsSystem32Gelöscht(); }},
    {20, [](AlarmDaten& a, Prozesswerte&) { a.windowsDateien.TesteWindowsSystem32Erstellt(); }},
    {22, [](AlarmDaten& a, Prozesswerte&) { a.activeX.Testeactivx(); }},
    {21, [](AlarmDaten& a, Prozesswerte&) { a.klassenlisten.TesteBHO(); }},
    {23, [](AlarmDaten& a, Prozesswerte&) { a.klassenlisten.TesteShellService(); }},
    {24, [](AlarmDaten& a, Prozesswerte&) { a.klassenlisten.TesteSharedTaskScheduler(); }},
    {25, [](AlarmDaten& a, Prozesswerte&) { a.sperren.TesteSonstiges(); }},
    {26, [](AlarmDaten& a, Prozesswerte&) { a.sperren.TesteSonstiges1(); }},
    {27, [](AlarmDaten& a, Prozesswerte&) { a.klassenlisten.TesteSonstiges2(); }},
    {28, [](AlarmDaten& a, Prozesswerte&) { a.dienste.TesteDienste(); }},
    {29, [](AlarmDaten& a, Prozesswerte&) { a.vertrauenswürdigeSeiten.TesteToolBar(); }},
    {29, [](AlarmDaten& a, Prozesswerte&) { a.vertrauenswürdigeSeiten.TesteToolBar1(); }},
    {30, [](AlarmDaten& a, Prozesswerte&) { a.shellBefehle.TesteHTafile(); }},
    {kKeineBox, nullptr},
};
}  // namespace

void AlarmDaten::Durchlauf() {
    Prozesswerte& w = k_.W();
    if (w.Beschäftigt) return;
    for (const Zeile& z : kZyklus) {
        if (z.box == kKeineBox) {
            k_.Pumpen();
            continue;
        }
        // The live value: a box changed during a pump takes effect at the next row.
        if (w.Beschäftigt || k_.Box(z.box) != 1) continue;
        // A watcher catches its own errors; none may stop the rows after it.
        try {
            z.tun(*this, w);
        } catch (...) {
        }
    }
}

}  // namespace kes
