#include "watchers/prozesse.h"

#include "common/text.h"
#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"
#include "platform/icoholen.h"
#include "platform/infos.h"
#include "watchers/alarm_daten.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
// The first look and three more.
constexpr int kBlickeBisZurMeldung = 4;

// When the process was created, asked with the least right that serves; 0 when it cannot be
// asked, which then stands for every process under that id.
std::uint64_t Erstellt(Plattform& p, std::int32_t processId) {
    const auto id = static_cast<std::uint32_t>(processId);
    ProzessEigner h = p.processes.OpenProcess(kProcessQueryLimited, id);
    // Systems before Vista do not know the limited right.
    if (!h) h = p.processes.OpenProcess(kProcessQueryInformation, id);
    return h ? p.processes.CreationTime(h.Get()) : 0;
}
}  // namespace

std::string MitVorzeichenstelle(std::int32_t zahl) {
    return zahl < 0 ? std::to_string(zahl) : " " + std::to_string(zahl);
}

void Prozesse::LadeProzessFirmen() {
    List1.Items.clear();
    if (!firmen.Vorhanden()) return;
    const auto inhalt = firmen.Lesen();
    if (!inhalt) return;
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) List1.Items.push_back(zeile);
}

void Prozesse::LadeProzesse() {
    ListView6.Items.clear();
    if (!basis.Vorhanden()) return;
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;
    // An entry without "#" (the tail of a path broken at a comma) is all path, and keeps
    // the name of the entry before it, as the failed cut of the name leaves it.
    std::string name;
    for (const auto& eintrag : FelderLesen(*inhalt)) {
        const auto p = eintrag.find('#');
        if (p != std::string::npos) name = eintrag.substr(0, p);
        ListView6.Add(name).SetSubItem(1, p == std::string::npos ? eintrag : eintrag.substr(p + 1));
    }
}

Prozesse::Listen::Listen(const Prozesse& p)
    : pfade(p.ListView6.Items, [](const ListItem& z) { return Gross(z.SubItem(1)); }),
      firmen(p.List1.Items, [](const std::string& z) { return Klein(z); }),
      namen(p.List2.Items, [](const std::string& z) { return Klein(z); }) {}

bool Prozesse::Bekannt(const Listen& l, const ProcessRecord& r, const std::string& hersteller) {
    // Only the path counts here, not the name: by path, by maker, or allowed for this run.
    return l.pfade.Enthält(Gross(r.Path)) || l.firmen.Enthält(Klein(hersteller)) || l.namen.Enthält(Klein(r.Name));
}

void Prozesse::TesteProzesse() {
    try {
        Plattform& p = k_.P();
        // The lists as the row starts: the walk yields, and a change meanwhile counts from
        // the next row on.
        const Listen listen(*this);
        Prozesse1& tabelle = k_.Prozesstabelle();
        tabelle.ModulZähler = 0;
        tabelle.Prozesse.clear();
        tabelle.ProzesseHolen();

        const ProcessRecord* neu = nullptr;
        for (ProcessRecord& r : tabelle.Prozesse) {
            try {
                PfadSuchen(p, r);
            } catch (...) {
            }
            const DateiVersion& v = Version(r);
            // A process without a name is none the user could place or accept.
            if (IstSystemProzess(r.Name) || r.Name.empty()) continue;
            if (!r.Path.empty()) ohnePfad_.erase(r.ProcessId);
            if (Bekannt(listen, r, v.CompanyName)) continue;
            if (r.Path.empty() && !OhnePfadMelden(r)) continue;
            neu = &r;
            break;
        }
        OhnePfadAufräumen(tabelle.Prozesse);
        if (!neu) {
            versionen_.Aufräumen();
            VersionenAufräumen(tabelle.Prozesse);
        }
        if (!neu) return;
        // A deferred process hides everything behind it in the snapshot for this pass.
        if (k_.Später(neu->Name)) return;
        // The table may hold the modules of an earlier tick: the warning shows those of
        // now, or the table's when the process has ended meanwhile. The walk lets window
        // messages run, so it works on a copy.
        ProcessRecord gemeldet = *neu;
        std::vector<std::string> namen, pfade;
        std::int32_t anzahl = 0;
        tabelle.ModuleHolen(static_cast<std::uint32_t>(gemeldet.ProcessId), namen, pfade, anzahl);
        if (!namen.empty()) {
            gemeldet.ModuleNames = std::move(namen);
            gemeldet.ModulePaths = std::move(pfade);
            gemeldet.ModuleCount = anzahl;
        }
        Warnen(gemeldet);
    } catch (...) {
        // Any other error ends the routine without a message.
    }
}

