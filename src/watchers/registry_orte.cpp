#include "watchers/registry_orte.h"

#include <algorithm>

#include "common/text.h"
#include "platform/alledateien.h"
#include "platform/allefunktionen.h"
#include "platform/dienst_pfad.h"
#include "platform/hive_ocx.h"
#include "platform/icoholen.h"
#include "platform/mehrfachwert.h"
#include "platform/registry.h"
#include "watchers/bekannte_texte.h"
#include "watchers/warnung.h"

namespace kes {

const char* ArtName(Eintragsart art) {
    switch (art) {
        case Eintragsart::Teil:
            return "Teil";
        case Eintragsart::Schlüssel:
            return "Schlüssel";
        case Eintragsart::Unentbehrlich:
            return "Unentbehrlich";
        case Eintragsart::Katalog:
            return "Katalog";
        case Eintragsart::Text:
            return "Text";
        case Eintragsart::Sperre:
            return "Sperre";
        default:
            return "Wert";
    }
}

std::string WertPfad(const OrtEintrag& e) {
    return e.wurzel + "\\" + e.schlüssel + "\\" + e.name;
}

std::string KatalogSchlüssel(const std::string& schlüssel) {
    return schlüssel.substr(0, std::min(schlüssel.size(), schlüssel.rfind('\\')));
}

std::string OrtEintrag::Zeile() const {
    const std::string ort = art == Eintragsart::Katalog ? KatalogSchlüssel(schlüssel) : schlüssel;
    return wurzel + "\\" + ort + "\\" + name + "\\" + daten;
}

std::string OrtEintrag::Aufschub() const {
    // A catalog entry by its library, whichever number it has now.
    if (art == Eintragsart::Katalog) return Zeile();
    return wurzel + "\\" + schlüssel + "\\" + name + (art == Eintragsart::Teil ? "\\" + daten : "");
}

namespace {
// The entries of one value: one per part of a multi-string, else one with its text.
void WertEinträge(Plattform& p, RegHandle root, const std::string& key, const std::string& name, Eintragsart art,
                  std::vector<OrtEintrag>& aus) {
    HiveOCX hive(p.registry);
    // One open for both reads: a place of many subkeys (the services) costs one open each.
    HiveOCX::Offen offen(hive, HiveVonHandle(root), key);
    if (!offen.ValueExists(name)) {
        // A subkey counts even without its value; its data are then empty.
        if (art == Eintragsart::Schlüssel) aus.push_back({RootName(root), key, name, "", art});
        return;
    }
    if (art != Eintragsart::Schlüssel) {
        if (const auto teile = MehrfachLesen(p.registry, root, key, name)) {
            for (const std::string& t : *teile) aus.push_back({RootName(root), key, name, t, Eintragsart::Teil});
            return;
        }
    }
    aus.push_back({RootName(root), key, name, offen.ReadValue(name), art});
}

// The library a catalog item names: the text of a path value, or the ANSI path at the head
// of a binary item, up to its first NUL. Empty when the value is missing.
std::string KatalogPfad(Plattform& p, RegHandle root, const std::string& key, const char* name) {
    RegKey k;
    if (p.registry.OpenKeyEx(root, key, kKeyRead, &k) != kErrorSuccess) return "";
    std::uint32_t typ = 0, grösse = 0;
    if (p.registry.QueryValueEx(k.Get(), name, &typ, nullptr, &grösse) != kErrorSuccess) return "";
    std::vector<std::uint8_t> daten(grösse + 1, 0);
    if (p.registry.QueryValueEx(k.Get(), name, &typ, daten.data(), &grösse) != kErrorSuccess) return "";
    daten.resize(std::min<std::size_t>(grösse, daten.size()));
    const auto ende = std::find(daten.begin(), daten.end(), std::uint8_t{0});
    return std::string(daten.begin(), ende);
}

// The server file of a class, read in the classes of the view the entry came from.
std::string Serverdatei(Plattform& p, const std::string& schlüssel, const std::string& klasse) {
    if (klasse.empty()) return "";
    const std::string c = "CLSID\\" + klasse.substr(0, klasse.find(';'));
    return HiveOCX(p.registry)
        .ReadValue(0, (IstPfad32(schlüssel) ? Pfad32(kHkeyClassesRoot, c) : c) + "\\InprocServer32", "");
}

// The entries of a place that names classes become their server files; a class without one
// is dropped.
void KlassenAuflösen(Plattform& p, Klassenform form, std::vector<OrtEintrag>& einträge, std::size_t ab) {
    const auto anfang = einträge.begin() + static_cast<std::ptrdiff_t>(ab);
    for (auto e = anfang; e != einträge.end(); ++e) {
        e->daten = Serverdatei(p, e->schlüssel, form == Klassenform::Wertname ? e->name : e->daten);
        e->datei = true;
    }
    einträge.erase(std::remove_if(anfang, einträge.end(), [](const OrtEintrag& e) { return e.daten.empty(); }),
                   einträge.end());
}

void OrtArtLesen(Plattform& p, const RegistryOrt& ort, const std::string& key, const std::function<void()>& pumpen,
                 std::vector<OrtEintrag>& aus) {
    switch (ort.art) {
        case Ortsart::Werte:
            for (const char* name : ort.namen) {
                if (!name) continue;
                const bool nötig = std::any_of(ort.unentbehrlich.begin(), ort.unentbehrlich.end(),
                                               [&](const char* n) { return n && GleichOhneFall(n, name); });
                WertEinträge(p, ort.wurzel, key, name, nötig ? Eintragsart::Unentbehrlich : Eintragsart::Wert, aus);
            }
            break;
        case Ortsart::AlleWerte:
            for (const std::string& name : AlleWertnamen(p.registry, ort.wurzel, key))
                WertEinträge(p, ort.wurzel, key, name, Eintragsart::Wert, aus);
            break;
        case Ortsart::WertJeSchlüssel:
        case Ortsart::Unterschlüssel: {
            const Eintragsart art = ort.art == Ortsart::Unterschlüssel ? Eintragsart::Schlüssel : Eintragsart::Wert;
            for (const std::string& kind : ListSubkeys(p, ort.wurzel, key)) {
                if (kind.empty()) continue;  // no subkeys, or the key is gone
                pumpen();
                // A subkey deleted meanwhile reads as missing and gives nothing.
                WertEinträge(p, ort.wurzel, key + "\\" + kind, ort.namen[0], art, aus);
            }
            break;
        }
        case Ortsart::Katalog:
            for (const std::string& kind : ListSubkeys(p, ort.wurzel, key)) {
                if (kind.empty()) continue;
                pumpen();
                const std::string pfad = KatalogPfad(p, ort.wurzel, key + "\\" + kind, ort.namen[0]);
                if (!pfad.empty())
                    aus.push_back(
                        {RootName(ort.wurzel), key + "\\" + kind, ort.namen[0], pfad, Eintragsart::Katalog, true});
            }
            break;
    }
}

void OrtLesen(Plattform& p, const RegistryOrt& ort, const std::string& key, const std::function<void()>& pumpen,
              std::vector<OrtEintrag>& aus) {
    const std::size_t ab = aus.size();
    OrtArtLesen(p, ort, key, pumpen, aus);
    if (ort.klasse != Klassenform::Keine) KlassenAuflösen(p, ort.klasse, aus, ab);
    if (ort.rückweg == Rückweg::Löschen) return;
    // A lock of 0, or an empty one, locks nothing and is no entry; nor is a subkey without
    // the value that would name its program.
    const auto keinEintrag = [&](const OrtEintrag& e) {
        if (ort.rückweg == Rückweg::Freigeben) return e.daten.empty() || e.daten == "0";
        return e.art == Eintragsart::Schlüssel && e.daten.empty();
    };
    aus.erase(std::remove_if(aus.begin() + static_cast<std::ptrdiff_t>(ab), aus.end(), keinEintrag), aus.end());
    for (std::size_t i = ab; i < aus.size(); ++i) {
        if (aus[i].art == Eintragsart::Wert)
            aus[i].art = ort.rückweg == Rückweg::Freigeben ? Eintragsart::Sperre : Eintragsart::Text;
        if (aus[i].art == Eintragsart::Schlüssel) {
            aus[i].art = Eintragsart::Programm;
            aus[i].datei = true;
        }
    }
}
}  // namespace

std::vector<OrtEintrag> OrteAuflisten(Plattform& p, const OrteBeschreibung& b, const std::function<void()>& pumpen) {
    std::vector<OrtEintrag> einträge;
    for (const RegistryOrt& ort : b.orte) {
        const std::vector<std::string> pfade =
            ort.beideAnsichten ? BeideAnsichten(p, ort.wurzel, ort.schlüssel) : std::vector<std::string>{ort.schlüssel};
        for (const std::string& pfad : pfade) {
            OrtLesen(p, ort, pfad, pumpen, einträge);
            pumpen();
        }
    }
    return einträge;
}

void RegistryOrte::Laden() {
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;  // no file: the next pass takes the present state
    liste.Items.clear();
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) liste.Add(zeile).SmallIcon = 26;
    grundstand_ = true;
}

