#include "watchers/systemordner.h"

#include <algorithm>
#include <string_view>
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
// pump looks into the queue once a step of the system's tick count and passes the other
// yields over after one read of it. bench/systemordner_bench under Wine, 2495 files in
// system32: one yield per file 0.01 ms, the folder walk alone 10 ms.

// The paths of rows that stay put while the set is used: the row's own kept walk or
// baseline texts, which no window message can change.
template <typename Zeilen, typename Text>
std::unordered_set<std::string_view> Pfade(const Zeilen& zeilen, Text text) {
    std::unordered_set<std::string_view> menge;
    menge.reserve(zeilen.size());
    for (const auto& z : zeilen) menge.insert(text(z));
    return menge;
}
}  // namespace

const std::unordered_set<std::string_view>& WindowsDateien::BekanntePfade(Ordner welcher, const ListView& basis) {
    // Kept while the baseline's texts are those it was made of: a change tick then sets the
    // walk against the baseline without copying it. Compared line by line at every call, so
    // an accepted or removed row counts at once.
    Basismenge& b = basis_[welcher];
    const bool gleich = b.texte.size() == basis.Items.size() &&
                        std::equal(b.texte.begin(), b.texte.end(), basis.Items.begin(),
                                   [](const std::string& t, const ListItem& z) { return t == z.Text; });
    if (!gleich) {
        b.texte.clear();
        b.texte.reserve(basis.Items.size());
        for (const ListItem& z : basis.Items) b.texte.push_back(z.Text);
        b.menge = Pfade(b.texte, [](const std::string& t) -> std::string_view { return t; });
    }
    return b.menge;
}

void WindowsDateien::LadeWindowsausnahme() {
    if (!ausnahmen.Vorhanden()) return;
    const auto inhalt = ausnahmen.Lesen();
    if (!inhalt) return;
    List5.Items.clear();
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) List5.Items.push_back(zeile);
}

void WindowsDateien::Füllen(ListView& liste, Ordner welcher, const std::string& ordner) {
    // Filled aside and put in place at the end: the list is not half filled while messages
    // run, and the loop holds nothing of a list a message could change.
    std::vector<ListItem> zeilen;
    Walk(welcher, ordner, zeilen);
    liste.Items = std::move(zeilen);
}

void WindowsDateien::Walk(Ordner welcher, const std::string& ordner, std::vector<ListItem>& zeilen) {
    Plattform& p = k_.P();
    // The entries' buffer of the last walk, taken for this one: a walk begun by a message
    // during this one's yields finds it taken and allocates its own.
    std::vector<DateiEintrag> dateien = std::move(dateien_);
    dateien.clear();
    DateienSuchen(p, ordner, false, "*.*", dateien);
    // Rows a walk before left here keep their strings: a walk of a folder that changed little
    // writes into the storage of the last one instead of allocating each row anew.
    zeilen.resize(dateien.size());
    for (std::size_t i = 0; i < dateien.size(); ++i) {
        k_.Pumpen();
        const DateiEintrag& d = dateien[i];
        ListItem& z = zeilen[i];
        z.Text.assign(d.Ordner).append(d.Name);
        // A file that cannot be measured keeps its length field unset.
        std::optional<std::int64_t> länge;
        try {
            länge = längen_[welcher].Länge(p, z.Text, d);
        } catch (...) {
        }
        if (länge)
            z.SetSubItem(1, std::to_string(*länge));
        else
            z.SubItems.clear();
    }
    längen_[welcher].Aufräumen();
    if (dateien.capacity() > dateien_.capacity()) dateien_ = std::move(dateien);
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

void WindowsDateien::Zeigen(const std::vector<ListItem>& zeilen) {
    // ListView5 takes the walks of three folders in turn and, after a search, the few new
    // files: the rows it gives up wait aside with their strings' storage, and it takes them
    // back as it grows, so that a tick does not allocate a row per file of the largest folder.
    std::vector<ListItem>& ziel = ListView5.Items;
    for (; ziel.size() > zeilen.size(); ziel.pop_back()) vorrat_.push_back(std::move(ziel.back()));
    for (; ziel.size() < zeilen.size() && !vorrat_.empty(); vorrat_.pop_back())
        ziel.push_back(std::move(vorrat_.back()));
    ziel.resize(zeilen.size());
    std::copy(zeilen.begin(), zeilen.end(), ziel.begin());
}

void WindowsDateien::Gelöscht(Ordner welcher, const std::string& ordner, const ListView& basis, bool ausnahmen) {
    // The snapshot is put in place at every call, whatever box 17 says: the created-file
    // test after this one works on it.
    Stand& stand = stand_[welcher];
    if (!k_.W().Unverändert || !stand.gültig) {
        // The row's own kept walk is the one filled: no window message can reach it, and a
        // walk that fails on the way leaves it marked as not to be used.
        stand.gültig = false;
        Walk(welcher, ordner, stand.zeilen);
        stand.gültig = true;
    }
    Zeigen(stand.zeilen);
    if (k_.Box(17) != 1) return;
    if (ListView5.Items.size() >= basis.Items.size()) return;

    // Upward from the end of the baseline: the first missing file that is not deferred.
    const std::unordered_set<std::string_view> jetzt =
        Pfade(stand.zeilen, [](const ListItem& z) -> std::string_view { return z.Text; });
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

void WindowsDateien::Erstellt(Ordner welcher, const ListView& basis, bool ausnahmen) {
    if (k_.Box(16) != 1) return;
    if (ListView5.Items.size() <= basis.Items.size()) return;

    // What stays in ListView5 is what the baseline lacks, in the snapshot's order. The
    // deleted-file pass just before put its folder's kept walk there; the search runs on
    // that walk, which is the row's own, and copies only what is new.
    const Stand& stand = stand_[welcher];
    const std::vector<ListItem>* jetzt = &stand.zeilen;
    std::vector<ListItem> kopie;
    if (!stand.gültig || jetzt->size() != ListView5.Items.size()) jetzt = &(kopie = ListView5.Items);
    const std::unordered_set<std::string_view>& bekannt = BekanntePfade(welcher, basis);
    std::vector<ListItem> neu;
    for (const ListItem& z : *jetzt) {
        k_.Pumpen();
        if (!bekannt.count(z.Text)) neu.push_back(z);
    }
    Zeigen(neu);
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
        Erstellt(kWindows, ListView4, true);
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
        Erstellt(kSystem, ListView7, false);
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
        Erstellt(kSysWow64, ListView13, false);
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