const DateiVersion& Prozesse::Version(const ProcessRecord& r) {
    // The image a process runs cannot be written while it runs: its texts stay those of
    // the first look for as long as the process does.
    if (r.Erstellt != 0) {
        const auto it = laufend_.find(r.ProcessId);
        if (it != laufend_.end() && it->second.erstellt == r.Erstellt && it->second.pfad == r.Path)
            return it->second.version;
    }
    // A version block that overflows throws here, and nothing is kept: it ends the pass at
    // every look, as it always did.
    DateiVersion v;
    versionen_.Infos(k_.P(), r.Path, v);
    Laufend& l = laufend_[r.ProcessId];
    l = {r.Erstellt, r.Path, std::move(v)};
    return l.version;
}

void Prozesse::VersionenAufräumen(const std::vector<ProcessRecord>& tabelle) {
    std::map<std::int32_t, Laufend> bleiben;
    for (const ProcessRecord& r : tabelle) {
        const auto it = laufend_.find(r.ProcessId);
        if (it != laufend_.end()) bleiben.insert(*it);
    }
    laufend_ = std::move(bleiben);
}

bool Prozesse::OhnePfadMelden(const ProcessRecord& r) {
    const std::uint64_t erstellt = Erstellt(k_.P(), r.ProcessId);
    OhnePfad& o = ohnePfad_[r.ProcessId];
    if (o.blicke == 0 || o.erstellt != erstellt) o = {erstellt, 0};
    return ++o.blicke >= kBlickeBisZurMeldung;
}

void Prozesse::OhnePfadAufräumen(const std::vector<ProcessRecord>& tabelle) {
    if (ohnePfad_.empty()) return;
    std::map<std::int32_t, OhnePfad> bleiben;
    for (const ProcessRecord& r : tabelle) {
        const auto it = ohnePfad_.find(r.ProcessId);
        if (it != ohnePfad_.end()) bleiben.insert(*it);
    }
    ohnePfad_ = std::move(bleiben);
}

void Prozesse::Warnen(const ProcessRecord& r) {
    Plattform& p = k_.P();
    k_.Warnen(
        Kategorie::Prozesse,
        [&](Warnung& f) {
            f.Picture3[3].Visible = false;
            f.Label3[0].Visible = true;
            f.Label3[1].Visible = true;
            f.Label1[0].Caption = "Neuer Prozess im Speicher gefunden!";
            f.ListView2.Add(r.Name).SmallIcon = 4;
            f.ListView2.Add(r.Path).SmallIcon = 5;
            std::string pfad = r.Path;
            IcoHolen(p, pfad, f.picProcIcon);
            holedaten(p, f, pfad);
            f.ListView1.Items.at(4).SetSubItem(3, MitVorzeichenstelle(r.ProcessId));
            f.ListView1.Items.at(5).SetSubItem(3, std::to_string(r.ThreadCount));
            f.Modulscaption.Caption = MitVorzeichenstelle(r.ModuleCount);
            if (r.ModuleCount > 0) {
                f.Picture3[4].Visible = false;
                for (std::int32_t m = 1; m <= r.ModuleCount; ++m)
                    f.ListView3.Add(r.ModuleNames.at(m)).SetSubItem(1, r.ModulePaths.at(m));
                f.Picture3[4].Visible = true;
            }
        },
        Ton::Vorher);
}

void ErstemalAnzeigen(WächterKontext& k) {
    Plattform& p = k.P();
    Prozesse1& tabelle = k.Prozesstabelle();
    tabelle.Prozesse.clear();
    tabelle.ProzesseHolen();

    // Errors in the search for a path and in single lines are passed over.
    std::string text;
    for (ProcessRecord& r : tabelle.Prozesse) {
        try {
            PfadSuchen(p, r);
            if (!IstSystemProzess(r.Name)) text += r.Name + "#" + r.Path + "\r\n";
        } catch (...) {
        }
    }
    // Written from an empty start, in place of the old file only once complete.
    DateiErsetzen(p.files, k.W().Programmordner + kProzesseDatei, text);
}

void Pro_Click(AlarmDaten& a, ListenPanel&, int) {
    if (!ZeileEntfernen(a.List1)) return;
    Übergehen([&] { a.prozesse.firmen.Speichern(); });
    a.prozesse.LadeProzessFirmen();
}

void Pro1_Click(AlarmDaten& a, ListenPanel& panel, int) {
    Gemeldet(panel, "Pro1_Click", [&] {
        MarkierteEntfernen(a.ListView6);
        a.prozesse.basis.Speichern();
        a.prozesse.LadeProzesse();
    });
}

}  // namespace kes
