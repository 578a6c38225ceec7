#include "watchers/geplante_aufgaben.h"

#include <algorithm>

#include "common/text.h"
#include "platform/allefunktionen.h"
#include "platform/aufgabendatei.h"
#include "platform/liste_schreiben.h"
#include "watchers/bekannte_texte.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
constexpr int kBild = 5;  // a file's full path

struct Fund {
    std::string name;
    bool ordner = false;
    std::uint64_t grösse = 0;
};

// What a folder holds, sorted by name: the file system's own order differs between
// machines, and which task warns first should not. The walk is closed before anything else
// runs.
std::vector<Fund> Inhalt(Plattform& p, const std::string& ordner) {
    std::vector<Fund> funde;
    FindData fd;
    const FileFind h = p.files.FindFirst(ordner + "\\*", &fd);
    for (bool weiter = static_cast<bool>(h); weiter; weiter = p.files.FindNext(h.Get(), &fd)) {
        if (fd.name.empty() || fd.name == "." || fd.name == "..") continue;
        funde.push_back({fd.name, (fd.attributes & kAttrDirectory) != 0, fd.size});
    }
    std::stable_sort(funde.begin(), funde.end(),
                     [](const Fund& a, const Fund& b) { return Klein(a.name) < Klein(b.name); });
    return funde;
}

bool IstJob(const std::string& name) {
    return name.size() > 4 && Klein(name.substr(name.size() - 4)) == ".job";
}

// The command of one file; none when the file went since the folder was listed. A file
// that is there but locked or too big names no program.
std::optional<std::string> Befehl(Plattform& p, const std::string& pfad, const Fund& f, bool job) {
    if (f.grösse > kAufgabeHöchstens) return std::string();
    const auto inhalt = p.files.ReadAll(pfad);
    if (inhalt) return job ? AufgabenbefehlJob(*inhalt) : AufgabenbefehlXml(*inhalt);
    if (p.files.GetAttributes(pfad) == kInvalidAttributes) return std::nullopt;
    return std::string();
}

void OrdnerLesen(Plattform& p, const std::string& ordner, bool alt, int tiefe, const std::function<void()>& pumpen,
                 std::vector<AufgabenEintrag>& aus) {
    for (const Fund& f : Inhalt(p, ordner)) {
        const std::string pfad = ordner + "\\" + f.name;
        if (f.ordner) {
            if (alt || tiefe >= kOrdnerTiefe) continue;
            pumpen();
            OrdnerLesen(p, pfad, alt, tiefe + 1, pumpen, aus);
            continue;
        }
        if (alt && !IstJob(f.name)) continue;
        pumpen();
        if (auto befehl = Befehl(p, pfad, f, alt)) aus.push_back({pfad, std::move(*befehl)});
    }
}
}  // namespace

std::string AufgabenordnerAlt(const Prozesswerte& w) {
    return w.Windowsordner + "\\Tasks";
}

std::string AufgabenordnerNeu(const Prozesswerte& w) {
    return w.Systemordner + "\\Tasks";
}

std::vector<AufgabenEintrag> AufgabenAuflisten(Plattform& p, const Prozesswerte& w,
                                               const std::function<void()>& pumpen) {
    std::vector<AufgabenEintrag> einträge;
    OrdnerLesen(p, AufgabenordnerAlt(w), true, 0, pumpen, einträge);
    pumpen();
    OrdnerLesen(p, AufgabenordnerNeu(w), false, 0, pumpen, einträge);
    return einträge;
}

void GeplanteAufgaben::Laden() {
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;  // no file: the next pass takes the present state
    liste.Items.clear();
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) liste.Add(zeile).SmallIcon = kBild;
    grundstand_ = true;
}

void GeplanteAufgaben::Erstaufnahme(WächterKontext& k) {
    try {
        std::vector<std::string> zeilen;
        for (const AufgabenEintrag& e : AufgabenAuflisten(k.P(), k.W(), [&] { k.Pumpen(); }))
            zeilen.push_back(e.Zeile());
        ListeSchreiben(k.P(), k.W().Programmordner, kGeplanteAufgabenDatei, zeilen, Schreibfehler::Übergehen);
    } catch (...) {
        // A failed walk leaves no baseline; the first pass with the box on takes one.
    }
}

void GeplanteAufgaben::Teste() {
    try {
        k_.W().Kategorieschlüssel = Kategorie::GeplanteAufgaben;
        // The baseline as the row starts: the walk lets messages run, and a change of the
        // list meanwhile counts from the next row on.
        const BekannteTexte bekannt(liste.Items, [](const ListItem& z) { return Klein(z.Text); });
        if (!k_.W().Unverändert || !stand_) {
            stand_.reset();
            stand_ = AufgabenAuflisten(k_.P(), k_.W(), [&] { k_.Pumpen(); });
        }
        // A copy: the warning lets messages run, and a walk of another pass may renew it.
        const std::vector<AufgabenEintrag> einträge = *stand_;
        if (!grundstand_) {
            liste.Items.clear();
            for (const AufgabenEintrag& e : einträge) liste.Add(e.Zeile()).SmallIcon = kBild;
            basis.Speichern(Schreibfehler::Übergehen);
            grundstand_ = true;
            return;
        }
        for (const AufgabenEintrag& e : einträge) {
            // Deferred by the file: a deferred task whose command changes stays deferred.
            if (bekannt.Enthält(Klein(e.Zeile())) || k_.Später(e.pfad)) continue;
            Warnen(e);
            return;
        }
    } catch (...) {
        // A failed walk ends the pass without a word and without a warning.
    }
}

Änderungsorte GeplanteAufgaben::Orte() {
    return {{0, AufgabenordnerAlt(k_.W())}, {0, AufgabenordnerNeu(k_.W()), true}};
}

void GeplanteAufgaben::Warnen(const AufgabenEintrag& e) {
    Plattform& p = k_.P();
    k_.Warnen(Kategorie::GeplanteAufgaben, [&](Warnung& f) {
        f.Label1[0].Caption = kGeplanteAufgabenÜberschrift;
        f.Label1[1].Caption = "Name: " + e.pfad;
        f.Label1[2].Caption = "Pfad: " + e.befehl;
        f.ListView2.Visible = false;
        for (int bereich : {3, 4}) f.Picture3[bereich].Visible = false;
        f.Text1[0].Text = e.pfad;
        f.Text1[1].Text = e.befehl;
        std::string datei = e.pfad;
        holedaten(p, f, datei);
    });
}

void GeplanteAufgaben::Übernehmen(const std::string& zeile) {
    liste.Add(zeile).SmallIcon = kBild;
    basis.Speichern();
    grundstand_ = true;
}

void GeplanteAufgaben::MarkierteLöschen(ListenPanel& panel) {
    Gemeldet(panel, "GeplanteAufgaben_Click", [&] {
        MarkierteEntfernen(liste);
        basis.Speichern();
    });
}

}  // namespace kes