void RegistryOrte::Erstaufnahme(WächterKontext& k, const OrteBeschreibung& b) {
    try {
        std::vector<std::string> zeilen;
        for (const OrtEintrag& e : OrteAuflisten(k.P(), b, [&] { k.Pumpen(); })) zeilen.push_back(e.Zeile());
        ListeSchreiben(k.P(), k.W().Programmordner, b.datei, zeilen, Schreibfehler::Übergehen);
    } catch (...) {
        // A failed read leaves no baseline; the first pass with the box on takes one.
    }
}

void RegistryOrte::Teste() {
    try {
        k_.W().Kategorieschlüssel = beschreibung.kategorie;
        // The baseline as the row starts: the walks let messages run, and a change of the
        // list meanwhile counts from the next row on.
        const std::shared_ptr<const BekannteTexte> bekannt = Bekannte();
        if (!k_.W().Unverändert || !stand_) {
            stand_.reset();
            Gelistet neu{OrteAuflisten(k_.P(), beschreibung, [&] { k_.Pumpen(); }), {}};
            neu.gefaltet.reserve(neu.einträge.size());
            for (const OrtEintrag& e : neu.einträge) neu.gefaltet.push_back(Klein(e.Zeile()));
            stand_ = std::make_shared<const Gelistet>(std::move(neu));
        }
        // The pass's own hold: the warning lets messages run, and a walk of another pass
        // may renew the kept one.
        const std::shared_ptr<const Gelistet> stand = stand_;
        const std::vector<OrtEintrag>& einträge = stand->einträge;
        if (!grundstand_) {
            liste.Items.clear();
            for (const OrtEintrag& e : einträge) liste.Add(e.Zeile()).SmallIcon = 26;
            basis.Speichern(Schreibfehler::Übergehen);
            grundstand_ = true;
            return;
        }
        for (std::size_t i = 0; i < einträge.size(); ++i) {
            const OrtEintrag& e = einträge[i];
            if (bekannt->Enthält(stand->gefaltet[i]) || k_.Später(e.Aufschub())) continue;
            if (e.art == Eintragsart::Programm && beschreibung.anderswoGemeldet && !Bekannt(WertPfad(e)) &&
                beschreibung.anderswoGemeldet(k_, e)) {
                liste.Add(e.Zeile()).SmallIcon = 26;
                basis.Speichern(Schreibfehler::Übergehen);
                continue;
            }
            Warnen(e);
            return;
        }
    } catch (...) {
        // A failed read ends the pass without a word and without a warning.
    }
}

