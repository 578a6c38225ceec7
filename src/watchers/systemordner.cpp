#include "watchers/systemordner.h"

#include <unordered_set>

#include "common/pumpenfrei.h"
#include "common/text.h"
#include "platform/alledateien.h"
#include "platform/allefunktionen.h"
#include "platform/icoholen.h"
#include "watchers/alarm_daten.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
// The fill loops and the searches let window messages run at every step, so a folder of
// thousands of files never holds the windows up. That costs next to nothing: the platform's
// pump looks into the queue at most once a millisecond and passes the other yields over
// after one clock read. bench/systemordner_bench under Wine, 2493 files in system32: one
// yield per file 0.20 ms, the folder walk alone 220 ms (minimums of 10 rounds).

std::unordered_set<std::string> Pfade(const ListView& liste) {
    std::unordered_set<std::string> menge;
    menge.reserve(liste.Items.size());
    for (const auto& z : liste.Items) menge.insert(z.Text);
    return menge;
}
}  // namespace

void WindowsDateien::LadeWindowsausnahme() {
    if (!ausnahmen.Vorhanden()) return;
    const auto inhalt = ausnahmen.Lesen();
    if (!inhalt) return;
    List5.Items.clear();
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) List5.Items.push_back(zeile);
}

void WindowsDateien::Füllen(ListView& liste, Ordner welcher, const std::string& ordner) {
    Plattform& p = k_.P();
    std::vector<DateiEintrag> dateien;
    DateienSuchen(p, ordner, false, "*.*", dateien);
    // Filled aside and put in place at the end: the list is not half filled while messages
    // run, and the loop holds nothing of a list a message could change.
    std::vector<ListItem> zeilen;
    zeilen.reserve(dateien.size());
    for (const DateiEintrag& d : dateien) {
        k_.Pumpen();
        ListItem& z = zeilen.emplace_back();
        z.Text = d.Ordner + d.Name;
        // A file that cannot be measured keeps its length field unset.
        try {
            if (const auto länge = längen_[welcher].Länge(p, z.Text, d)) z.SetSubItem(1, std::to_string(*länge));
        } catch (...) {
        }
    }
    längen_[welcher].Aufräumen();
    liste.Items = std::move(zeilen);
}

void WindowsDateien::LadeWindows() {
    try {
        Füllen(ListView4, kWindows, k_.W().Windowsordner);
    } catch (...) {
    }
}

void WindowsDateien::LadeWindowsSys32() {
    try {
        Füllen(ListView7, kSystem, k_.W().Systemordner);
    } catch (...) {
    }
}

void WindowsDateien::LadeWindowsSysWow64() {
    if (k_.W().SysWow64ordner.empty()) return;
    try {
        Füllen(ListView13, kSysWow64, k_.W().SysWow64ordner);
    } catch (...) {
    }
}

ListView& WindowsDateien::BasisVon(const std::string& pfad) {
    const std::string& wow = k_.W().SysWow64ordner;
    if (!wow.empty() && GleichOhneFall(DateiOrdner(pfad), wow + "\\")) return ListView13;
    return ListView4;
}

bool WindowsDateien::AusnahmeTrue(const std::string& pfad) const {
    const Pumpenfrei frei;  // asked after the row's last yield, on the list as the panel shows it
    for (const auto& zeile : List5.Items)
        if (zeile == pfad) return true;
    return false;
}

void WindowsDateien::Gelöscht(Ordner welcher, const std::string& ordner, const ListView& basis, bool ausnahmen) {
    // The snapshot is put in place at every call, whatever box 17 says: the created-file
    // test after this one works on it.
    auto& stand = stand_[welcher];
    if (k_.W().Unverändert && stand) {
        ListView5.Items = *stand;
    } else {
        stand.reset();
        Füllen(ListView5, welcher, ordner);
        stand = ListView5.Items;
    }
    if (k_.Box(17) != 1) return;
    if (ListView5.Items.size() >= basis.Items.size()) return;

    // Upward from the end of the baseline: the first missing file that is not deferred.
    const std::unordered_set<std::string> jetzt = Pfade(ListView5);
    std::string pfad;
    std::size_t nummer = 0;
    for (std::size_t i = basis.Items.size(); i >= 1; --i) {
        k_.Pumpen();
        if (i > basis.Items.size()) continue;  // the baseline shrank during the pump
        const std::string text = basis.Items[i - 1].Text;
        if (jetzt.count(text) || k_.Später(text)) continue;
        pfad = text;
        nummer = i;
        break;
    }
    if (nummer == 0) return;
    if (ausnahmen) {
        // An excepted file stops the scan for this cycle: the files above it wait.
        Ausnahmedatei = AusnahmeTrue(pfad);
        if (Ausnahmedatei) return;
    }
    GefundenWindows(pfad, 2, static_cast<std::int32_t>(ListView5.Items.size()),
                    static_cast<std::int32_t>(basis.Items.size()), static_cast<std::int32_t>(nummer));
}

