#include "watchers/autostart_ordner.h"

#include "common/text.h"
#include "platform/allefunktionen.h"
#include "platform/icoholen.h"
#include "watchers/alarm_daten.h"
#include "watchers/warnung.h"
#include "watchers/selbsttaetig.h"

namespace kes {

bool NameBekannt(const std::vector<std::string>& bekannt, const std::string& name) {
    const std::string klein = Klein(name);
    if (klein == "desktop.ini") return true;
    for (const auto& b : bekannt)
        if (Klein(b) == klein) return true;
    return false;
}

BekannteTexte BekannteNamen(const std::vector<std::string>& bekannt) {
    return BekannteTexte(bekannt, [](const std::string& b) { return Klein(b); });
}

bool NameBekannt(const BekannteTexte& bekannt, const std::string& name) {
    const std::string klein = Klein(name);
    return klein == "desktop.ini" || bekannt.Enthält(klein);
}

std::string PfadIn(const std::string& ordner, const std::string& name) {
    return (!ordner.empty() && ordner.back() == '\\' ? ordner : ordner + "\\") + name;
}

void AutostartOrdner::LadeAutostart() {
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;  // no file: the list stays as it is
    List3.Items.clear();
    // Files of older installations hold whole paths where an accept stored one: their name
    // part is what the list compares, so those accepts hold after all.
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) List3.Items.push_back(DateiName(zeile));
}

void AutostartOrdner::TesteAutostartOrdner() {
    const Kategorie schlüssel = k_.W().Kategorieschlüssel;
    const std::string ordner = schlüssel == Kategorie::Ordnermeister   ? Label2[2].Caption
                               : schlüssel == Kategorie::OrdnerAllUser ? Label2[3].Caption
                                                                       : File1.Path;
    // A folder that does not exist ends the pass without a word.
    if (!PfadSetzen(k_.P(), File1, ordner)) return;
    Aktualisieren(k_.P(), File1);
    const std::vector<std::string> dateien = File1.Items;
    const BekannteTexte bekannt = BekannteNamen(List3.Items);
    for (const std::string& name : dateien) {
        if (NameBekannt(bekannt, name)) continue;
        const std::string pfad = PfadIn(ordner, name);
        if (k_.Box(12) == 1) return Entfernen(name, pfad);
        // A deferred file lets the loop go on, so the files behind it are still seen.
        if (!k_.Später(pfad)) return Warnen(pfad);
    }
}

void AutostartOrdner::Entfernen(const std::string& name, const std::string& pfad) {
    Plattform& p = k_.P();
    if (k_.W().Soundflag == 1) SoundSpielen(p, "AUTO");
    // The balloon comes before the removal, whether it works or not.
    k_.Sprechblase(name, "Autostarteintrag wurde gelöscht!", "Kestrella");
    std::string sicherung;
    const bool ok = DateiSelbstLöschen(k_, pfad, sicherung);
    SelbstJournal(k_, Kategorie::AutostartOrdner, pfad, "Automatisch gelöscht", sicherung,
                  {"Neuer Eintrag im Autostart Ordner.", ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >"});
    try {
        k_.Log("Neuer Eintrag im Autostart Ordner.", {"Datei: " + name}, ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
    } catch (...) {
        // A log that cannot be written costs the entry, not the removal.
    }
}

void AutostartOrdner::Warnen(const std::string& pfad) {
    Plattform& p = k_.P();
    k_.Warnen(Kategorie::AutostartOrdner, [&](Warnung& f) {
        f.Picture3[3].Visible = false;
        f.Picture3[4].Visible = false;
        f.Label1[0].Caption = "Neuer Eintrag in der Autostart Ordner gefunden.";
        f.ListView2.Add(DateiName(pfad)).SmallIcon = 4;
        f.ListView2.Add(pfad).SmallIcon = 5;
        IcoHolen(p, pfad, f.picProcIcon);
        std::string datei = pfad;
        holedaten(p, f, datei);
    });
}

void LöscheAutostartordner1_Click(AlarmDaten& a, ListenPanel& panel, int) {
    if (!ZeileEntfernen(a.List3)) return;
    Gemeldet(panel, "LöscheAutostartordner1_Click", [&] { a.autostartOrdner.basis.Speichern(); });
}

}  // namespace kes