std::shared_ptr<const BekannteTexte> RegistryOrte::Bekannte() {
    const std::vector<ListItem>& zeilen = liste.Items;
    bool gleich = bekannt_ && zeilen.size() == basiszeilen_.size();
    for (std::size_t i = 0; gleich && i < zeilen.size(); ++i) gleich = zeilen[i].Text == basiszeilen_[i];
    if (gleich) return bekannt_;
    basiszeilen_.clear();
    basiszeilen_.reserve(zeilen.size());
    for (const ListItem& z : zeilen) basiszeilen_.push_back(z.Text);
    bekannt_ = std::make_shared<const BekannteTexte>(zeilen, [](const ListItem& z) { return Klein(z.Text); });
    return bekannt_;
}

Änderungsorte RegistryOrte::Orte() {
    Änderungsorte orte;
    for (const RegistryOrt& ort : beschreibung.orte) {
        const bool darunter = ort.art != Ortsart::Werte && ort.art != Ortsart::AlleWerte;
        // The key holds all a place reads, but the classes its entries name, and the
        // classes' root, which Windows merges from two keys.
        const bool ganz = ort.klasse == Klassenform::Keine && ort.wurzel != kHkeyClassesRoot;
        const int tiefe = !ganz ? kOhneAbdruck : darunter ? 1 : 0;
        const std::vector<std::string> pfade = ort.beideAnsichten ? BeideAnsichten(k_.P(), ort.wurzel, ort.schlüssel)
                                                                  : std::vector<std::string>{ort.schlüssel};
        for (const std::string& pfad : pfade) orte.push_back({ort.wurzel, pfad, darunter, tiefe});
    }
    return orte;
}

