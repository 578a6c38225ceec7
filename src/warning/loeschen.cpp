// "Löschen": the delete action of the warning window. It removes the warned-of thing from
// the system, by the registry control, by a REG DELETE command or by deleting a file; the
// baseline is not touched, so a thing that comes back is warned of again. The branches lie
// with their watcher's warning.
#include "warning/loeschen.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/reg_befehl.h"
#include "warning/antwort.h"
#include "warning/form1.h"
#include "warning/form3.h"
#include "warning/kategorien.h"

namespace kes {

namespace {
constexpr const char* kHives[] = {"HKEY_CLASSES_ROOT",     "HKEY_CURRENT_USER",   "HKEY_LOCAL_MACHINE", "HKEY_USERS",
                                  "HKEY_PERFORMANCE_DATA", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"};

// The hive code of a root name, compared exactly; -1 outside the table.
int HiveCode(const std::string& name) {
    for (int i = 0; i < 7; ++i)
        if (name == kHives[i]) return i;
    return -1;
}
}  // namespace

bool Form3Fenster::RegistryLöschenValue(const std::string& hive, const std::string& schlüssel, const std::string& wert,
                                        const std::string&) {
    const int code = HiveCode(hive);
    if (code < 0) return true;
    Sicherung s = SicherungFür(*this);
    s.Wert(HandleVonHive(code), schlüssel, wert == std::string(1, '\0') ? "" : wert);
    Sichern(*this, s);
    HiveOCX ocx(k_.P().registry);
    // The control reports no error for what is not there; a value that stays is a failure.
    ocx.DeleteValue(code, schlüssel, wert);
    return !ocx.ValueExists(code, schlüssel, wert);
}

bool Form3Fenster::RegistryLöschenSubkey(const std::string& hive, const std::string& schlüssel) {
    const int code = HiveCode(hive);
    if (code < 0) return true;
    Sicherung s = SicherungFür(*this);
    s.Schlüssel(HandleVonHive(code), schlüssel);
    Sichern(*this, s);
    HiveOCX ocx(k_.P().registry);
    ocx.DeleteKey(code, schlüssel);
    return !ocx.KeyExists(code, schlüssel);
}

void Form3Fenster::Image3_Click() {
    if (k_.W().AnzeigeLöschen) {
        löschen(true);
        return;
    }
    // Modal: the view shows it over everything until it is answered.
    k_.Form1().Show();
}

void Form3Fenster::löschen(bool ja) {
    if (!ja) return;
    // The error exit: the number and the routine's name, no title, and the window stays.
    try {
        Antwort antwort(*this, Label3[2].Caption);
        const KategorieZeile& z = Zeile(k_.W().Kategorieschlüssel);
        // A name that would make the command delete another key: nothing happens, the user
        // is told, and the window stays for another answer.
        if (z.regDeleteFeld >= 0 && !RegNameSicher(Feld(*this, z.regDeleteFeld))) {
            k_.P().dialogs.ShowMessage(RegNameUnsicherText(Feld(*this, z.regDeleteFeld)), "Achtung!",
                                       kMbOk | kMbIconExclamation);
            return;
        }
        if (z.löschen) z.löschen(*this);
        // raus unloads this window: nothing of it may be touched after the first call.
        WarnKontext& k = k_;
        raus();
        if (z.löschenZweimalRaus) k.EinstellungenSpeichern();  // the second raus finds no window left to close
    } catch (const SicherungFehlt&) {
        // The user has been told; nothing was removed, and the window stays.
    } catch (const Fehler& f) {
        k_.P().dialogs.ShowMessage(std::to_string(f.Nummer()) + "Fehler Meldung [Form3 Löschen]", "", kMbOk);
    } catch (const std::exception&) {
        k_.P().dialogs.ShowMessage("5Fehler Meldung [Form3 Löschen]", "", kMbOk);
    }
}

namespace entfernen {

void RegDeleteStarten(Form3Fenster& f, const std::string& pfad, const std::string& name, const char* schalter) {
    f.K().P().shell.RunCommand(RegDelete(pfad, name, schalter), 2);
}

void VorherSichern(Form3Fenster& f, std::initializer_list<std::pair<RegHandle, std::string>> bäume,
                   std::initializer_list<std::tuple<RegHandle, std::string, std::string>> werte) {
    Sicherung s = SicherungFür(f);
    for (const auto& [root, key] : bäume) s.Schlüssel(root, key);
    for (const auto& [root, key, name] : werte) s.Wert(root, key, name);
    Sichern(f, s);
}

bool DateiEntfernen(Form3Fenster& f, const std::string& pfad) {
    Plattform& p = f.K().P();
    if (UnlesbarGemeldet(p, pfad)) return false;
    Sicherung s = SicherungFür(f);
    s.Datei(pfad);
    Sichern(f, s);
    return DateiLöschen(p, pfad);
}

}  // namespace entfernen

}  // namespace kes
