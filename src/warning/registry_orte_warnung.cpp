#include "warning/registry_orte_warnung.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

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
    for (RegHandle h : {kHkeyCurrentUser, kHkeyLocalMachine, kHkeyUsers, kHkeyClassesRoot})
        if (RootName(h) == name) return h;
    return 0;
}

// A subkey with everything below it: a service keeps its Enum and Parameters keys there.
bool SchlüsselLöschen(Form3Fenster& f) {
    const RegHandle root = Wurzel(Feld(f, 1));
    if (root == 0) return false;
    Sicherung s = SicherungFür(f);
    s.Schlüssel(root, Feld(f, 2));
    Sichern(f, s);
    HiveOCX ocx(f.K().P().registry);
    ocx.DeleteKeyTree(static_cast<std::int32_t>(root), Feld(f, 2));
    return !ocx.KeyExists(HiveVonHandle(root), Feld(f, 2));
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
    // A text of the browser has one known value: the accepted one is the original from now on.
    w->Übernehmen(Eintrag(f), Feld(f, 5) == ArtName(Eintragsart::Text) ? Feld(f, 0) + "\\" + Feld(f, 3) : "");
    k.Log(w->beschreibung.überschrift, {"Registry: " + Feld(f, 0) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 4)}, kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void RegistryOrt(Form3Fenster& f) {
    const std::string art = Feld(f, 5);
    bool ok = false;
    if (art == ArtName(Eintragsart::Schlüssel) || art == ArtName(Eintragsart::Katalog))
        ok = SchlüsselLöschen(f);
    else if (art == ArtName(Eintragsart::Teil))
        ok = TeilLöschen(f);
    else if (art == ArtName(Eintragsart::Unentbehrlich) || art == ArtName(Eintragsart::Text) ||
             art == ArtName(Eintragsart::Sperre))
        ok = false;  // never deleted: its warning offers "Original" or "Freigeben" instead
    else
        ok = f.RegistryLöschenValue(Feld(f, 1), Feld(f, 2), Feld(f, 3), Feld(f, 4));
    const RegistryOrte* w = f.K().Alarm().RegistryOrteVon(f.K().W().Kategorieschlüssel);
    f.K().Log(w ? w->beschreibung.überschrift : "",
              {"Registry: " + Feld(f, 0) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 4)},
              ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
}
}  // namespace entfernen

namespace weitere {
namespace {
// The text put back with the type the value has now: a number stays a number.
bool Zurückschreiben(RegistryApi& reg, RegHandle root, const std::string& key, const std::string& name,
                     const std::string& daten) {
    RegKey k;
    if (reg.OpenKeyEx(root, key, kKeyAllAccess, &k) != kErrorSuccess) return false;
    std::uint32_t typ = kRegSz, grösse = 0;
    if (reg.QueryValueEx(k.Get(), name.c_str(), &typ, nullptr, &grösse) != kErrorSuccess) typ = kRegSz;
    if (typ == kRegDword) {
        const std::uint32_t zahl = static_cast<std::uint32_t>(std::strtoul(daten.c_str(), nullptr, 10));
        return reg.SetValueEx(k.Get(), name.c_str(), kRegDword, reinterpret_cast<const std::uint8_t*>(&zahl),
                              sizeof zahl) == kErrorSuccess;
    }
    // A text that names an environment variable was one to be expanded: a service's program
    // put back as a plain string would not start.
    const auto prozent = daten.find('%');
    if (typ != kRegExpandSz)
        typ = prozent != std::string::npos && daten.find('%', prozent + 1) != std::string::npos ? kRegExpandSz : kRegSz;
    return reg.SetValueEx(k.Get(), name.c_str(), typ, reinterpret_cast<const std::uint8_t*>(daten.c_str()),
                          static_cast<std::uint32_t>(daten.size() + 1)) == kErrorSuccess;
}

// What Windows itself keeps in a value it cannot start a session without.
std::string Windowswert(WarnKontext& k, const std::string& name) {
    return GleichOhneFall(name, "Userinit") ? k.W().Systemordner + "\\userinit.exe," : "Explorer.exe";
}
}  // namespace

// "Original": a value Windows needs, or a text the user had, back to the data the baseline
// knows for it, or, when it knows none, to what Windows itself keeps there; a text that
// Windows keeps none of goes. "Freigeben": a lock taken away. Each after a backup of the
// value as it stands.
void RegistryOrtOriginal(Form3Fenster& f) {
    WarnKontext& k = f.K();
    RegistryOrte* w = k.Alarm().RegistryOrteVon(k.W().Kategorieschlüssel);
    const RegHandle root = Wurzel(Feld(f, 1));
    const std::string art = Feld(f, 5);
    const bool nötig = art == ArtName(Eintragsart::Unentbehrlich), text = art == ArtName(Eintragsart::Text),
               sperre = art == ArtName(Eintragsart::Sperre);
    if (!w || root == 0 || !(nötig || text || sperre)) return f.raus();
    const std::string wert = Feld(f, 0) + "\\" + Feld(f, 3);
    const auto bekannt = sperre ? std::nullopt : w->Bekannt(wert);
    const RegistryOrt* ort = w->OrtVon(root, Feld(f, 2), Feld(f, 3));
    std::optional<std::string> daten = bekannt;
    if (!daten && nötig) daten = Windowswert(k, Feld(f, 3));
    if (!daten && text && ort && ort->vorgabe) daten = ort->vorgabe;
    Sicherung s = SicherungFür(f);
    s.Wert(root, Feld(f, 2), Feld(f, 3));
    Sichern(f, s);
    bool ok = false;
    try {
        HiveOCX ocx(k.P().registry);
        if (daten) {
            ok = Zurückschreiben(k.P().registry, root, Feld(f, 2), Feld(f, 3), *daten);
        } else {
            ocx.DeleteValue(HiveVonHandle(root), Feld(f, 2), Feld(f, 3));
            ok = !ocx.ValueExists(HiveVonHandle(root), Feld(f, 2), Feld(f, 3));
        }
    } catch (...) {
        ok = false;
    }
    // What Windows keeps is known from now on; a lock released or a text gone is no entry.
    if (ok && daten && !bekannt) w->Übernehmen(wert + "\\" + *daten, text ? wert : "");
    const std::string ergebnis = sperre  ? (ok ? "< Freigegeben OK >" : "< Freigegeben Nein >")
                                 : daten ? (ok ? "< Zurückgesetzt OK > auf " : "< Zurückgesetzt Nein > auf ") + *daten
                                         : (ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
    k.Log(w->beschreibung.überschrift, {"Registry: " + wert, "Wert: " + Feld(f, 4)}, ergebnis);
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
