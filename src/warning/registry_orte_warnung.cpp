#include "warning/registry_orte_warnung.h"

#include <algorithm>

#include "common/text.h"

#include "platform/hive_ocx.h"
#include "platform/mehrfachwert.h"
#include "platform/registry.h"
#include "warning/antwort.h"
#include "warning/form3.h"
#include "warning/loeschen.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
// The fields the watcher filled: 0 the key with its root, 1 the root, 2 the key, 3 the
// value's name, 4 the data, 5 how the entry goes.
std::string Eintrag(const Form3Fenster& f) {
    // A catalog entry is known without its subkey's number.
    if (Feld(f, 5) == ArtName(Eintragsart::Katalog))
        return Feld(f, 1) + "\\" + KatalogSchlüssel(Feld(f, 2)) + "\\" + Feld(f, 3) + "\\" + Feld(f, 4);
    return Feld(f, 0) + "\\" + Feld(f, 3) + "\\" + Feld(f, 4);
}

RegHandle Wurzel(const std::string& name) {
    for (RegHandle h : {kHkeyCurrentUser, kHkeyLocalMachine, kHkeyUsers})
        if (RootName(h) == name) return h;
    return 0;
}

// The one part taken out of the multi-string, the others kept in their order.
bool TeilLöschen(Form3Fenster& f) {
    const RegHandle root = Wurzel(Feld(f, 1));
    if (root == 0) return false;
    entfernen::VorherSichern(f, {}, {{root, Feld(f, 2), Feld(f, 3)}});
    RegistryApi& reg = f.K().P().registry;
    auto teile = MehrfachLesen(reg, root, Feld(f, 2), Feld(f, 3));
    if (!teile) return false;
    const auto weg = std::find(teile->begin(), teile->end(), Feld(f, 4));
    if (weg == teile->end()) return true;  // gone already
    teile->erase(weg);
    return MehrfachSchreiben(reg, root, Feld(f, 2), Feld(f, 3), *teile);
}
}  // namespace

namespace übernehmen {
bool RegistryOrt(Form3Fenster& f) {
    WarnKontext& k = f.K();
    RegistryOrte* w = k.Alarm().RegistryOrteVon(k.W().Kategorieschlüssel);
    if (!w) return true;
    w->Übernehmen(Eintrag(f));
    k.Log(w->beschreibung.überschrift, {"Registry: " + Feld(f, 0) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 4)}, kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void RegistryOrt(Form3Fenster& f) {
    const std::string art = Feld(f, 5);
    bool ok = false;
    if (art == ArtName(Eintragsart::Schlüssel) || art == ArtName(Eintragsart::Katalog))
        ok = f.RegistryLöschenSubkey(Feld(f, 1), Feld(f, 2));
    else if (art == ArtName(Eintragsart::Teil))
        ok = TeilLöschen(f);
    else if (art == ArtName(Eintragsart::Unentbehrlich))
        ok = false;  // never deleted: its warning offers "Original" instead
    else
        ok = f.RegistryLöschenValue(Feld(f, 1), Feld(f, 2), Feld(f, 3), Feld(f, 4));
    const RegistryOrte* w = f.K().Alarm().RegistryOrteVon(f.K().W().Kategorieschlüssel);
    f.K().Log(w ? w->beschreibung.überschrift : "",
              {"Registry: " + Feld(f, 0) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 4)},
              ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
}
}  // namespace entfernen

namespace weitere {
// A value Windows needs back to the data the baseline knows for it, or, when it knows
// none, to what Windows itself writes there; after a backup of the value as it stands.
void RegistryOrtOriginal(Form3Fenster& f) {
    WarnKontext& k = f.K();
    RegistryOrte* w = k.Alarm().RegistryOrteVon(k.W().Kategorieschlüssel);
    const RegHandle root = Wurzel(Feld(f, 1));
    if (!w || root == 0 || Feld(f, 5) != ArtName(Eintragsart::Unentbehrlich)) return f.raus();
    const std::string wert = Feld(f, 0) + "\\" + Feld(f, 3);
    const auto bekannt = w->Bekannt(wert);
    std::string daten;
    if (bekannt)
        daten = *bekannt;
    else if (GleichOhneFall(Feld(f, 3), "Userinit"))
        daten = k.W().Systemordner + "\\userinit.exe,";
    else
        daten = "Explorer.exe";
    Sicherung s = SicherungFür(f);
    s.Wert(root, Feld(f, 2), Feld(f, 3));
    Sichern(f, s);
    bool ok = true;
    try {
        HiveOCX(k.P().registry).WriteValue(HiveVonHandle(root), Feld(f, 2), Feld(f, 3), daten);
    } catch (...) {
        ok = false;
    }
    if (ok && !bekannt) w->Übernehmen(wert + "\\" + daten);
    k.Log(w->beschreibung.überschrift, {"Registry: " + wert, "Wert: " + Feld(f, 4)},
          (ok ? "< Zurückgesetzt OK > auf " : "< Zurückgesetzt Nein > auf ") + daten);
    f.raus();
}
}  // namespace weitere

namespace später {
std::string RegistryOrt(const Form3Fenster& f) {
    if (Feld(f, 5) == ArtName(Eintragsart::Katalog)) return Eintrag(f);
    const bool teil = Feld(f, 5) == ArtName(Eintragsart::Teil);
    return Feld(f, 0) + "\\" + Feld(f, 3) + (teil ? "\\" + Feld(f, 4) : "");
}
}  // namespace später

}  // namespace kes