void RegistryOrte::Warnen(const OrtEintrag& e) {
    // A program's subkey whose value the baseline knows has changed its program: it warns as
    // a text, and "Original" puts the known one back; a new one goes with its subkey.
    const auto bisher =
        e.art == Eintragsart::Text || e.art == Eintragsart::Programm ? Bekannt(WertPfad(e)) : std::nullopt;
    Eintragsart art = e.art;
    if (art == Eintragsart::Programm) art = bisher ? Eintragsart::Text : Eintragsart::Schlüssel;
    k_.Warnen(beschreibung.kategorie, [&](Warnung& f) {
        f.Label1[0].Caption = beschreibung.überschrift;
        const bool schlüssel = art == Eintragsart::Schlüssel || art == Eintragsart::Katalog;
        // A key's default value is named by the key alone.
        f.Label1[1].Caption =
            "Name: " + e.wurzel + "\\" + e.schlüssel + (schlüssel || e.name.empty() ? "" : "\\" + e.name);
        f.Label1[2].Caption = "Pfad: " + e.daten;
        std::string datei = e.daten;
        if (e.datei) {
            // A server file or library: its details, as the warnings of the class lists show
            // them; a service's program without its quotes and arguments.
            datei = e.art == Eintragsart::Programm
                        ? DienstPfad(k_.P(), datei, "", k_.W().Windowsordner, k_.W().Systemordner)
                        : PfadErweitern(datei, k_.W().Windowsordner);
            f.ListView2.Add(DateiName(datei)).SmallIcon = 4;
            f.ListView2.Add(datei).SmallIcon = 5;
        } else {
            f.ListView2.Visible = false;
        }
        ListItem& reihe = f.ListView4.Add("Autostart");
        reihe.SmallIcon = 1;
        reihe.SetSubItem(1, e.wurzel);
        reihe.SetSubItem(2, e.schlüssel);
        reihe.SetSubItem(3, e.name);
        reihe.SetSubItem(4, e.daten);
        for (int p : {2, 4, 1}) f.Picture3[p].Visible = false;
        f.Text1[0].Text = e.wurzel + "\\" + e.schlüssel;
        f.Text1[1].Text = e.wurzel;
        f.Text1[2].Text = e.schlüssel;
        f.Text1[3].Text = e.name;
        f.Text1[4].Text = e.daten;
        f.Text1[5].Text = ArtName(art);
        if (art == Eintragsart::Sperre) f.Label1[2].Caption = e.name + " = " + e.daten;
        if (art == Eintragsart::Text)
            f.Label1[2].Caption = "Neuer Wert : " + e.daten + "        Original war: " + bisher.value_or("");
        if (art == Eintragsart::Unentbehrlich || art == Eintragsart::Text || art == Eintragsart::Sperre) {
            // Deleted, the value would leave Windows without a shell or a logon, or lose the
            // text the user had: the known data go back instead. A lock is taken away.
            f.Image[3].Visible = false;
            f.Label3[Warnung::LabelVon(3)].Visible = false;
            f.Zeigen(8);
            f.Label3[Warnung::LabelVon(8)].Caption = art == Eintragsart::Sperre ? "Freigeben" : "Original";
        }
        if (e.datei) {
            holedaten(k_.P(), f, datei);
            IcoHolen(k_.P(), datei, f.picProcIcon);
        }
    });
}

std::optional<std::string> RegistryOrte::Bekannt(const std::string& wert) const {
    const std::string anfang = Klein(wert + "\\");
    for (const ListItem& z : liste.Items)
        if (z.Text.size() > anfang.size() && Klein(z.Text.substr(0, anfang.size())) == anfang)
            return z.Text.substr(anfang.size());
    return std::nullopt;
}

const RegistryOrt* RegistryOrte::OrtVon(RegHandle root, const std::string& schlüssel, const std::string& name) {
    for (const RegistryOrt& ort : beschreibung.orte) {
        if (ort.wurzel != root) continue;
        if (ort.art == Ortsart::Werte && std::none_of(ort.namen.begin(), ort.namen.end(),
                                                      [&](const char* n) { return n && GleichOhneFall(n, name); }))
            continue;
        for (const std::string& pfad : BeideAnsichten(k_.P(), ort.wurzel, ort.schlüssel))
            if (GleichOhneFall(pfad, schlüssel)) return &ort;
    }
    return nullptr;
}

void RegistryOrte::Übernehmen(const std::string& zeile, const std::string& einzig) {
    if (!einzig.empty()) {
        const std::string anfang = Klein(einzig + "\\");
        std::erase_if(liste.Items, [&](const ListItem& z) { return Klein(z.Text).starts_with(anfang); });
    }
    liste.Add(zeile).SmallIcon = 26;
    basis.Speichern();
    grundstand_ = true;
}

void RegistryOrte::MarkierteLöschen(ListenPanel& panel) {
    Gemeldet(panel, "WeitereOrte_Click", [&] {
        MarkierteEntfernen(liste);
        basis.Speichern();
    });
}

}  // namespace kes