void WindowsDateien::Erstellt(const ListView& basis, bool ausnahmen) {
    if (k_.Box(16) != 1) return;
    if (ListView5.Items.size() <= basis.Items.size()) return;

    // What stays in ListView5 is what the baseline lacks, in the snapshot's order.
    const std::unordered_set<std::string> bekannt = Pfade(basis);
    std::vector<ListItem> jetzt = ListView5.Items, neu;
    for (ListItem& z : jetzt) {
        k_.Pumpen();
        if (!bekannt.count(z.Text)) neu.push_back(std::move(z));
    }
    ListView5.Items = std::move(neu);
    if (ListView5.Items.empty()) return;

    // Only the first new file is looked at; the others wait until it has gone.
    const std::string pfad = ListView5.Items.front().Text;
    if (k_.Später(pfad)) return;
    if (ausnahmen) {
        Ausnahmedatei = AusnahmeTrue(pfad);
        if (Ausnahmedatei) return;
    }
    GefundenWindows(pfad, 1, static_cast<std::int32_t>(ListView5.Items.size()),
                    static_cast<std::int32_t>(basis.Items.size()), 1);
}

void WindowsDateien::TesteWindowsGelöscht() {
    try {
        Gelöscht(kWindows, k_.W().Windowsordner, ListView4, true);
    } catch (...) {
    }
}

void WindowsDateien::TesteWindowsErstellt() {
    try {
        Erstellt(ListView4, true);
    } catch (...) {
    }
}

void WindowsDateien::TesteWindowsSystem32Gelöscht() {
    try {
        Gelöscht(kSystem, k_.W().Systemordner, ListView7, false);
    } catch (...) {
    }
}

void WindowsDateien::TesteWindowsSystem32Erstellt() {
    try {
        Erstellt(ListView7, false);
    } catch (...) {
    }
}

void WindowsDateien::TesteWindowsSysWow64Gelöscht() {
    if (k_.W().SysWow64ordner.empty()) return;
    try {
        Gelöscht(kSysWow64, k_.W().SysWow64ordner, ListView13, false);
    } catch (...) {
    }
}

void WindowsDateien::TesteWindowsSysWow64Erstellt() {
    // ListView5 holds nothing of SysWOW64 unless the deleted-file pass just walked it.
    if (k_.W().SysWow64ordner.empty()) return;
    try {
        Erstellt(ListView13, false);
    } catch (...) {
    }
}

void WindowsDateien::GefundenWindows(const std::string& pfad, std::int16_t modus, std::int32_t anzahl1,
                                     std::int32_t anzahl2, std::int32_t nummer) {
    Plattform& p = k_.P();
    k_.Warnen(Kategorie::WindowsDatei, [&](Warnung& f) {
        f.Label1[0].Caption = modus == 3   ? "Datei wurde geändert!"
                              : modus == 2 ? "Datei wurde gelöscht oder Verschoben!"
                              : modus == 1 ? "Datei wurde erstellt!"
                                           : f.Label1[0].Caption;
        f.Text1[0].Text = pfad;
        if (modus == 1 || modus == 2) {
            f.ListView2.Add(DateiName(pfad)).SmallIcon = 4;
            f.ListView2.Add(pfad).SmallIcon = 5;
        }
        if (modus == 1) {
            f.Zeigen(1);
            f.Zeigen(3);
            f.Label3[2].Caption = "Datei löschen";
            f.Zeigen(4);
        }
        if (modus == 2) {
            f.Zeigen(4);
            f.Zeigen(5);
        }
        f.Picture3[3].Visible = false;
        f.Text1[1].Text = std::to_string(anzahl2);
        f.Text1[2].Text = std::to_string(anzahl1);
        f.Text1[3].Text = std::to_string(modus);
        f.Text1[4].Text = std::to_string(nummer);
        f.Picture3[4].Visible = false;
        std::string datei = pfad;
        holedaten(p, f, datei);
        IcoHolen(p, pfad, f.picProcIcon);
    });
}

void Löschewindows1_Click(AlarmDaten& a, ListenPanel&, int) {
    ZeileEntfernen(a.List5);
    Übergehen([&] { a.windowsDateien.ausnahmen.Speichern(); });
}

}  // namespace kes
